// SPDX-License-Identifier: MIT
/** @file
 *  Feeds bytes into an inspection. Nothing breaks, every line gets at most one reply, the output consists of
 *  whole lines, and a line that is refused changes nothing.
 */

#include "Core/Control/GUI.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITrace.h"
#include "Inspection/HazardWatch.h"
#include "Inspection/InspectionLink.h"
#include "Scenario/SteppedClock.h"
#include "TestSupport/CodeFactory.h"
#include "TestSupport/ObjectCensus.h"
#include "TestSupport/StructureChecker.h"
#include "Tests/Fuzz/FuzzTarget.h"

#include <algorithm>

namespace
{
/** A channel with given input, and with room for some lines of output. */
class CFuzzChannel : public CInspectionChannel
{
public:
    explicit CFuzzChannel(eC_UInt uiRoom) : m_uiRoom(uiRoom) {}

    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override
    {
        const std::string kLine(pcLine, uiLength);
        if (kLine.size() < 3 || kLine.front() != '{' || kLine.find('\n') != kLine.size() - 1 ||
            kLine[kLine.size() - 2] != '}')
        {
            Fail("this is no whole line: " + kLine);
        }
        ShowStep(kLine);
        if (m_uiRoom == 0)
        {
            return false;
        }
        --m_uiRoom;
        if (kLine.rfind("{\"type\":\"reply\"", 0) == 0)
        {
            m_kLastReply = kLine;
            ++m_uiReplies;
        }
        m_uiDropReports += kLine.find("\"dropped\":") != std::string::npos ? 1U : 0U;
        return true;
    }

    eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) override
    {
        const std::size_t uiRead = m_kInput.copy(pcBytes, uiSize);
        m_kInput.erase(0, uiRead);
        return static_cast<eC_UInt>(uiRead);
    }

    eC_UInt GetReaders() const override { return m_uiReaders; }

    std::string m_kInput;
    std::string m_kLastReply; ///< the last one that was accepted
    eC_UInt m_uiRoom;
    eC_UInt m_uiReplies = 0;
    eC_UInt m_uiDropReports = 0; ///< accepted lines that say how many were dropped
    eC_UInt m_uiReaders = 1;
};

constexpr eC_UInt cuiAnyRoom = 0xFFFFFFFFU;

/** Operations that may never end cannot be fuzzed. */
bool MayNotEnd(const std::string& kLine)
{
    return kLine.find("BackToDialog") != std::string::npos;
}

void Define(CGUIDialogManager& kManager, CCodeFactory& kFactory)
{
    kFactory.RegisterTree("code:1", "1 { 11 focusable; 12 focusable }");
    kFactory.RegisterTree("code:2", "2 { 21 focusable; - { - focusable } }");
    kFactory.RegisterTree("code:3", "3");
    kManager.RegisterDialogDefinition("code:1", static_cast<ObjectHandle_t>(1));
    kManager.RegisterDialogDefinition("code:2", static_cast<ObjectHandle_t>(2));
    kManager.RegisterPopupDefinition(static_cast<ObjectHandle_t>(3), CGUIDialogManager::PRIO_HIGH, 100, true,
                                     "code:3");
}

/** Feeds lines, whole or in pieces, and checks the result after each turn. */
class CFuzzedInspection
{
public:
    explicit CFuzzedInspection(CDecisions& kDecisions)
        : m_kDecisions(kDecisions),
          m_kChannel(kDecisions.TakeBelow(4) == 0 ? kDecisions.TakeByte() : cuiAnyRoom),
          m_kLine(CInspectionLink::cuiLeastMemory + kDecisions.TakeByte(), '\0'),
          m_kInput(1 + kDecisions.TakeByte(), '\0'),
          m_kLink(m_kManager, m_kChannel, m_kLine.data(), static_cast<eC_UInt>(m_kLine.size())),
          m_kWatch(m_kLink.GetInspector(), m_kLink)
    {
        CGUIFactoryManager::GetInstance().RegisterReaderForPathPrefix(CCodeFactory::cpcPrefix, &m_kFactory);
        Define(m_kManager, m_kFactory);
        m_kLink.AllowInput(m_kCommands, m_kInput.data(), static_cast<eC_UInt>(m_kInput.size()));
        m_kWatch.Watch(kDecisions.TakeByte());
    }

    void Feed()
    {
        while (!m_kDecisions.IsEmpty())
        {
            const std::string kBytes = m_kDecisions.TakeText(1 + m_kDecisions.TakeByte());
            m_kRest += kBytes;
            if (MayNotEnd(m_kRest))
            {
                return;
            }
            m_kRest.erase(0, m_kRest.rfind('\n') == std::string::npos ? 0 : m_kRest.rfind('\n') + 1);
            m_uiLines += static_cast<eC_UInt>(std::count(kBytes.begin(), kBytes.end(), '\n'));
            m_kChannel.m_kInput += kBytes;
            Turn();
        }
    }

private:
    void Turn()
    {
        const std::uint64_t uiBefore = m_kLink.GetInspector().GetFingerprint(STATE_ALL);
        const eC_UInt uiReplies = m_kChannel.m_uiReplies;
        const eC_UInt uiDropReports = m_kChannel.m_uiDropReports;
        m_kLink.Run();
        m_kWatch.Check();
        // Only with one line at a time can we tell that a refused one changed nothing. When something was
        // dropped, that may have been the reply to another line.
        const bool bIsAllSeen = m_kLink.GetDropped() == 0 && m_kChannel.m_uiDropReports == uiDropReports;
        const bool bIsRefused = bIsAllSeen && m_kChannel.m_uiReplies == uiReplies + 1 &&
                                m_kChannel.m_kLastReply.find("\"error\":") != std::string::npos;
        if (bIsRefused && m_kLink.GetInspector().GetFingerprint(STATE_ALL) != uiBefore)
        {
            Fail("a line that was refused has changed the state");
        }
        // A new reader ends the unfinished line of the previous one.
        if (m_kChannel.m_uiReplies > m_uiLines + m_kChannel.m_uiReaders)
        {
            Fail("a line has more than one reply");
        }
        const std::string kFaults = CheckStructures(m_kManager);
        if (!kFaults.empty())
        {
            Fail(kFaults);
        }
        m_kClock.Advance(m_kDecisions.TakeByte());
        if (m_kDecisions.TakeByte() == 1)
        {
            ++m_kChannel.m_uiReaders;
        }
    }

    CDecisions& m_kDecisions;
    CSteppedClock m_kClock;
    CCodeFactory m_kFactory;
    CGUI m_kRoot;
    CGUIDialogManager m_kManager;
    CFuzzChannel m_kChannel;
    std::string m_kLine;
    std::string m_kInput;
    CInspectionCommands m_kCommands{m_kManager};
    CInspectionLink m_kLink;
    CHazardWatch m_kWatch;
    std::string m_kRest; ///< the unfinished line
    eC_UInt m_uiLines = 0;
};
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize)
{
    CGUITrace::GetInstance().SetSink(nullptr);
    const ObjectCensus_t kBefore = TakeObjectCensus();
    {
        CDecisions kDecisions(pcBytes, uiSize);
        CFuzzedInspection kInspection(kDecisions);
        kInspection.Feed();
    }
    const std::string kLeft = CompareObjectCensus(kBefore, TakeObjectCensus());
    if (!kLeft.empty())
    {
        Fail("left behind:\n" + kLeft);
    }
    return 0;
}
