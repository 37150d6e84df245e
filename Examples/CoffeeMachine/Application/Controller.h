// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_CONTROLLER_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_CONTROLLER_H

/** @file
 *  What the machine does when somebody presses a button or something happens in it. This is where the dialog
 *  manager is used: read OnButton first.
 */

#include "Application/Machine.h"
#include "Companions/GUIDialogArguments.h"
#include "Companions/GUIGuard.h"
#include "Companions/GUIIdleHome.h"
#include "Companions/GUIRestore.h"
#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"
#include "Widgets/GUIWidgetInput.h"

class CCoffeeMachineDialogManager;
class CGUIObject;

/** The keys below the screen. */
enum EKey : unsigned char
{
    KEY_NEXT,   ///< moves the focus to the next button
    KEY_OK,     ///< presses the button that has the focus
    KEY_BACK,   ///< one dialog back
    KEY_HOME,   ///< back to the home screen
    KEY_SERVICE ///< the technician's key, under the cover
};

/** Knows what every button and key does. With the companions of the manager it guards the service dialog,
 *  goes home when nobody is there, hands the selected drink to its dialog, and restores the screen after a
 *  power failure.
 */
class CController : public CMachineObserver,
                    public CGUIWidgetListener,
                    private CGUIDialogListener,
                    private CGUIRestoreArguments
{
public:
    /** @param kMachine, kManager, kStorage not owned; all must outlive the controller */
    CController(CMachine& kMachine, CCoffeeMachineDialogManager& kManager, CGUIRestoreStorage& kStorage);
    CController(const CController&) = delete;
    CController& operator=(const CController&) = delete;
    ~CController() override;

    /** Registers all definitions, and shows what was shown when the power failed, otherwise the home screen.
     *  @return false if the home screen could not be loaded
     */
    eC_Bool Start();

    /** Touches a button on the screen.
     *  @return false, with nothing done, if it is not on the screen or a popup blocks the touch
     */
    eC_Bool Touch(ObjectHandle_t eButton);

    /** Presses a key. While a popup blocks touches only the technician's key works. */
    void PressKey(EKey eKey);

    /** Hides what must not be seen without the service code. Called before the screen is drawn. */
    void Settle() { m_kGuard.Settle(); }

    static constexpr eC_UInt cuiServiceCode = 3121; ///< what a technician enters

    /** @return the digits of the service code that have been entered so far, 0 for none */
    eC_UInt GetEnteredCode() const { return m_uiCode; }

    /** @return what passes touches and keys on to this controller */
    CGUIWidgetInput& GetInput() { return m_kInput; }

    void OnActivated(CGUIWidget& kWidget) override;
    void OnMachineChanged() override;
    void OnCupReady() override;

private:
    void OnDialogActivation(CGUIObject* pDialog) override;
    eC_UInt SaveArgument(ObjectHandle_t eID, eC_UInt uiLevel, unsigned char* puiBytes,
                         eC_UInt uiSize) override;
    CGUIObject* CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                             const unsigned char* puiBytes, eC_UInt uiSize) override;

    void OnButton(ObjectHandle_t eButton);

    void GoBack();
    void GoHome();
    void StartOverIfEmpty();
    void StartOver();

    void ShowDrink(EDrink eDrink);
    void Brew();
    void ChooseLanguage(ELanguage eLanguage);
    void ChangeStrength();
    void ChangeMessageTime();
    void StartCleaning();
    void ShowNextCleaningStep();
    void LeaveCleaning();
    void ShowAbout();
    void EnterService();
    void EnterDigit(eC_UInt uiDigit);
    void ChangeHomeLayout();
    void SwitchReminder();

    CGUIObject* FindInWindows(ObjectHandle_t eButton) const;
    void TakeCup();
    void ShowWhile(eC_Bool bCondition, ObjectHandle_t ePopupID);
    eC_Bool IsReminderOn() const;

    CMachine& m_kMachine;
    CCoffeeMachineDialogManager& m_kManager;
    CGUIWidgetInput m_kInput;
    CGUIDialogArgumentsOf<4, sizeof(EDrink)> m_kArguments;
    CGUIGuard m_kGuard;
    CGUIIdleHome m_kIdleHome;
    CGUIRestoreOf<8, 2, 4> m_kRestore; // at most eight dialogs, two popups and four bytes of arguments
    eC_UInt m_uiCode;
    eC_Bool m_bBeansWereLow;
    eC_Bool m_bDescalingWasDue;
};

#endif
