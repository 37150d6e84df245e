// SPDX-License-Identifier: MIT
/** @file
 *  Performs sequences of operations that a fuzzer generates, with the library and with the model. If the
 *  first byte of an input is 255, the library runs alone, and sinks and objects perform operations inside
 *  operations.
 */

#include "TestSupport/ObjectCensus.h"
#include "TestSupport/StructureChecker.h"
#include "Tests/Fuzz/FuzzTarget.h"
#include "Tests/Model/Comparison.h"
#include "Tests/Model/LibrarySystem.h"

#include <functional>

namespace
{
constexpr int ciLongestSequence = 100;

/** @return an operation that can happen, as the comparison with the model takes it */
Operation_t TakeOperation(CDecisions& kDecisions)
{
    Operation_t kOperation;
    kOperation.m_eOperation = static_cast<EOperation>(kDecisions.TakeBelow(OP_COUNT));
    if (kOperation.m_eOperation == OP_IN_HOOK || kOperation.m_eOperation == OP_THROW_IN_HOOK)
    {
        kOperation.m_uiHook = kDecisions.TakeBelow(10);
    }
    if (kOperation.m_eOperation == OP_IN_HOOK)
    {
        kOperation.m_eInner = static_cast<EOperation>(kDecisions.TakeBelow(OP_ADVANCE));
    }
    kOperation.m_uiFirst = kDecisions.TakeByte();
    kOperation.m_uiSecond = kDecisions.TakeByte();
    kOperation.m_uiThird = kDecisions.TakeByte();
    kOperation.m_uiFourth = kDecisions.TakeByte();
    return kOperation;
}

// --- Inside sinks and objects -------------------------------------------------------------------------

/** Performs an operation inside one of the coming entries. */
class CReenteringSink : public CGUITraceSink
{
public:
    CReenteringSink() { CGUITrace::GetInstance().SetSink(this); }
    CReenteringSink(const CReenteringSink&) = delete;
    CReenteringSink& operator=(const CReenteringSink&) = delete;
    ~CReenteringSink() override { CGUITrace::GetInstance().SetSink(nullptr); }

    void DoInEntry(unsigned int uiEntry, std::function<void()> kAction)
    {
        m_uiEntry = uiEntry;
        m_kAction = std::move(kAction);
    }

    void Write(const eC_String&, const eC_String&, const eC_String&, const eC_String&) override
    {
        if (m_uiEntry > 0 && --m_uiEntry == 0)
        {
            m_kAction();
        }
    }

private:
    unsigned int m_uiEntry = 0;
    std::function<void()> m_kAction;
};

/** @return true for operations that may never end: going back step by step to a dialog that never appears */
bool MayNotEnd(const Operation_t& kOperation)
{
    const bool bGoesBackTo =
        kOperation.m_eOperation == OP_BACK_TO_DIALOG ||
        (kOperation.m_eOperation == OP_IN_HOOK && kOperation.m_eInner == OP_BACK_TO_DIALOG);
    return bGoesBackTo && kOperation.m_uiThird % 2 == 1;
}

/** Performs operations, each with another one inside a sink or an object.
 *  @return what is wrong with the structures, or the empty string
 */
std::string Reenter(CDecisions& kDecisions)
{
    CLibrarySystem kSystem(0);
    CReenteringSink kSink;
    for (const Operation_t& kOperation : GetBeginning())
    {
        PerformAndCatch(kSystem, kOperation);
    }
    std::string kWrong;
    for (int iOperation = 0; iOperation < ciLongestSequence && !kDecisions.IsEmpty() && kWrong.empty();
         ++iOperation)
    {
        const bool bIsSink = kDecisions.TakeBelow(2) == 0;
        const unsigned int uiMoment = kDecisions.TakeBelow(8);
        const Operation_t kInner = TakeOperation(kDecisions);
        const Operation_t kOuter = TakeOperation(kDecisions);
        if (MayNotEnd(kInner) || MayNotEnd(kOuter))
        {
            continue;
        }
        ShowStep(PrintOperation(kOuter) + (bIsSink ? ", in entry " : ", in call ") +
                 std::to_string(uiMoment) + " " + PrintOperation(kInner));
        const auto kAction = [&kSystem, kInner] { PerformAndCatch(kSystem, kInner); };
        kSink.DoInEntry(bIsSink ? uiMoment : 0, kAction);
        kSystem.ReactInCall(bIsSink ? 0 : uiMoment, kAction);
        kSystem.SetPermissions({true, true, true, true});
        PerformAndCatch(kSystem, kOuter);
        kWrong = kSystem.CheckStructures();
    }
    return kWrong;
}

// --- Compared with the model --------------------------------------------------------------------------

/** @return what differs and what led to it, or the empty string */
std::string Compare(CDecisions& kDecisions)
{
    CTally kTally;
    CComparison kComparison(kTally);
    std::string kStory;
    for (int iOperation = 0; iOperation < ciLongestSequence && !kDecisions.IsEmpty(); ++iOperation)
    {
        const Operation_t kOperation = TakeOperation(kDecisions);
        if (!kComparison.Permits(kOperation))
        {
            continue;
        }
        ShowStep(PrintOperation(kOperation));
        kStory += PrintOperation(kOperation) + "\n";
        if (!kComparison.Do(kOperation))
        {
            return kStory + "\n- is what the model expects, + what the library did:\n" +
                   kComparison.GetDifference();
        }
    }
    return "";
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize)
{
    CDecisions kDecisions(pcBytes, uiSize);
    const ObjectCensus_t kBefore = TakeObjectCensus();
    constexpr unsigned int cuiAlone = 255;
    const bool bIsAlone = uiSize > 0 && *pcBytes == cuiAlone;
    const std::string kDifference = bIsAlone ? Reenter(kDecisions) : Compare(kDecisions);
    if (!kDifference.empty())
    {
        Fail(kDifference);
    }
    const std::string kLeft = CompareObjectCensus(kBefore, TakeObjectCensus());
    if (!kLeft.empty())
    {
        Fail("left behind:\n" + kLeft);
    }
    return 0;
}
