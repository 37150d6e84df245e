// SPDX-License-Identifier: MIT
#include "Application/Controller.h"

#include "Application/BuiltDialogs.h"
#include "Application/CoffeeMachineDialogManager.h"
#include "Application/Definitions.h"
#include "Application/Handles.h"
#include "Core/Control/GUI.h"

namespace
{
constexpr eC_UInt cuiShortMessageTime = 2000; ///< milliseconds
constexpr eC_UInt cuiLongMessageTime = 4000;  ///< milliseconds
constexpr eC_UInt cuiIdleTime = 20000;        ///< milliseconds without input until the home screen is shown
constexpr eC_UInt cuiSaveTime = 500;          ///< milliseconds from a change until it is saved
constexpr eC_UInt cuiFirstCode = 1000;        ///< the smallest number with all digits of a code

const ObjectHandle_t caeServiceDialogs[] = {DLG_SERVICE};

// Somebody waits for a cup, or has a wet hand in the machine.
const ObjectHandle_t caeBusy[] = {DLG_BREWING,        DLG_CLEANING_TABLET, DLG_CLEANING_RINSE,
                                  DLG_CLEANING_EMPTY, POP_WATER_EMPTY,     POP_TRAY_MISSING};

// The hints that a user may not have read yet. The sensors report all else again.
const ObjectHandle_t caeHints[] = {POP_BEANS_LOW, POP_DESCALE};

template <typename T, std::size_t uiSize>
constexpr eC_UInt CountOf(const T (&)[uiSize])
{
    return uiSize;
}
} // namespace

CController::CController(CMachine& kMachine, CCoffeeMachineDialogManager& kManager,
                         CGUIRestoreStorage& kStorage)
    : m_kMachine(kMachine),
      m_kManager(kManager),
      m_kInput(*this),
      m_kArguments(kManager),
      m_kGuard(kManager, DLG_CODE, caeServiceDialogs, CountOf(caeServiceDialogs)),
      m_kIdleHome(kManager, DLG_HOME, CGUIDialogManager::ODA_DELETE, cuiIdleTime),
      m_kRestore(kManager, kStorage, DLG_HOME, cuiApplicationNumber, cuiContentsNumber),
      m_uiCode(0),
      m_bBeansWereLow(false),
      m_bDescalingWasDue(false)
{
    m_kGuard.SetEnd(CGUIGuard::END_WITH_GROUP);
    m_kIdleHome.SetHoldOffs(caeBusy, CountOf(caeBusy));
    m_kRestore.SetPopups(caeHints, CountOf(caeHints));
    m_kRestore.SetArguments(this);
    m_kManager.AddListener(*this);
    m_kMachine.SetObserver(this);
}

CController::~CController()
{
    m_kMachine.SetObserver(nullptr);
}

eC_Bool CController::Start()
{
    RegisterDefinitions(m_kManager);
    m_kRestore.Restore();
    if (m_kManager.GetCurrentDialogID() == DLG_BREWING)
    {
        // The power failed while a cup was being made. It is lost.
        GoBack();
    }
    m_kRestore.Start(cuiSaveTime);
    m_kIdleHome.Start();
    return m_kManager.GetCurrentDialogID() != NO_HANDLE;
}

eC_Bool CController::Touch(ObjectHandle_t eButton)
{
    m_kIdleHome.NoteInput();
    // A touch moves the focus like a key, so that it is restored here on the way back.
    return m_kInput.Touch(FindInWindows(eButton));
}

void CController::PressKey(EKey eKey)
{
    m_kIdleHome.NoteInput();
    if (eKey != KEY_SERVICE && CGUIWidgetInput::GetModalWindow() != nullptr)
    {
        return;
    }
    switch (eKey)
    {
    case KEY_NEXT:
        m_kInput.PressKey(GUIKEY_NEXT);
        break;
    case KEY_OK:
        m_kInput.PressKey(GUIKEY_ACTIVATE);
        break;
    case KEY_BACK:
        GoBack();
        break;
    case KEY_HOME:
        GoHome();
        break;
    case KEY_SERVICE:
        EnterService();
        break;
    }
    StartOverIfEmpty();
    m_kGuard.Settle();
}

void CController::OnActivated(CGUIWidget& kWidget)
{
    m_kIdleHome.NoteInput();
    OnButton(kWidget.GetObject().GetID());
    StartOverIfEmpty();
    m_kGuard.Settle();
}

void CController::OnButton(ObjectHandle_t eButton)
{
    switch (static_cast<eC_Int>(eButton))
    {
    case BTN_BACK:
        GoBack();
        break;

    // The home screen stays in memory, hidden: users return to it all the time.
    case BTN_DRINKS:
        m_kManager.CreateDialog(DLG_DRINKS, CGUIDialogManager::ODA_INVISIBLE);
        break;
    case BTN_SETTINGS:
        m_kManager.CreateDialog(DLG_SETTINGS, CGUIDialogManager::ODA_INVISIBLE);
        break;
    case BTN_CLEANING:
        StartCleaning();
        break;
    case BTN_ABOUT:
        ShowAbout();
        break;

    case BTN_ESPRESSO:
        ShowDrink(DRINK_ESPRESSO);
        break;
    case BTN_COFFEE:
        ShowDrink(DRINK_COFFEE);
        break;
    case BTN_CAPPUCCINO:
        ShowDrink(DRINK_CAPPUCCINO);
        break;
    case BTN_TEA_WATER:
        ShowDrink(DRINK_TEA_WATER);
        break;
    case BTN_STRENGTH:
        ChangeStrength();
        break;
    case BTN_BREW:
        Brew();
        break;
    case BTN_STOP:
        m_kMachine.StopBrewing();
        GoBack();
        break;

    // The settings are rarely needed again: they are deleted, and loaded on the way back.
    case BTN_LANGUAGE:
        m_kManager.CreateDialog(DLG_LANGUAGE, CGUIDialogManager::ODA_DELETE);
        break;
    case BTN_MESSAGE_TIME:
        ChangeMessageTime();
        break;
    case BTN_ENGLISH:
        ChooseLanguage(LANGUAGE_ENGLISH);
        break;
    case BTN_GERMAN:
        ChooseLanguage(LANGUAGE_GERMAN);
        break;

    case BTN_CLEANING_NEXT:
        ShowNextCleaningStep();
        break;
    case BTN_CLEANING_RESTART:
        // Straight to the first step: the steps between are not shown again.
        m_kManager.BackToDialog(DLG_CLEANING_TABLET, true, false);
        break;
    case BTN_HOME:
        LeaveCleaning();
        break;

    case BTN_DIGIT_1:
    case BTN_DIGIT_2:
    case BTN_DIGIT_3:
        EnterDigit(static_cast<eC_UInt>(eButton - BTN_DIGIT_1) + 1);
        break;
    case BTN_HOME_LAYOUT:
        ChangeHomeLayout();
        break;
    case BTN_REMINDER:
        SwitchReminder();
        break;

    case BTN_BEANS_OK:
        m_kManager.ClosePopup(POP_BEANS_LOW);
        break;
    case BTN_DESCALE_NOW:
        m_kManager.ClosePopup(POP_DESCALE);
        StartCleaning();
        break;

    default:
        break;
    }
}

// ---- Getting around --------------------------------------------------------------------------------

void CController::GoBack()
{
    TakeCup();
    m_kManager.Back(true);
}

void CController::GoHome()
{
    TakeCup();
    if (m_kManager.ContainsDialog(DLG_HOME, false))
    {
        m_kManager.BackToDialog(DLG_HOME, true, false);
    }
    else if (m_kManager.GetCurrentDialogID() != DLG_HOME)
    {
        StartOver();
    }
}

void CController::StartOverIfEmpty()
{
    if (m_kManager.TakeScreenIsEmpty())
    {
        StartOver();
    }
}

void CController::StartOver()
{
    m_kManager.ClearDialogHistory(0, true, true);
    m_kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_NOTHING);
}

// ---- A cup of coffee -------------------------------------------------------------------------------

void CController::ShowDrink(EDrink eDrink)
{
    // A small window over the list, which stays visible.
    m_kArguments.CreateDialog(DLG_DRINK_DETAIL, CGUIDialogManager::ODA_NOTHING, eDrink);
}

void CController::OnDialogActivation(CGUIObject* pDialog)
{
    // Whoever is asked for the code begins anew.
    m_uiCode = pDialog->GetID() == DLG_CODE ? 0 : m_uiCode;
    // However the dialog of a drink becomes current, forth, back or after a power failure, its drink is
    // selected.
    const EDrink* const peDrink =
        pDialog->GetID() == DLG_DRINK_DETAIL ? m_kArguments.GetArgument<EDrink>() : nullptr;
    if (peDrink != nullptr)
    {
        m_kMachine.SelectDrink(*peDrink);
    }
}

eC_UInt CController::SaveArgument(ObjectHandle_t eID, eC_UInt uiLevel, unsigned char* puiBytes,
                                  eC_UInt uiSize)
{
    static_cast<void>(uiLevel); // The dialog of a drink leads only to the cup: it is never there twice.
    const EDrink* const peDrink = eID == DLG_DRINK_DETAIL ? m_kArguments.GetArgument<EDrink>(eID) : nullptr;
    if (peDrink == nullptr)
    {
        return 0;
    }
    if (uiSize > 0)
    {
        puiBytes[0] = *peDrink;
    }
    return 1;
}

CGUIObject* CController::CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                                      const unsigned char* puiBytes, eC_UInt uiSize)
{
    if (uiSize == 1 && puiBytes[0] <= DRINK_TEA_WATER)
    {
        return m_kArguments.CreateDialog(eID, eAction, static_cast<EDrink>(puiBytes[0]));
    }
    return m_kManager.CreateDialog(eID, eAction);
}

void CController::ChangeStrength()
{
    m_kMachine.SetNextStrength();
    m_kManager.ShowPopup(POP_SAVED);
}

void CController::Brew()
{
    if (!m_kMachine.IsBrewing() && !m_kMachine.CanStartBrewing())
    {
        m_kManager.ShowPopup(POP_BEANS_LOW);
        return;
    }
    // The list below the window must disappear, too.
    m_kManager.CreateDialog(DLG_BREWING, CGUIDialogManager::ODA_INVISIBLE_ALL);
    m_kMachine.StartBrewing();
}

void CController::OnCupReady()
{
    const ObjectHandle_t eCurrent = m_kManager.GetCurrentDialogID();
    if (eCurrent != DLG_BREWING && eCurrent != DLG_SERVICE && eCurrent != DLG_CODE)
    {
        m_kManager.CreateDialog(DLG_BREWING, CGUIDialogManager::ODA_INVISIBLE);
    }
}

void CController::TakeCup()
{
    if (m_kManager.GetCurrentDialogID() == DLG_BREWING && m_kMachine.GetBrewingState() == BREWING_DONE)
    {
        m_kMachine.StopBrewing();
    }
}

// ---- Settings, cleaning, about, service ------------------------------------------------------------

void CController::ChooseLanguage(ELanguage eLanguage)
{
    m_kMachine.SetLanguage(eLanguage);
    CGUIWidget::MarkTexts();
    m_kManager.ShowPopup(POP_SAVED);
    GoBack();
}

void CController::ChangeMessageTime()
{
    eC_UInt uiTime = 0;
    m_kManager.GetRegisteredPopupDisplayTime(POP_SAVED, uiTime);
    m_kManager.UpdateRegisteredPopupDisplayTime(
        POP_SAVED, uiTime == cuiShortMessageTime ? cuiLongMessageTime : cuiShortMessageTime);
    m_kManager.ShowPopup(POP_SAVED);
}

void CController::StartCleaning()
{
    // The reminder can appear while the guide is already open.
    if (!m_kManager.ContainsDialog(DLG_CLEANING_TABLET, true))
    {
        m_kManager.CreateDialog(DLG_CLEANING_TABLET, CGUIDialogManager::ODA_INVISIBLE);
    }
}

void CController::ShowNextCleaningStep()
{
    switch (static_cast<eC_Int>(m_kManager.GetCurrentDialogID()))
    {
    case DLG_CLEANING_TABLET:
        m_kManager.CreateDialog(DLG_CLEANING_RINSE, CGUIDialogManager::ODA_INVISIBLE);
        break;
    case DLG_CLEANING_RINSE:
        m_kManager.CreateDialog(DLG_CLEANING_EMPTY, CGUIDialogManager::ODA_INVISIBLE);
        break;
    default:
        // Done. Wherever the guide was started, only the oldest dialog remains, normally the home screen.
        m_kMachine.SetCups(0);
        m_kManager.ClearDialogHistory(1, true, true);
        break;
    }
}

void CController::LeaveCleaning()
{
    // One step at a time: on the way back the rinsing step becomes active again, which opens the valve and
    // flushes out the cleaner. All steps are in memory, so none can be missing.
    if (m_kManager.ContainsDialog(DLG_CLEANING_TABLET, false))
    {
        m_kManager.BackToDialog(DLG_CLEANING_TABLET, true, true);
    }
    GoHome();
}

void CController::ShowAbout()
{
    // A small window over the home screen, which stays visible.
    m_kManager.AddDialog(BuildAboutDialog(), CGUIDialogManager::ODA_NOTHING, true);
}

void CController::EnterService()
{
    if (m_kManager.ContainsDialog(DLG_SERVICE, false))
    {
        m_kManager.BackToDialog(DLG_SERVICE, true, false);
    }
    else if (m_kManager.GetCurrentDialogID() != DLG_SERVICE)
    {
        // The technician may stay for a long time, so everything that can be loaded again is deleted.
        m_kGuard.Show(DLG_SERVICE, CGUIDialogManager::ODA_DELETE_ALL);
    }
}

void CController::EnterDigit(eC_UInt uiDigit)
{
    m_uiCode = m_uiCode * 10 + uiDigit;
    if (m_uiCode < cuiFirstCode)
    {
        return;
    }
    const eC_Bool bIsRight = m_uiCode == cuiServiceCode;
    m_uiCode = 0;
    if (bIsRight)
    {
        m_kGuard.Grant();
    }
    else
    {
        m_kGuard.Refuse();
    }
}

void CController::ChangeHomeLayout()
{
    const eC_String kPath = m_kManager.GetRegisteredPath(DLG_HOME);
    const eC_String kUsualPath(cakDialogDefinitions[0].m_pcPath);
    const eC_String kNewPath = kPath == kUsualPath ? eC_String(cpcSimpleHomePath) : kUsualPath;
    m_kManager.UnregisterDialogDefinition(DLG_HOME);
    m_kManager.RegisterDialogDefinition(kNewPath, DLG_HOME);

    // The home screen in memory has the old layout. It and the way back to it are removed, so that the next
    // one is loaded from the new file.
    m_kManager.ClearDialogHistory(0, true, false);
    delete CGUI::GetInstance().GetObjectByID(DLG_HOME, false);
    m_kManager.ShowPopup(POP_SAVED);
}

void CController::SwitchReminder()
{
    if (IsReminderOn())
    {
        m_kManager.UnregisterPopupDefinition(POP_DESCALE);
    }
    else
    {
        const PopupDefinition_t& kPopup = GetPopupDefinition(POP_DESCALE);
        m_kManager.RegisterPopupDefinition(kPopup.m_ePopupID, kPopup.m_ePriority, kPopup.m_uiDisplayTime,
                                           kPopup.m_bDeleteOnClose, kPopup.m_pcPath);
    }
    m_kManager.ShowPopup(POP_SAVED);
}

eC_Bool CController::IsReminderOn() const
{
    CGUIDialogManager::RegisteredPopup_t kPopup;
    return m_kManager.GetRegisteredPopupInfo(POP_DESCALE, kPopup);
}

// ---- What the machine reports ----------------------------------------------------------------------

void CController::OnMachineChanged()
{
    ShowWhile(m_kMachine.IsWaterEmpty(), POP_WATER_EMPTY);
    ShowWhile(m_kMachine.IsTrayMissing(), POP_TRAY_MISSING);

    // The hints appear once, when the level is passed; the user may close them before fixing the cause.
    const eC_Bool bBeansAreLow = m_kMachine.IsBeansLow();
    if (bBeansAreLow != m_bBeansWereLow)
    {
        ShowWhile(bBeansAreLow, POP_BEANS_LOW);
    }
    m_bBeansWereLow = bBeansAreLow;

    const eC_Bool bDescalingIsDue = m_kMachine.IsDescalingDue();
    if (bDescalingIsDue != m_bDescalingWasDue && IsReminderOn())
    {
        ShowWhile(bDescalingIsDue, POP_DESCALE);
    }
    m_bDescalingWasDue = bDescalingIsDue;
}

void CController::ShowWhile(eC_Bool bCondition, ObjectHandle_t ePopupID)
{
    if (bCondition && !m_kManager.IsPopupInPopupList(ePopupID))
    {
        m_kManager.ShowPopup(ePopupID);
    }
    else if (!bCondition)
    {
        m_kManager.ClosePopup(ePopupID);
    }
}

// ---- Touch and focus -------------------------------------------------------------------------------

CGUIObject* CController::FindInWindows(ObjectHandle_t eButton) const
{
    // Several dialogs have a button with the same identifier, so the search only covers what a finger can
    // reach.
    for (const PopupDefinition_t& kPopup : cakPopupDefinitions)
    {
        if (m_kManager.IsPopupDisplayed(kPopup.m_ePopupID))
        {
            const CGUIObject* pkPopup = CGUI::GetInstance().GetObjectByID(kPopup.m_ePopupID, true);
            CGUIObject* pkButton = pkPopup->GetObjectByID(eButton, true);
            if (pkButton != nullptr)
            {
                return pkButton;
            }
        }
    }

    const CGUIObject* pkDialog = m_kManager.GetCurrentDialog();
    return pkDialog != nullptr ? pkDialog->GetObjectByID(eButton, true) : nullptr;
}
