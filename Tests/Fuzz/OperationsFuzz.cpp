/** @file
 *  Sequences of operations that a fuzzer makes, done by the library and by the model.
 */

#include "TestSupport/ObjectCensus.h"
#include "Tests/Fuzz/FuzzTarget.h"
#include "Tests/Model/Comparison.h"

namespace
{
constexpr int ciLongestSequence = 100;

/** @return an operation that can happen, as the model's comparison takes it */
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

/** @return what differs, with what led there, or the empty string */
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
    const std::string kDifference = Compare(kDecisions);
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
