// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_GTEST_GUITESTFIXTURE_H
#define TESTSUPPORT_GTEST_GUITESTFIXTURE_H

/** @file
 *  The fixture for tests that need a whole framework with a dialog manager.
 */

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITimer.h"
#include "Scenario/EventLog.h"
#include "Scenario/Names.h"
#include "Scenario/ObjectTree.h"
#include "Scenario/StatePrinter.h"
#include "Scenario/SteppedClock.h"
#include "Scenario/TextLines.h"
#include "Scenario/TraceRecorder.h"
#include "TestSupport/CodeFactory.h"
#include "TestSupport/GTest/ExpectText.h"
#include "TestSupport/HookRecorder.h"
#include "TestSupport/ObjectCensus.h"
#include "TestSupport/TestAccess.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/** A root, a factory that builds trees in code, a clock at time 0, a recording dialog manager, and one log
 *  of hook calls and trace entries.
 *
 *      TEST_F(CSwitchingTest, CreateDialog_Invisible_HidesTheOldDialog)
 *      {
 *          DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
 *          DefineDialog(DLG_B, "DLG_B");
 *          Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
 *          ClearEvents();
 *
 *          Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
 *
 *          EXPECT_EVENTS(R"(
 *              INFO: Time for loading code:DLG_B: 0.\n
 *              OnDialogDeactivation(DLG_A)
 *              ...
 *          )");
 *          EXPECT_STATE(R"(
 *              current: DLG_B after ODA_INVISIBLE
 *              ...
 *          )");
 *      }
 *
 *  At the end of the test everything is destroyed. The test fails if anything is alive then that was not
 *  alive before, or the other way round.
 */
class CGUITest : public ::testing::Test
{
protected:
    CGUITest()
        : m_kBefore(TakeObjectCensus()),
          m_kTraceRecorder(m_kEvents),
          m_kClock(0),
          m_pkRoot(new CGUI),
          m_pkManager(new CRecordingDialogManager(m_kEvents))
    {
        CGUIFactoryManager::CreateInstance().RegisterReaderForPathPrefix(CCodeFactory::cpcPrefix,
                                                                         &m_kCodeFactory);
    }

    ~CGUITest() override
    {
        m_pkManager.reset();
        m_pkRoot.reset();
        CGUIFactoryManager::DestroyInstance();
        const std::string kDifference = CompareObjectCensus(m_kBefore, TakeObjectCensus());
        if (!kDifference.empty())
        {
            ADD_FAILURE() << "The test does not leave things as it found them:\n" << kDifference;
        }
    }

    CRecordingDialogManager& Manager() { return *m_pkManager; }
    CGUI& Root() { return *m_pkRoot; }
    CSteppedClock& Clock() { return m_kClock; }
    CCodeFactory& CodeFactory() { return m_kCodeFactory; }
    CTraceRecorder& TraceRecorder() { return m_kTraceRecorder; }
    CEventLog& Events() { return m_kEvents; }

    /** Destroys the manager before the end of the test. */
    void DestroyManager() { m_pkManager.reset(); }

    /** Destroys the root and everything under it before the end of the test. */
    void DestroyRoot() { m_pkRoot.reset(); }

    /** @return the path under which DefineDialog and DefinePopup register a tree, for example "code:DLG_A" */
    static std::string PathOf(ObjectHandle_t eID) { return CCodeFactory::cpcPrefix + NameOfHandle(eID); }

    /** Registers a dialog that is loaded from a description in code.
     *  @param kTree see CObjectTree
     */
    void DefineDialog(ObjectHandle_t eID, const std::string& kTree)
    {
        m_kCodeFactory.RegisterTree(PathOf(eID), kTree);
        EXPECT_TRUE(m_pkManager->RegisterDialogDefinition(PathOf(eID).c_str(), eID));
    }

    /** Registers a popup that is loaded from a description in code. */
    void DefinePopup(ObjectHandle_t eID, CGUIDialogManager::PopupPriority_t ePriority, eC_UInt uiDisplayTime,
                     eC_Bool bDeleteOnClose, const std::string& kTree)
    {
        m_kCodeFactory.RegisterTree(PathOf(eID), kTree);
        EXPECT_TRUE(m_pkManager->RegisterPopupDefinition(eID, ePriority, uiDisplayTime, bDeleteOnClose,
                                                         PathOf(eID).c_str()));
    }

    /** Builds a tree and attaches it to the root. @return its top object */
    CGUIObject* Attach(const std::string& kTree) { return CObjectTree(kTree).Build(m_pkRoot.get()); }

    /** @return the object with that identifier under the root, even if invisible, or null */
    CGUIObject* Object(ObjectHandle_t eID) const { return m_pkRoot->GetObjectByID(eID, false); }

    /** @return the object that has the focus, or null */
    static CGUIObject* Focus() { return CGUIEventHandler::GetInstance().GetFocussedObject(); }

    /** Gives the focus to the object with that identifier, and expects it to accept. */
    void SetFocus(ObjectHandle_t eID)
    {
        CGUIObject* pkObject = Object(eID);
        ASSERT_NE(nullptr, pkObject);
        EXPECT_TRUE(pkObject->RequestFocus());
    }

    /** @return hook calls and trace entries since the last call, in order */
    std::vector<std::string> TakeEvents() { return m_kEvents.Take(); }

    /** @return the hook calls since the last call; the trace entries can still be taken */
    std::vector<std::string> TakeHooks() { return m_kEvents.Take(EVENT_HOOK); }

    /** @return the trace entries since the last call; the hook calls can still be taken */
    std::vector<std::string> TakeTrace() { return m_kEvents.Take(EVENT_TRACE); }

    /** Forgets everything recorded so far. */
    void ClearEvents()
    {
        m_kEvents.Clear();
        m_kTraceRecorder.Clear();
    }

    /** @return the state without the definitions */
    std::string State() { return PrintState(*m_pkManager, STATE_ALL & ~STATE_DEFINITIONS); }

    /** @return the state with the definitions */
    std::string WholeState() { return PrintState(*m_pkManager); }

private:
    ObjectCensus_t m_kBefore;
    CEventLog m_kEvents;
    CTraceRecorder m_kTraceRecorder;
    CSteppedClock m_kClock;
    CCodeFactory m_kCodeFactory;
    std::unique_ptr<CGUI> m_pkRoot;
    std::unique_ptr<CRecordingDialogManager> m_pkManager;
};

/** Inside a CGUITest: expects the state, without the definitions. */
#define EXPECT_STATE(kExpected) EXPECT_TEXT(kExpected, State())

/** Inside a CGUITest: expects the state with the definitions. */
#define EXPECT_WHOLE_STATE(kExpected) EXPECT_TEXT(kExpected, WholeState())

/** Inside a CGUITest: expects the hook calls and trace entries since they were last taken, and takes them. */
#define EXPECT_EVENTS(kExpected) EXPECT_TEXT(kExpected, JoinLines(TakeEvents()))

/** Inside a CGUITest: the same for hook calls only. */
#define EXPECT_HOOKS(kExpected) EXPECT_TEXT(kExpected, JoinLines(TakeHooks()))

/** Inside a CGUITest: the same for trace entries only. */
#define EXPECT_TRACE(kExpected) EXPECT_TEXT(kExpected, JoinLines(TakeTrace()))

#endif
