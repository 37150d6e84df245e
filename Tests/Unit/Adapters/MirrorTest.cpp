// SPDX-License-Identifier: MIT
#include "Tests/Unit/Adapters/MirrorTest.h"

#include "Tests/AllocationCounter/AllocationCounter.h"

// ---- What a commit makes ---------------------------------------------------------------------------

TEST_F(CMirrorTest, Commit_MakesTheShownWindowsWithWhatIsInThem)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1, OBJ_2});
    pkScreen->SetText("Home");
    Object(OBJ_2)->SetInvisible(true);
    AddScreen(DLG_B, {OBJ_3})->SetInvisible(true);
    EXPECT_EQ("", m_kToolkit.TakeCalls());

    Commit();

    EXPECT_EQ("create DLG_A; update DLG_A; create OBJ_1; update OBJ_1; show DLG_A; "
              "input - DLG_A -; ",
              m_kToolkit.TakeCalls());
    EXPECT_EQ("DLG_A'Home'(OBJ_1)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, Commit_WithoutChanges_CallsNothing)
{
    AddScreen(DLG_A, {OBJ_1});
    CommitQuietly();
    EXPECT_FALSE(Mirror().HasChanges());
    Commit();
    EXPECT_EQ("", m_kToolkit.TakeCalls());
}

TEST_F(CMirrorTest, WhatBecomesVisible_IsMadeInItsPlaceAmongItsSiblings)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1, OBJ_2, OBJ_3});
    Object(OBJ_2)->SetInvisible(true);
    CommitQuietly();

    Object(OBJ_2)->SetInvisible(false);
    Commit();

    EXPECT_EQ("create OBJ_2; update OBJ_2; put OBJ_2; ", m_kToolkit.TakeCalls());
    EXPECT_EQ("DLG_A(OBJ_1 OBJ_2 OBJ_3)", m_kToolkit.Picture());
    Object(OBJ_2)->SetInvisible(true);
    Commit();
    EXPECT_EQ("DLG_A(OBJ_1 OBJ_3)", m_kToolkit.Picture());
    delete pkScreen;
    Commit();
    EXPECT_EQ("", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, Change_UpdatesItsWidgetAlone)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    CommitQuietly();

    CGUIWidget::Find(Object(OBJ_1))->SetText("Go");
    EXPECT_EQ("DLG_A(OBJ_1 OBJ_2)", m_kToolkit.Picture());
    Commit();

    EXPECT_EQ("update OBJ_1; ", m_kToolkit.TakeCalls());
    EXPECT_EQ("DLG_A(OBJ_1'Go' OBJ_2)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, Areas_AreRelativeToTheNativeParent)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    auto* pkBox = new CGUIContainer(pkScreen, OBJ_1);
    pkScreen->SetPosition(2, 1);
    pkScreen->SetSize(20, 10);
    pkBox->SetPosition(3, 4);
    (new CGUILabel(pkBox, OBJ_2))->SetPosition(5, 1);
    Commit();
    EXPECT_EQ("DLG_A@2,1 20x10(OBJ_1@3,4 17x6(OBJ_2@5,1 0x1))", m_kToolkit.Picture(true));

    // What is inside does not move relative to the box; the box fills less.
    m_kToolkit.TakeCalls();
    pkScreen->SetSize(12, 10);
    Commit();
    EXPECT_EQ("update DLG_A; update OBJ_1; ", m_kToolkit.TakeCalls());
    EXPECT_EQ("DLG_A@2,1 12x10(OBJ_1@3,4 9x6(OBJ_2@5,1 0x1))", m_kToolkit.Picture(true));
}

TEST_F(CMirrorTest, Row_MovesWhatFollowsAGrowingChild)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetLayout(LAYOUT_ROW, 1);
    auto* pkLabel = new CGUILabel(pkScreen, OBJ_1);
    new CGUILabel(pkScreen, OBJ_2);
    CommitQuietly();

    pkLabel->SetText("long");
    Commit();

    EXPECT_EQ("DLG_A@0,0 40x12(OBJ_1'long'@0,0 4x1 OBJ_2@5,0 0x1)", m_kToolkit.Picture(true));
    pkScreen->SetLayout(LAYOUT_ABSOLUTE);
    Commit();
    EXPECT_EQ("DLG_A@0,0 40x12(OBJ_1'long'@0,0 4x1 OBJ_2@0,0 0x1)", m_kToolkit.Picture(true));
}

TEST_F(CMirrorTest, PlainObjectInAWindow_HasNoNativeObjectButWhatIsInItHas)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    auto* pkPlain = new CGUICompositeObject(pkScreen, OBJ_1);
    auto* pkButton = new CGUIButton(pkPlain, OBJ_2);
    Commit();
    EXPECT_EQ("DLG_A(OBJ_2)", m_kToolkit.Picture());
    pkPlain->SetInvisible(true);
    pkButton->MarkChanged();
    Commit();
    EXPECT_EQ("DLG_A", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, WidgetInAnotherParent_IsMadeAgainThere)
{
    AddScreen(DLG_A, {OBJ_1});
    CGUIScreen* pkOther = AddScreen(DLG_B, {});
    CommitQuietly();

    Object(OBJ_1)->SetParent(pkOther);
    Commit();

    EXPECT_EQ("DLG_A DLG_B(OBJ_1)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, WidgetThatLeavesADialogWhichIsDeleted_IsMadeAgain)
{
    AddScreen(DLG_A, {OBJ_1});
    CGUIScreen* pkOther = AddScreen(DLG_B, {});
    CommitQuietly();

    Object(OBJ_1)->SetParent(pkOther);
    delete Object(DLG_A);
    Commit();

    EXPECT_EQ("delete gone; create OBJ_1; update OBJ_1; input - DLG_B -; ", m_kToolkit.TakeCalls());
    EXPECT_EQ("DLG_B(OBJ_1)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, DetachedWidget_IsHiddenAndComesBack)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1, OBJ_2});
    CGUIObject* pkButton = Object(OBJ_1);
    CommitQuietly();

    pkButton->SetParent(nullptr);
    Commit();
    EXPECT_EQ("DLG_A(OBJ_2)", m_kToolkit.Picture());

    pkButton->SetParent(pkScreen);
    Commit();
    EXPECT_EQ("DLG_A(OBJ_2 OBJ_1)", m_kToolkit.Picture());

    pkScreen->SetParent(nullptr);
    Commit();
    EXPECT_EQ("", m_kToolkit.Picture());
    delete pkScreen;
    Commit();
}

TEST_F(CMirrorTest, SiblingsRaisedInOneTurn_AreOrderedAsInTheTree)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1, OBJ_2, OBJ_3, OBJ_4, OBJ_5});
    CommitQuietly();

    // The middle one of the three has the same neighbours as before.
    for (const ObjectHandle_t eRaised : {OBJ_2, OBJ_3, OBJ_4})
    {
        Object(eRaised)->SetParent(pkScreen);
    }
    Commit();

    EXPECT_EQ("put OBJ_4; put OBJ_3; put OBJ_2; ",
              [this]
              {
                  const std::string kCalls = m_kToolkit.TakeCalls();
                  return kCalls.substr(kCalls.find("put"));
              }());
    EXPECT_EQ("DLG_A(OBJ_1 OBJ_5 OBJ_2 OBJ_3 OBJ_4)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, ValuesOfNeighbours_MoveNothing)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2, OBJ_3});
    CommitQuietly();
    for (const ObjectHandle_t eChanged : {OBJ_2, OBJ_3, OBJ_1})
    {
        CGUIWidget::Find(Object(eChanged))->SetText("1");
    }
    Commit();
    EXPECT_EQ("update OBJ_2; update OBJ_3; update OBJ_1; ", m_kToolkit.TakeCalls());
}

// ---- Dialogs ---------------------------------------------------------------------------------------

TEST_F(CMirrorTest, Operations_ChangeNothingNativeBeforeTheCommit)
{
    AddScreen(DLG_A, {OBJ_1});
    AddScreen(DLG_B, {OBJ_2})->SetInvisible(true);
    Show(DLG_A);
    CommitQuietly();

    Show(DLG_B);
    Dialogs().Back(true);
    Show(DLG_B, CGUIDialogManager::ODA_DELETE);
    EXPECT_EQ("", m_kToolkit.TakeCalls());
    EXPECT_EQ("DLG_A(OBJ_1)", m_kToolkit.Picture());

    Commit();
    EXPECT_EQ("DLG_B(OBJ_2)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, KeptSwitch_HidesOneDialogAndShowsTheOther)
{
    AddScreen(DLG_A, {OBJ_1});
    AddScreen(DLG_B, {OBJ_2});
    Show(DLG_A);
    CommitQuietly();
    Show(DLG_B);
    CommitQuietly();

    Dialogs().Back(false);
    Commit();

    EXPECT_EQ("update DLG_B; update DLG_A; put DLG_A; hide DLG_B; show DLG_A; input - DLG_A OBJ_1; ",
              m_kToolkit.TakeCalls());
    EXPECT_EQ("DLG_A(OBJ_1)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, KeptSwitch_TakesNoMoreCallsBesideAThousandDialogs)
{
    AddScreen(DLG_A, {OBJ_1});
    AddScreen(DLG_B, {OBJ_2});
    for (eC_Int iDialog = 1000; iDialog < 2000; ++iDialog)
    {
        auto* pkScreen = new CGUIScreen(&Root(), static_cast<ObjectHandle_t>(iDialog));
        Commit();
        pkScreen->SetInvisible(true);
    }
    Show(DLG_A);
    Commit();
    Show(DLG_B);
    CommitQuietly();

    Dialogs().Back(false);
    Commit();

    EXPECT_EQ("update DLG_B; update DLG_A; put DLG_A; hide DLG_B; show DLG_A; input - DLG_A OBJ_1; ",
              m_kToolkit.TakeCalls());
}

TEST_F(CMirrorTest, Commits_OfKeptAndOfRebuiltDialogsTakeNoMemoryOfTheirOwn)
{
    AddScreen(DLG_A, {OBJ_1});
    CommitQuietly();
    m_kToolkit.m_bIsQuiet = true;
    m_kToolkit.m_bMayChange = true;
    for (eC_UInt uiTurn = 0; uiTurn < 10; ++uiTurn)
    {
        Object(DLG_A)->SetInvisible(uiTurn % 2 == 0);
        const CAllocationCounter kCounter;
        Mirror().Commit();
        EXPECT_EQ(0U, kCounter.GetNumber());
    }
    for (eC_UInt uiTurn = 0; uiTurn < 10; ++uiTurn)
    {
        delete Object(DLG_A);
        Mirror().Commit();
        AddScreen(DLG_A, {});
        const CAllocationCounter kCounter;
        Mirror().Commit();
        // The native object of the fake.
        EXPECT_EQ(1U, kCounter.GetNumber());
    }
    EXPECT_EQ("DLG_A", m_kToolkit.Picture());
}

namespace
{
/** Has all native objects already. */
class CReadyToolkit final : public CGUINativeToolkit
{
public:
    void Measure(const CGUIWidget&, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override
    {
        iWidthOUT = 1;
        iHeightOUT = 1;
    }
    void* Create(CGUIMirrored&) override { return this; }
    void* Build(CGUIMirrored&, CGUIWindowBuilder& kBuilder) override { return kBuilder.Build(this); }
    void Update(CGUIMirrored&, const GUIArea_t&) override {}
    void SetShown(CGUIMirrored&, eC_Bool) override {}
    void PutBelow(CGUIMirrored&, CGUIMirrored*) override {}
    void Delete(CGUIMirrored&) override {}
    void SetInput(CGUIMirrored*, CGUIMirrored*, CGUIMirrored*) override {}
};

/** Builds a window with two parts. */
class CReadyBuilder final : public CGUIWindowBuilder
{
public:
    CGUIMirror* m_pkMirror = nullptr;

    void* Build(void* pNativeParent) override
    {
        m_pkMirror->AddPart(pNativeParent, OBJ_1);
        m_pkMirror->AddPart(pNativeParent, OBJ_2);
        return pNativeParent;
    }
};
} // namespace

TEST_F(CMirrorTest, SwitchesAndPopupsThatAreBuiltAgain_TakeNoMemoryOfTheirOwn)
{
    CReadyToolkit kToolkit;
    CReadyBuilder kBuilder;
    CGUIMirror kMirror(kToolkit, 40, 12);
    kBuilder.m_pkMirror = &kMirror;
    CGUIMirroredManager kDialogs(kMirror);
    for (const ObjectHandle_t eID : {DLG_A, DLG_B, POP_1})
    {
        kMirror.AddBuilder(eID, kBuilder);
    }
    kDialogs.RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "");
    CGUITraceSink* const pkSink = CGUITrace::GetInstance().GetSink();
    CGUITrace::GetInstance().SetSink(nullptr);
    const auto SwitchAndBack = [&]
    {
        kDialogs.CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);
        kDialogs.ShowPopup(POP_1);
        kMirror.Commit();
        kDialogs.ClosePopup(POP_1);
        kDialogs.Back(true);
        kMirror.Commit();
    };
    kDialogs.CreateDialog(DLG_A, CGUIDialogManager::ODA_DELETE);
    SwitchAndBack();
    {
        const CAllocationCounter kCounter;
        for (eC_UInt uiTurn = 0; uiTurn < 10; ++uiTurn)
        {
            SwitchAndBack();
        }
        // A build that keeps no spare memory keeps none of these objects either.
        EXPECT_EQ(eC_SpareBlocks::cuiMostPerSize == 0, kCounter.GetNumber() != 0);
    }
    kDialogs.ClearDialogHistory(0, true, true);
    CGUITrace::GetInstance().SetSink(pkSink);
    EXPECT_EQ(nullptr, Object(DLG_A));
}

TEST_F(CMirrorTest, MemoryOfBuiltWindows_GoesBackWithTheLastMirror)
{
    m_pkMirrored.reset();
    m_pkMirror.reset();
    delete AddScreen(DLG_A, {OBJ_1, OBJ_2}); // the index of identifiers has grown
    const HeapUse_t kBefore = GetHeapUse();
    {
        CReadyToolkit kToolkit;
        CReadyBuilder kBuilder;
        CGUIMirror kMirror(kToolkit, 40, 12);
        kBuilder.m_pkMirror = &kMirror;
        kMirror.AddBuilder(DLG_A, kBuilder);
        delete kMirror.BuildDialog(DLG_A);
    }
    EXPECT_EQ(kBefore.m_uiBytes, GetHeapUse().m_uiBytes);
}

TEST_F(CMirrorTest, DeletedDialog_IsDeletedOnceWithWhatIsInIt)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1, OBJ_2});
    new CGUIButton(new CGUIContainer(pkScreen, OBJ_3), OBJ_4);
    CommitQuietly();

    delete pkScreen;
    EXPECT_EQ("DLG_A(OBJ_1 OBJ_2 OBJ_3(OBJ_4))", m_kToolkit.Picture());
    Commit();

    EXPECT_EQ("delete gone; input - - -; ", m_kToolkit.TakeCalls());
    EXPECT_EQ(0, m_kToolkit.m_iNOFNatives);
}

TEST_F(CMirrorTest, DeletedWidget_IsDeletedAlone)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    CommitQuietly();
    delete Object(OBJ_1);
    Commit();
    EXPECT_EQ("DLG_A(OBJ_2)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, DialogDeletedAndMadeAgainInOneTurn_IsANewNativeObject)
{
    AddScreen(DLG_A, {OBJ_1});
    Commit();
    delete Object(DLG_A);
    AddScreen(DLG_A, {OBJ_2});
    m_kToolkit.TakeCalls();
    Commit();
    EXPECT_EQ("DLG_A(OBJ_2)", m_kToolkit.Picture());
    EXPECT_EQ(2, m_kToolkit.m_iNOFNatives);
}

TEST_F(CMirrorTest, Mirror_MayGoBeforeTheDialogs)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    CommitQuietly();
    m_pkMirrored.reset();
    m_kToolkit.m_bMayChange = true;
    m_pkMirror.reset();
    EXPECT_EQ(0, m_kToolkit.m_iNOFNatives);
}

TEST_F(CMirrorTest, DeleteAll_DeletesWhatIsThereAndTheNextCommitMakesWhatChanges)
{
    AddScreen(DLG_A, {OBJ_1});
    CommitQuietly();
    m_kToolkit.m_bMayChange = true;
    Mirror().DeleteAll();
    EXPECT_EQ(0, m_kToolkit.m_iNOFNatives);
    AddScreen(DLG_B, {OBJ_2});
    Commit();
    EXPECT_EQ("DLG_B(OBJ_2)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, Root_MayGoBeforeTheMirror)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    CommitQuietly();
    m_pkMirrored.reset();
    DestroyManager();
    DestroyRoot();
    EXPECT_EQ("DLG_A(OBJ_1 OBJ_2)", m_kToolkit.Picture());
    m_kToolkit.m_bMayChange = true;
    m_pkMirror.reset();
    EXPECT_EQ(0, m_kToolkit.m_iNOFNatives);
}

TEST_F(CMirrorTest, Mirror_ThatComesLater_MakesWhatIsThere)
{
    AddScreen(DLG_A, {OBJ_1});
    CFakeToolkit kToolkit;
    CGUIMirror kMirror(kToolkit, 40, 12);
    kToolkit.m_pkMirror = &kMirror;
    kToolkit.m_bMayChange = true;
    kMirror.Commit();
    EXPECT_EQ("DLG_A(OBJ_1)", kToolkit.Picture());
    delete Object(DLG_A);
    kMirror.Commit();
}

TEST_F(CMirrorTest, NativeHandlerThatDestroysWhatIsBeingShown_TakesEffectInTheNextCommit)
{
    AddScreen(DLG_A, {OBJ_1});
    AddScreen(DLG_B, {OBJ_2});
    m_kToolkit.m_kOnCall = [this](const std::string& kCall)
    {
        if (kCall == "show DLG_A")
        {
            m_kToolkit.m_kOnCall = nullptr;
            delete Object(DLG_A);
            delete Object(DLG_B);
            AddScreen(DLG_C, {OBJ_3});
            Mirror().Commit();
        }
    };
    Commit();
    EXPECT_TRUE(Mirror().HasChanges());
    Commit();
    EXPECT_EQ("DLG_C(OBJ_3)", m_kToolkit.Picture());
    EXPECT_EQ(2, m_kToolkit.m_iNOFNatives);
}

// ---- Popups ----------------------------------------------------------------------------------------

TEST_F(CMirrorTest, ModalPopup_LiesAboveAndTakesTheInput)
{
    AddScreen(DLG_A, {OBJ_1});
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetModal(true);
    pkPopup->SetInvisible(true);
    new CGUIButton(pkPopup, OBJ_2);
    Show(DLG_A);
    SetFocus(OBJ_1);
    Commit();
    EXPECT_EQ("- DLG_A OBJ_1", m_kToolkit.InputText());

    Dialogs().ShowPopup(POP_1);
    Commit();
    EXPECT_EQ("DLG_A(OBJ_1) POP_1(OBJ_2)", m_kToolkit.Picture());
    EXPECT_EQ("POP_1 POP_1 -", m_kToolkit.InputText());

    pkPopup->SetModal(false);
    Commit();
    EXPECT_EQ("- DLG_A OBJ_1", m_kToolkit.InputText());

    Dialogs().ClosePopup(POP_1);
    Commit();
    EXPECT_EQ("DLG_A(OBJ_1)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, PopupsOfOnePriority_LieInTheOrderOfTheArbitrationAboveANewDialog)
{
    for (const ObjectHandle_t ePopup : {POP_1, POP_2})
    {
        Dialogs().RegisterPopupDefinition(ePopup, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
        (new CGUIPopup(&Root(), ePopup))->SetInvisible(true);
    }
    AddScreen(DLG_A, {});
    AddScreen(DLG_B, {})->SetInvisible(true);
    Show(DLG_A);
    Dialogs().ShowPopup(POP_1);
    Dialogs().ShowPopup(POP_2);
    Commit();
    EXPECT_EQ("DLG_A POP_1 POP_2", m_kToolkit.Picture());

    Show(DLG_B, CGUIDialogManager::ODA_NOTHING);
    Commit();
    EXPECT_EQ("DLG_A DLG_B POP_1 POP_2", m_kToolkit.Picture());
}

// ---- Focus -----------------------------------------------------------------------------------------

TEST_F(CMirrorTest, Focus_IsMovedByTheCommit)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    Commit();
    SetFocus(OBJ_2);
    EXPECT_EQ("- DLG_A -", m_kToolkit.InputText());
    Commit();
    EXPECT_EQ("- DLG_A OBJ_2", m_kToolkit.InputText());
}

TEST_F(CMirrorTest, GetInput_SaysWhileADialogIsShownWhereInputWillGo)
{
    AddScreen(DLG_A, {OBJ_1});
    AddScreen(DLG_B, {OBJ_2})->SetInvisible(true);
    Show(DLG_A);
    SetFocus(OBJ_1);
    Commit();
    std::string kInput;
    m_kToolkit.m_kOnCall = [this, &kInput](const std::string& kCall)
    {
        if (kCall == "show DLG_B")
        {
            const CGUIMirror::Input_t kSeen = m_pkMirror->GetInput();
            kInput = kSeen.m_pkModal == nullptr ? "-" : "modal";
            for (const CGUIMirrored* pkMirrored : {kSeen.m_pkWindow, kSeen.m_pkFocussed})
            {
                kInput += " " + NameOfHandle(pkMirrored->GetWidget()->GetObject().GetID());
            }
        }
    };
    Show(DLG_B);
    Commit();
    EXPECT_EQ("- DLG_B OBJ_2", kInput);
    EXPECT_EQ(kInput, m_kToolkit.InputText());
}

TEST_F(CMirrorTest, NativeFocus_IsWhatTheHistoryRemembers)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    AddScreen(DLG_B, {OBJ_3})->SetInvisible(true);
    Show(DLG_A);
    Commit();

    Mirror().OnNativeFocus(*NativeOf(OBJ_2)->m_pkMirrored);
    EXPECT_EQ(Object(OBJ_2), Focus());
    Show(DLG_B);
    Commit();
    Dialogs().Back(false);
    Commit();

    EXPECT_EQ("- DLG_A OBJ_2", m_kToolkit.InputText());
}

TEST_F(CMirrorTest, NativeFocusBelowAModalPopup_IsMovedBack)
{
    AddScreen(DLG_A, {OBJ_1});
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetModal(true);
    new CGUIButton(pkPopup, OBJ_2);
    SetFocus(OBJ_2);
    CommitQuietly();

    Mirror().OnNativeFocus(*NativeOf(OBJ_1)->m_pkMirrored);

    EXPECT_EQ(Object(OBJ_2), Focus());
    Commit();
    EXPECT_EQ("input POP_1 POP_1 OBJ_2; ", m_kToolkit.TakeCalls());
}

TEST_F(CMirrorTest, NativeFocusDuringACommit_IsIgnored)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    SetFocus(OBJ_1);
    CommitQuietly();
    AddScreen(DLG_B, {})->SetInvisible(true);
    m_kToolkit.m_kOnCall = [this](const std::string&)
    { Mirror().OnNativeFocus(*NativeOf(OBJ_2)->m_pkMirrored); };
    CGUIWidget::Find(Object(OBJ_2))->SetText("1");
    Commit();
    EXPECT_EQ(Object(OBJ_1), Focus());
}

TEST_F(CMirrorTest, NativeFocusInABuilder_IsIgnored)
{
    AddScreen(DLG_A, {OBJ_1});
    SetFocus(OBJ_1);
    CFakeBuilder kBuilder(m_kToolkit, "native B", {OBJ_2});
    kBuilder.m_kInside = [this] { Mirror().OnNativeFocus(*Mirror().Find(Object(OBJ_2))); };
    Mirror().AddBuilder(DLG_B, kBuilder);
    Mirror().BuildDialog(DLG_B);
    EXPECT_EQ(Object(OBJ_1), Focus());
}

TEST_F(CMirrorTest, NativeFocusOfADestroyedWidget_IsIgnored)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    Commit();
    CFakeNative* pkNative = NativeOf(OBJ_1);
    delete Object(OBJ_1);
    Mirror().OnNativeFocus(*pkNative->m_pkMirrored);
    EXPECT_EQ(nullptr, Focus());
    Commit();
}

// ---- Windows of the application's own native objects -----------------------------------------------

TEST_F(CMirrorTest, Builder_MakesTheDialogWhenItIsObtained)
{
    CFakeBuilder kBuilder(m_kToolkit, "native A", {OBJ_1, OBJ_2});
    EXPECT_TRUE(Mirror().AddBuilder(DLG_A, kBuilder));
    EXPECT_FALSE(Mirror().AddBuilder(DLG_A, kBuilder));

    Show(DLG_A);
    EXPECT_EQ("build DLG_A; ", m_kToolkit.TakeCalls());
    EXPECT_EQ("", m_kToolkit.Picture());
    Commit();

    EXPECT_EQ("put DLG_A; show DLG_A; input - native A OBJ_1; ", m_kToolkit.TakeCalls());
    EXPECT_EQ("native A(OBJ_1 OBJ_2)", m_kToolkit.Picture());
    EXPECT_TRUE(Mirror().RemoveBuilder(DLG_A));
    EXPECT_FALSE(Mirror().RemoveBuilder(DLG_A));
    EXPECT_EQ(nullptr, Mirror().BuildDialog(DLG_A));
}

TEST_F(CMirrorTest, Builders_AreFoundByIdentifierInAnyOrder)
{
    std::vector<std::unique_ptr<CFakeBuilder>> kBuilders;
    for (const eC_Int iID : {7, 3, 9, 1, 5, 8, 2, 6, 4, 100, 50})
    {
        kBuilders.push_back(std::make_unique<CFakeBuilder>(m_kToolkit, "", std::vector<ObjectHandle_t>()));
        EXPECT_TRUE(Mirror().AddBuilder(static_cast<ObjectHandle_t>(iID), *kBuilders.back()));
    }
    EXPECT_TRUE(Mirror().RemoveBuilder(static_cast<ObjectHandle_t>(5)));
    for (eC_Int iID = 1; iID <= 9; ++iID)
    {
        EXPECT_EQ(iID != 5, Mirror().HasBuilder(static_cast<ObjectHandle_t>(iID))) << iID;
    }
    EXPECT_TRUE(Mirror().HasBuilder(static_cast<ObjectHandle_t>(100)));
    EXPECT_FALSE(Mirror().HasBuilder(static_cast<ObjectHandle_t>(101)));
}

TEST_F(CMirrorTest, Back_ToADialogThatIsBuiltAgain_RestoresTheNativeFocus)
{
    CFakeBuilder kFirst(m_kToolkit, "native A", {OBJ_1, OBJ_2});
    CFakeBuilder kSecond(m_kToolkit, "native B", {OBJ_3});
    Mirror().AddBuilder(DLG_A, kFirst);
    Mirror().AddBuilder(DLG_B, kSecond);
    Show(DLG_A);
    Commit();
    Mirror().OnNativeFocus(*NativeOf(OBJ_2)->m_pkMirrored);

    Show(DLG_B, CGUIDialogManager::ODA_DELETE);
    Commit();
    EXPECT_EQ("native B(OBJ_3)", m_kToolkit.Picture());
    EXPECT_EQ(2, m_kToolkit.m_iNOFNatives);
    Dialogs().Back(true);
    Commit();

    EXPECT_EQ("native A(OBJ_1 OBJ_2)", m_kToolkit.Picture());
    EXPECT_EQ("- native A OBJ_2", m_kToolkit.InputText());
    EXPECT_EQ(3, m_kToolkit.m_iNOFNatives);
}

TEST_F(CMirrorTest, BuiltPopup_TakesTheInputUnlessThatIsSwitchedOff)
{
    CFakeBuilder kDialog(m_kToolkit, "native A", {OBJ_1});
    CFakeBuilder kPopup(m_kToolkit, "native P", {OBJ_2});
    Mirror().AddBuilder(DLG_A, kDialog);
    Mirror().AddBuilder(POP_1, kPopup);
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "");
    Show(DLG_A);
    SetFocus(OBJ_1);
    CGUIObject* pkPopup = Dialogs().ShowPopup(POP_1);
    Commit();
    EXPECT_EQ("native A(OBJ_1) native P(OBJ_2)", m_kToolkit.Picture());
    EXPECT_EQ("native P native P -", m_kToolkit.InputText());

    static_cast<CGUIPopup*>(pkPopup)->SetModal(false);
    Commit();
    EXPECT_EQ("- native A OBJ_1", m_kToolkit.InputText());

    Dialogs().ClosePopup(POP_1);
    Commit();
    EXPECT_EQ("native A(OBJ_1)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, BuiltPopupOfALowerPriority_StaysInvisible)
{
    CFakeBuilder kHigh(m_kToolkit, "high", {});
    CFakeBuilder kLow(m_kToolkit, "low", {});
    Mirror().AddBuilder(POP_1, kHigh);
    Mirror().AddBuilder(POP_2, kLow);
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "");
    Dialogs().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_LOW, 0, true, "");
    Dialogs().ShowPopup(POP_1);
    Dialogs().ShowPopup(POP_2);
    Commit();
    EXPECT_EQ("high", m_kToolkit.Picture());
    Dialogs().ClosePopup(POP_1);
    Commit();
    EXPECT_EQ("low", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, BuilderThatReturnsNull_IsAnErrorAndTheCurrentDialogStays)
{
    CFakeBuilder kFirst(m_kToolkit, "native A", {OBJ_1});
    CFakeBuilder kFails(m_kToolkit, "native B", {OBJ_2});
    kFails.m_bFails = true;
    Mirror().AddBuilder(DLG_A, kFirst);
    Mirror().AddBuilder(DLG_B, kFails);
    Show(DLG_A);
    Commit();
    ClearEvents();

    EXPECT_EQ(nullptr, Dialogs().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE));

    EXPECT_EQ(
        "DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 2.\\n\n"
        "WARNING: CGUIMirror::BuildWindow: The builder of DLG_B returned null.\\n\n"
        "ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 2 failed!\\nThe current dialog "
        "stays active.\\n\n",
        TakeLog());
    Commit();
    EXPECT_EQ("native A(OBJ_1)", m_kToolkit.Picture());
    EXPECT_EQ(nullptr, Object(DLG_B));
}

TEST_F(CMirrorTest, BuilderThatThrows_LeavesNothing)
{
    CFakeBuilder kFails(m_kToolkit, "native B", {});
    kFails.m_kInside = [] { throw 1; };
    Mirror().AddBuilder(DLG_B, kFails);
    EXPECT_EQ(nullptr, Dialogs().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE));
    EXPECT_EQ(nullptr, Object(DLG_B));
    Commit();
    EXPECT_EQ(nullptr, Mirror().AddPart(this, OBJ_1));
    // The half-built native object is the builder's.
    m_kToolkit.Destroy(m_kToolkit.m_kDisplay.m_apkChildren.front());
}

TEST_F(CMirrorTest, BuilderThatSwitchesToAnotherDialog_BuildsBoth)
{
    CFakeBuilder kOuter(m_kToolkit, "outer", {OBJ_1});
    CFakeBuilder kInner(m_kToolkit, "inner", {OBJ_2});
    Mirror().AddBuilder(DLG_A, kOuter);
    Mirror().AddBuilder(DLG_B, kInner);
    kOuter.m_kInside = [this]
    {
        Show(DLG_B);
        Mirror().Commit();
    };
    Show(DLG_A);
    Commit();
    EXPECT_EQ("outer(OBJ_1)", m_kToolkit.Picture());
    Dialogs().Back(false);
    Commit();
    EXPECT_EQ("inner(OBJ_2)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, BuilderThatDestroysItsOwnWindow_BuildsNothing)
{
    CFakeBuilder kBuilder(m_kToolkit, "native A", {OBJ_1});
    Mirror().AddBuilder(DLG_A, kBuilder);
    kBuilder.m_kInside = [this] { delete Object(DLG_A); };
    EXPECT_EQ(nullptr, Dialogs().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING));
    Commit();
    EXPECT_EQ(0, m_kToolkit.m_iNOFNatives);
}

TEST_F(CMirrorTest, PartOutsideABuilderOrNamedTwice_IsAnError)
{
    CFakeBuilder kBuilder(m_kToolkit, "native A", {OBJ_1, OBJ_1});
    Mirror().AddBuilder(DLG_A, kBuilder);
    Show(DLG_A);
    EXPECT_EQ(nullptr, Mirror().AddPart(this, OBJ_2));
    const std::string kErrors = TakeErrors();
    EXPECT_EQ("ERROR: CGUIMirror::AddPart: The window has an object with ID OBJ_1 already.\\n\n"
              "ERROR: CGUIMirror::AddPart: The native object with ID OBJ_2 is not named by a builder.\\n\n",
              kErrors);
    Commit();
}

// ---- What goes wrong -------------------------------------------------------------------------------

TEST_F(CMirrorTest, ElementThatTheToolkitCannotMake_IsOneErrorAndTheRestIsThere)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1});
    new CGUIButton(new CGUIContainer(pkScreen, OBJ_2), OBJ_3);
    new CGUIButton(pkScreen, OBJ_4);
    m_kToolkit.m_eUnknown = OBJ_2;
    Commit();
    EXPECT_EQ("DLG_A(OBJ_1 OBJ_4)", m_kToolkit.Picture());
    EXPECT_EQ(
        "ERROR: CGUIMirror::Commit: No native object could be made for the object with ID OBJ_2.\\nIt and "
        "everything in it stay invisible.\\n\n",
        TakeErrors());

    CGUIWidget::Find(Object(OBJ_2))->MarkChanged();
    CGUIWidget::Find(Object(OBJ_3))->MarkChanged();
    Commit();
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CMirrorTest, DialogThatIsNoWidget_IsOneErrorAndTheOthersAreThere)
{
    auto* pkPlain = new CGUICompositeObject(&Root(), DLG_A);
    new CGUIButton(pkPlain, OBJ_1);
    new CGUIButton(pkPlain, OBJ_2);
    AddScreen(DLG_B, {OBJ_3});
    Commit();
    EXPECT_EQ("DLG_B(OBJ_3)", m_kToolkit.Picture());
    EXPECT_EQ("ERROR: CGUIMirror::Commit: The dialog with ID DLG_A is no widget and stays invisible.\\nUse a "
              "Screen, Popup or Container.\\n\n",
              TakeErrors());
}

TEST_F(CMirrorTest, NativeWindowDeletedBySomethingElse_IsOneErrorAndMadeAgain)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    SetFocus(OBJ_2);
    CommitQuietly();

    m_kToolkit.Destroy(NativeOf(DLG_A));
    EXPECT_EQ("ERROR: CGUIMirror::OnNativeDeleted: The native object with ID DLG_A was deleted by something "
              "else.\\n\n",
              TakeErrors());
    Commit();

    EXPECT_EQ("DLG_A(OBJ_1 OBJ_2)", m_kToolkit.Picture());
    EXPECT_EQ("- DLG_A OBJ_2", m_kToolkit.InputText());
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CMirrorTest, NativeWindowDeletedBySomethingElseWithoutMemory_IsOneErrorAndMadeAgain)
{
    AddScreen(DLG_A, {OBJ_1});
    CommitQuietly();
    {
        const CAllocationFailure kFailure(0, CAllocationFailure::ONE);
        Mirror().OnNativeDeleted(*Mirror().Find(Object(DLG_A)));
    }
    m_kToolkit.Destroy(m_kToolkit.m_kDisplay.m_apkChildren.front());
    EXPECT_EQ("ERROR: CGUIMirror::OnNativeDeleted: A native object was deleted by something else.\\n\n",
              TakeErrors());
    Commit();
    EXPECT_EQ("DLG_A(OBJ_1)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, NativeWidgetDeletedBySomethingElse_IsMadeAgainInItsPlace)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2, OBJ_3});
    CommitQuietly();
    m_kToolkit.Destroy(NativeOf(OBJ_2));
    Commit();
    EXPECT_EQ("DLG_A(OBJ_1 OBJ_2 OBJ_3)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, NativeWindowOfABuilderDeletedBySomethingElse_IsBuiltAgain)
{
    CFakeBuilder kBuilder(m_kToolkit, "native A", {OBJ_1, OBJ_2});
    Mirror().AddBuilder(DLG_A, kBuilder);
    Show(DLG_A);
    SetFocus(OBJ_2);
    CommitQuietly();
    const CGUIObject* pkPart = Object(OBJ_2);

    m_kToolkit.Destroy(NativeOf(DLG_A));
    m_kToolkit.m_bMayChange = true;
    Commit();

    EXPECT_EQ("native A(OBJ_1 OBJ_2)", m_kToolkit.Picture());
    EXPECT_EQ("- native A OBJ_2", m_kToolkit.InputText());
    EXPECT_EQ(pkPart, Object(OBJ_2));
    EXPECT_EQ("ERROR: CGUIMirror::OnNativeDeleted: The native object with ID DLG_A was deleted by something "
              "else.\\n\n",
              TakeErrors());

    // If it cannot be built again it stays away, and the application goes on.
    kBuilder.m_bFails = true;
    m_kToolkit.Destroy(NativeOf(DLG_A));
    TakeErrors();
    Commit();
    EXPECT_EQ(
        "ERROR: CGUIMirror::Commit: No native object could be made for the object with ID DLG_A.\\nIt and "
        "everything in it stay invisible.\\n\n",
        TakeErrors());
    EXPECT_EQ("", m_kToolkit.Picture());
    AddScreen(DLG_B, {OBJ_3});
    Commit();
    EXPECT_EQ("DLG_B(OBJ_3)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, NativePartDeletedBySomethingElse_RefusesTheFocus)
{
    CFakeBuilder kBuilder(m_kToolkit, "native A", {OBJ_1, OBJ_2});
    Mirror().AddBuilder(DLG_A, kBuilder);
    Show(DLG_A);
    SetFocus(OBJ_2);
    CommitQuietly();

    m_kToolkit.Destroy(NativeOf(OBJ_2));
    Commit();

    EXPECT_EQ("native A(OBJ_1)", m_kToolkit.Picture());
    EXPECT_EQ("- native A -", m_kToolkit.InputText());
    EXPECT_FALSE(Object(OBJ_2)->RequestFocus());
    Dialogs().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Commit();
    EXPECT_EQ("native A(OBJ_1)", m_kToolkit.Picture());
}

TEST_F(CMirrorTest, NativeWindowOfADeletedDialogDeletedBySomethingElse_IsNoError)
{
    AddScreen(DLG_A, {OBJ_1});
    Commit();
    CFakeNative* pkNative = NativeOf(DLG_A);
    delete Object(DLG_A);
    m_kToolkit.Destroy(pkNative);
    Commit();
    EXPECT_EQ("", TakeErrors());
    EXPECT_EQ(0, m_kToolkit.m_iNOFNatives);
}

// ---- Everything at once ----------------------------------------------------------------------------

namespace
{
class CRandom
{
public:
    eC_UInt Below(eC_UInt uiEnd)
    {
        m_uiState = m_uiState * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<eC_UInt>(m_uiState >> 33U) % uiEnd;
    }

private:
    unsigned long long m_uiState = 1;
};

/** @return what a picture of the tree looks like */
std::string PictureOfTree(const CGUICompositeObject& kParent)
{
    std::string kPicture;
    for (const CGUIObject* pkChild = kParent.GetFirstChild(); pkChild != nullptr;
         pkChild = pkChild->GetNextSibling())
    {
        if (pkChild->IsInvisible())
        {
            continue;
        }
        const CGUIWidget* pkWidget = CGUIWidget::Find(pkChild);
        const std::string kBelow = pkChild->IsCompositeObject()
                                       ? PictureOfTree(static_cast<const CGUICompositeObject&>(*pkChild))
                                       : "";
        const std::string kText = pkWidget->GetText();
        kPicture += (kPicture.empty() ? "" : " ") + NameOfHandle(pkChild->GetID()) +
                    (kText.empty() ? "" : "'" + kText + "'") + (kBelow.empty() ? "" : "(" + kBelow + ")");
    }
    return kPicture;
}
} // namespace

TEST_F(CMirrorTest, NativeObjects_AreAsTheTreeAfterEachOfManyRandomChanges)
{
    CRandom kRandom;
    const std::vector<ObjectHandle_t> aeDialogs = {DLG_A, DLG_B, DLG_C, DLG_D, DLG_E};
    const std::vector<ObjectHandle_t> aeObjects = {OBJ_1, OBJ_2, OBJ_3, OBJ_4, OBJ_5, OBJ_6};
    for (eC_UInt uiTurn = 0; uiTurn < 5000; ++uiTurn)
    {
        for (eC_UInt uiChange = kRandom.Below(4) + 1; uiChange > 0; --uiChange)
        {
            const ObjectHandle_t eDialog = aeDialogs[kRandom.Below(5)];
            const ObjectHandle_t eObject = aeObjects[kRandom.Below(6)];
            CGUIObject* pkDialog = Object(eDialog);
            CGUIObject* pkObject = Object(eObject);
            auto* pkParent = static_cast<CGUICompositeObject*>(pkDialog);
            switch (kRandom.Below(9))
            {
            case 0:
                if (pkDialog == nullptr)
                {
                    (new CGUIScreen(&Root(), eDialog))
                        ->SetLayout(kRandom.Below(2) == 0 ? LAYOUT_ROW : LAYOUT_ABSOLUTE);
                }
                break;
            case 1:
                delete (kRandom.Below(3) == 0 ? pkDialog : pkObject);
                break;
            case 2:
                if (pkParent != nullptr && pkObject == nullptr)
                {
                    if (eObject == OBJ_1)
                    {
                        new CGUIContainer(pkParent, eObject);
                    }
                    else
                    {
                        new CGUIButton(pkParent, eObject);
                    }
                }
                break;
            case 3:
                if (pkParent != nullptr && pkObject != nullptr)
                {
                    pkObject->SetParent(pkParent);
                }
                break;
            case 4:
                if (pkObject != nullptr)
                {
                    pkObject->SetInvisible(kRandom.Below(2) == 0);
                }
                break;
            case 5:
                if (pkObject != nullptr)
                {
                    CGUIWidget::Find(pkObject)->SetText(kRandom.Below(2) == 0 ? "1" : "22");
                }
                break;
            case 6:
                if (pkObject != nullptr && Object(OBJ_1) != nullptr && eObject != OBJ_1)
                {
                    pkObject->SetParent(static_cast<CGUICompositeObject*>(Object(OBJ_1)));
                }
                break;
            case 7:
                if (pkDialog != nullptr)
                {
                    Dialogs().CreateDialog(eDialog, kRandom.Below(2) == 0 ? CGUIDialogManager::ODA_INVISIBLE
                                                                          : CGUIDialogManager::ODA_DELETE);
                }
                break;
            default:
                if (kRandom.Below(8) == 0 && NativeOf(eObject) != nullptr)
                {
                    m_kToolkit.Destroy(NativeOf(eObject));
                }
                break;
            }
        }
        Commit();
        ASSERT_EQ(PictureOfTree(Root()), m_kToolkit.Picture()) << "turn " << uiTurn;
        ClearEvents();
        m_kToolkit.TakeCalls();
    }
    Dialogs().ClearDialogHistory(0, true, true);
}
