// SPDX-License-Identifier: MIT
#include "Inspection/HazardWatch.h"

#include "Inspection/InspectedManager.h"
#include "Inspection/InspectionLink.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/Inspection/CollectingChannel.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <cstring>
#include <utility>

namespace
{
/** Records every hazard: its name and what it is about. */
class CHazardNotes : public CHazardListener
{
public:
    void OnHazard(const HazardReport_t& kReport) override
    {
        m_kNotes += std::string(kReport.m_pcName) + " " + NameOfHandle(kReport.m_eID) + "\n";
        if (kReport.m_eHazard == HAZARD_GOING_BACK_IN_CIRCLES && m_bEndsCircles)
        {
            // Only an exception can end an operation that would never end.
            throw 0.5;
        }
    }

    std::string Take() { return std::exchange(m_kNotes, std::string()); }
    void EndCircles() { m_bEndsCircles = true; }

private:
    std::string m_kNotes;
    bool m_bEndsCircles = false;
};
} // namespace

class CHazardWatchTest : public CGUITest
{
protected:
    CHazardWatchTest() { m_kManager.SetHazardWatch(&m_kWatch); }

    /** @return what one check finds */
    std::string Check()
    {
        m_kWatch.Check();
        return m_kNotes.Take();
    }

    void Define(ObjectHandle_t eID, const std::string& kTree)
    {
        CodeFactory().RegisterTree(PathOf(eID), kTree);
        m_kManager.RegisterDialogDefinition(PathOf(eID).c_str(), eID);
    }

    CInspectedManager<CRecordingDialogManager> m_kManager{Events()};
    CGUIInspector m_kInspector{m_kManager};
    CHazardNotes m_kNotes;
    CHazardWatch m_kWatch{m_kInspector, m_kNotes};
};

TEST_F(CHazardWatchTest, EveryHazard_HasANameAndASentence)
{
    for (eC_UInt uiHazard = 1; uiHazard < HAZARD_ALL; uiHazard *= 2)
    {
        const std::string kSentence = GetHazardSentence(static_cast<EHazard>(uiHazard));
        EXPECT_LT(0U, std::strlen(GetHazardName(static_cast<EHazard>(uiHazard))));
        EXPECT_EQ('.', kSentence.back()) << kSentence;
    }
    EXPECT_STREQ("same-identifier", GetHazardName(HAZARD_SAME_IDENTIFIER));
    EXPECT_STREQ("never-registered", GetHazardName(HAZARD_NEVER_REGISTERED));
}

TEST_F(CHazardWatchTest, NothingIsTold_UnlessItIsWatchedFor)
{
    Attach("DLG_A { OBJ_1 focusable; OBJ_1; - focusable }");
    m_kManager.CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);
    m_kManager.ShowPopup(POP_1);
    m_kWatch.Report(HAZARD_HISTORY_CHANGED, DLG_A);
    EXPECT_EQ("", Check());
}

// --- Lasting hazards -----------------------------------------------------------------------------------

TEST_F(CHazardWatchTest, TwoObjectsWithOneIdentifier_AreToldOnceUntilItConcernsOthers)
{
    m_kWatch.Watch(HAZARD_SAME_IDENTIFIER);
    Attach("DLG_A { OBJ_1; OBJ_2; -; - }");
    EXPECT_EQ("", Check());

    CGUIObject* const pkSecond = Attach("DLG_B { OBJ_1 }");
    EXPECT_EQ("same-identifier OBJ_1\n", Check());
    EXPECT_EQ("", Check());

    pkSecond->SetID(DLG_A);
    EXPECT_EQ("same-identifier DLG_A\n", Check());
    delete pkSecond;
    EXPECT_EQ("", Check());
    Attach("OBJ_2");
    EXPECT_EQ("same-identifier OBJ_2\n", Check());
}

TEST_F(CHazardWatchTest, AFocusableObjectWithoutIdentifier_IsToldWithTheOneAboveIt)
{
    m_kWatch.Watch(HAZARD_FOCUSABLE_WITHOUT_ID);
    Attach("DLG_A { -; OBJ_1 focusable }");
    EXPECT_EQ("", Check());
    Attach("DLG_B { - { - focusable } }");
    EXPECT_EQ("focusable-without-identifier DLG_B\n", Check());
    Attach("- focusable");
    EXPECT_EQ("", Check());
}

TEST_F(CHazardWatchTest, AListedPopupWithoutParent_IsTold)
{
    m_kWatch.Watch(HAZARD_POPUP_WITHOUT_PARENT);
    m_kManager.RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "");
    m_kManager.RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_LOW, 0, true, "");
    m_kManager.SetPopupCreator(POP_1, [] { return new CGUIObject; });
    m_kManager.SetPopupCreator(POP_2, [] { return new CGUIObject; });
    m_kManager.ShowPopup(POP_1);
    EXPECT_EQ("", Check());
    m_kManager.ShowPopup(POP_2);
    EXPECT_EQ("popup-without-parent POP_2\n", Check());
    m_kManager.ClosePopup(POP_1);
    EXPECT_EQ("", Check());
}

TEST_F(CHazardWatchTest, NobodyWithTheFocus_IsToldWhileThereIsADialog)
{
    m_kWatch.Watch(HAZARD_NO_FOCUS);
    EXPECT_EQ("", Check());
    Define(DLG_A, "DLG_A { OBJ_1 focusable }");
    m_kManager.CreateDialog(DLG_A, CGUIDialogManager::ODA_DELETE);
    EXPECT_EQ("", Check());
    Object(OBJ_1)->SetInvisible(true);
    EXPECT_EQ("no-focus DLG_A\n", Check());
    EXPECT_EQ("", Check());
}

// --- Hazards from the trace ----------------------------------------------------------------------------

TEST_F(CHazardWatchTest, AnIdentifierThatNoDefinitionHas_IsToldWhenItIsAskedFor)
{
    m_kWatch.Watch(HAZARD_NEVER_REGISTERED);
    m_kManager.CreateDialog(static_cast<ObjectHandle_t>(-77), CGUIDialogManager::ODA_DELETE);
    EXPECT_EQ("never-registered -77\n", m_kNotes.Take());
    m_kManager.ShowPopup(POP_1);
    EXPECT_EQ("never-registered POP_1\n", m_kNotes.Take());
}

TEST_F(CHazardWatchTest, WhatIsRegisteredAndCannotBeMade_IsNoSuchHazard)
{
    m_kWatch.Watch(HAZARD_NEVER_REGISTERED);
    m_kManager.RegisterDialogDefinition("code:none", DLG_A);
    m_kManager.RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "code:none");
    m_kManager.CreateDialog(DLG_A, CGUIDialogManager::ODA_DELETE);
    m_kManager.ShowPopup(POP_1);
    CGUITrace::LogDebug("CGUIDialogManager::CreateDialog: Createing dialog with ID 5 failed!");
    EXPECT_EQ("", m_kNotes.Take());
}

TEST_F(CHazardWatchTest, EveryEntry_GoesOnToTheSinkBefore)
{
    ClearEvents();
    CGUITrace::LogDebug("text\n");
    EXPECT_TRACE("DEBUG: text\\n");
}

// --- Hazards from hooks --------------------------------------------------------------------------------

TEST_F(CHazardWatchTest, ADialogThatTheHookMadeElsewhere_IsTold)
{
    m_kWatch.Watch(HAZARD_CREATED_ELSEWHERE);
    m_kManager.SetDialogCreator(DLG_A, [this] { return Attach("DLG_A"); });
    m_kManager.CreateDialog(DLG_A, CGUIDialogManager::ODA_INVISIBLE);
    EXPECT_EQ("", m_kNotes.Take());

    m_kManager.SetDialogCreator(DLG_B, [this] { return Attach("DLG_C"); });
    m_kManager.CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    EXPECT_EQ("created-elsewhere DLG_B\n", m_kNotes.Take());

    CGUIObject* const pkDetached = CObjectTree("DLG_D").Build();
    m_kManager.SetDialogCreator(DLG_D, [pkDetached] { return pkDetached; });
    m_kManager.CreateDialog(DLG_D, CGUIDialogManager::ODA_INVISIBLE);
    EXPECT_EQ("created-elsewhere DLG_D\n", m_kNotes.Take());
    delete pkDetached;

    m_kManager.CreateDialog(DLG_E, CGUIDialogManager::ODA_INVISIBLE);
    EXPECT_EQ("", m_kNotes.Take());
}

TEST_F(CHazardWatchTest, AHookThatChangesTheHistoryOnTheWayBack_IsTold)
{
    m_kWatch.Watch(HAZARD_HISTORY_CHANGED);
    Define(DLG_A, "DLG_A");
    Define(DLG_B, "DLG_B");
    Define(DLG_C, "DLG_C");
    m_kManager.CreateDialog(DLG_A, CGUIDialogManager::ODA_INVISIBLE);
    // Changing the history is allowed when the manager is not going back.
    m_kManager.RunOnce(HOOK_ON_DIALOG_ADDED, [this](CGUIObject*)
                       { m_kManager.CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE); });
    m_kManager.CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    EXPECT_EQ("", m_kNotes.Take());
    m_kManager.Back(false);
    m_kManager.ClearDialogHistory(1, false, false);
    EXPECT_EQ("", m_kNotes.Take());
    m_kManager.CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE);

    m_kManager.RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [this](CGUIObject*)
                       { m_kManager.CreateDialog(DLG_B, CGUIDialogManager::ODA_NOTHING); });
    m_kManager.Back(false);
    EXPECT_EQ("history-changed DLG_C\n", m_kNotes.Take());

    // If Back of the base class is called, the last hook still reveals the change.
    m_kManager.CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE);
    m_kManager.RunOnce(HOOK_ON_AFTER_DIALOG_DELETION, [this](CGUIObject*)
                       { m_kManager.CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE); });
    static_cast<CGUIDialogManager&>(m_kManager).Back(false);
    EXPECT_EQ("history-changed DLG_C\n", m_kNotes.Take());
}

TEST_F(CHazardWatchTest, AStepwiseGoBackThatRunsInACircle_IsToldBeforeItGoesOnForEver)
{
    m_kWatch.Watch(HAZARD_GOING_BACK_IN_CIRCLES);
    m_kNotes.EndCircles();
    for (const ObjectHandle_t eDialog : {DLG_A, DLG_B, DLG_C, DLG_D})
    {
        Define(eDialog, NameOfHandle(eDialog));
        m_kManager.CreateDialog(eDialog, CGUIDialogManager::ODA_INVISIBLE);
    }
    // Going back from D or C always switches to it again.
    m_kManager.RunAlways(HOOK_ON_AFTER_DIALOG_DELETION,
                         [this](CGUIObject*)
                         {
                             if (m_kManager.GetCurrentDialogID() == DLG_B)
                             {
                                 m_kManager.CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE);
                                 m_kManager.CreateDialog(DLG_D, CGUIDialogManager::ODA_INVISIBLE);
                             }
                         });
    EXPECT_THROW(m_kManager.BackToDialog(DLG_A, false, true), double);
    EXPECT_EQ("going-back-in-circles DLG_A\n", m_kNotes.Take());
}

TEST_F(CHazardWatchTest, AStepwiseGoBackOnWhichADialogCannotBeMade_IsTold)
{
    m_kWatch.Watch(HAZARD_GOING_BACK_IN_CIRCLES);
    m_kNotes.EndCircles();
    for (const ObjectHandle_t eDialog : {DLG_A, DLG_B, DLG_C})
    {
        Define(eDialog, NameOfHandle(eDialog));
        m_kManager.CreateDialog(eDialog, CGUIDialogManager::ODA_DELETE);
    }
    CodeFactory().Unregister(PathOf(DLG_B));
    EXPECT_THROW(m_kManager.BackToDialog(DLG_A, true, true), double);
    EXPECT_EQ("going-back-in-circles DLG_A\n", m_kNotes.Take());
}

TEST_F(CHazardWatchTest, AStepwiseGoBackThatEnds_IsWhatItIsWithoutAWatch)
{
    m_kWatch.Watch(HAZARD_ALL & ~HAZARD_NO_FOCUS);
    for (const ObjectHandle_t eDialog : {DLG_A, DLG_B, DLG_C, DLG_D, DLG_E})
    {
        Define(eDialog, NameOfHandle(eDialog));
        m_kManager.CreateDialog(eDialog, CGUIDialogManager::ODA_INVISIBLE);
    }
    EXPECT_TRUE(m_kManager.BackToDialog(DLG_B, false, true));
    EXPECT_EQ(DLG_B, m_kManager.GetCurrentDialogID());
    EXPECT_EQ(1U, m_kManager.GetHistoryStackSize());
    EXPECT_FALSE(m_kManager.BackToDialog(DLG_E, false, true));
    EXPECT_TRUE(m_kManager.BackToDialog(DLG_A, false, false));
    EXPECT_EQ(DLG_A, m_kManager.GetCurrentDialogID());
    EXPECT_EQ("", m_kNotes.Take());
}

TEST_F(CHazardWatchTest, AnInspectedManager_CallsTheHooksOfItsClass)
{
    m_kManager.SetHazardWatch(nullptr);
    Define(DLG_A, "DLG_A");
    Define(DLG_B, "DLG_B");
    m_kManager.SetVeto(DLG_B);
    m_kManager.RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "");
    m_kManager.SetPopupCreator(POP_1, [] { return new CGUIObject; });
    ClearEvents();
    m_kManager.CreateDialog(DLG_A, CGUIDialogManager::ODA_DELETE);
    m_kManager.CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);
    m_kManager.ShowPopup(POP_1);
    m_kManager.ClosePopup(POP_1);
    m_kManager.BackToDialog(DLG_A, true, true);
    m_kManager.CreateDialog(DLG_C, CGUIDialogManager::ODA_DELETE);
    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A)
        OnDialogDeletion(DLG_A) -> true
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
        CreatePopupImpl(POP_1) -> NO_HANDLE
        OnPopupActivation(POP_1)
        OnPopupDeactivation(POP_1)
        OnDialogDeletion(DLG_B) -> false
        OnDialogDeactivation(DLG_B)
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
        CreateDialogImpl(DLG_C, true, true) -> null
    )");
}

// --- Hazards as lines ----------------------------------------------------------------------------------

TEST_F(CHazardWatchTest, AHazard_IsALineOfTheTraceWhichIsSentAtOnce)
{
    CCollectingChannel kChannel;
    eC_Char acLine[400];
    CInspectionLink kLink(m_kManager, kChannel, acLine, sizeof(acLine));
    CHazardWatch kWatch(m_kInspector, kLink);
    kWatch.Watch(HAZARD_ALL);
    kWatch.Report(HAZARD_NO_FOCUS, DLG_A);
    for (eC_UInt uiHazard = 1; uiHazard < HAZARD_ALL; uiHazard *= 2)
    {
        kWatch.Report(static_cast<EHazard>(uiHazard), OBJ_MSGBOX_SAVEAS);
    }
    EXPECT_EQ("{\"type\":\"trace\",\"time\":0,\"level\":\"HAZARD\",\"hazard\":\"no-focus\",\"about\":{\"id\":"
              "1,\"name\":"
              "\"DLG_A\"},\"text\":\"" +
                  std::string(GetHazardSentence(HAZARD_NO_FOCUS)) + "\"}",
              SplitLines(kChannel.TakeLines()).front());
    EXPECT_EQ(9U, kChannel.GetFlushes());
    EXPECT_EQ(0U, kLink.GetDropped());
}
