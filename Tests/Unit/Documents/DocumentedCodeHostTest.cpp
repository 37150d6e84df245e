// SPDX-License-Identifier: MIT
// Pieces of code on the pages of Docs/ that have no program of their own. Commands/Support/Snippets.py finds
// them here.

#include "Core/GUIFactoryManager.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"
#include "Loader/GUIDialogROMReader.h"
#include "Loader/GUIDialogXMLReader.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
/** An application around the main loops of the pages: what they call is recorded. */
class CDocumentedCodeTest : public CGUITest
{
protected:
    struct Message_t
    {
    };

    void HandleKeys() { m_kCalls += "keys "; }
    void HandleInput() { m_kCalls += "input "; }
    void DrawIfNeeded() { m_kCalls += "draw "; }
    void SleepAtMost(eC_UInt /*uiTime*/) { m_kCalls += "sleep "; }
    void Handle(const Message_t& /*kMessage*/) { m_kCalls += "message "; }
    eC_Bool ReceiveMessage(Message_t& /*kMessageOUT*/, eC_UInt uiLongest)
    {
        m_kCalls += uiLongest == CGUITimer::cuiNoCallback ? "receive " : "receive-at-most ";
        return true;
    }

    /** Loads a file that is not there, and destroys the factory before the reader. */
    void ExpectLoadingSays(const std::string& kMessage)
    {
        EXPECT_EQ(nullptr, CGUIFactoryManager::GetInstance().LoadDialogFromFile("Home.xml"));
        EXPECT_NE(std::string::npos, JoinLines(TakeTrace()).find(kMessage));
        DestroyManager();
        DestroyRoot();
        CGUIFactoryManager::DestroyInstance();
    }

    std::string m_kCalls;
};

/** Drops everything. */
class CSilentSink : public CGUITraceSink
{
public:
    void Write(const eC_String& /*kPrefix*/, const eC_String& /*kMessage*/, const eC_String& /*kFile*/,
               const eC_String& /*kLine*/) override
    {
    }
};

TEST_F(CDocumentedCodeTest, MainLoopOfTheGuide_RunsEachPartInOrder)
{
    // The last step of a turn ends the loop.
    eC_Bool bRunning = true;
    const auto SleepAtMost = [&](eC_UInt uiTime)
    {
        m_kCalls += uiTime == CGUITimer::cuiNoCallback ? "sleep" : "sleep-at-most";
        bRunning = false;
    };

    while (bRunning)
    {
        HandleKeys();
        GETTIMER.ProcessCallbacks();
        DrawIfNeeded();
        SleepAtMost(GETTIMER.GetTimeUntilNextCallback());
    }

    EXPECT_EQ("keys draw sleep", m_kCalls);
}

TEST_F(CDocumentedCodeTest, MainLoopOfADevice_RunsEachPartInOrder)
{
    struct Interrupt_t
    {
    };
    const auto SleepAtMost = [&](eC_UInt /*uiTime*/)
    {
        m_kCalls += "sleep";
        throw Interrupt_t();
    };
    const auto Loop = [&]
    {
        while (true)
        {
            HandleInput();
            GETTIMER.ProcessCallbacks();
            DrawIfNeeded();
            SleepAtMost(GETTIMER.GetTimeUntilNextCallback());
        }
    };

    EXPECT_THROW(Loop(), Interrupt_t);
    EXPECT_EQ("input draw sleep", m_kCalls);
}

TEST_F(CDocumentedCodeTest, TurnOfATask_HandlesItsMessage)
{
    Message_t kMessage;

    if (ReceiveMessage(kMessage, GETTIMER.GetTimeUntilNextCallback()))
    {
        Handle(kMessage);
    }
    GETTIMER.ProcessCallbacks();

    EXPECT_EQ("receive message ", m_kCalls);
}

TEST_F(CDocumentedCodeTest, ReaderForFiles_IsRegistered)
{
    CGUIDialogXMLReader kReader("/usr/share/coffee");
    CGUIFactoryManager::GetInstance().RegisterReaderForFileType("xml", &kReader);

    ExpectLoadingSays("Home.xml:1:1: cannot open");
}

TEST_F(CDocumentedCodeTest, ReaderForTables_IsRegistered)
{
    const DialogROMTables_t ckCoffeeDialogs = {nullptr, 0};

    CGUIDialogROMReader kReader(ckCoffeeDialogs);
    CGUIFactoryManager::GetInstance().RegisterReaderForFileType("xml", &kReader);

    ExpectLoadingSays("no such compiled dialog");
}

TEST_F(CDocumentedCodeTest, Sink_GetsTheTrace)
{
    CGUITraceSink* const pkBefore = CGUITrace::GetInstance().GetSink();
    CSilentSink kSink;

    CGUITrace::GetInstance().SetSink(&kSink);

    EXPECT_EQ(&kSink, CGUITrace::GetInstance().GetSink());
    CGUITrace::GetInstance().SetSink(pkBefore);
}
} // namespace
