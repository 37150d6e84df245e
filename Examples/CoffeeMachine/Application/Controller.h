#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_CONTROLLER_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_CONTROLLER_H

/** @file
 *  What the machine does when a button is pressed or something happens in it. Here the dialog manager is
 *  used: a newcomer reads OnButton first.
 */

#include "Application/Machine.h"
#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

class CCoffeeMachineDialogManager;
class CGUIObject;

/** The keys below the screen. */
enum EKey : unsigned char
{
    KEY_NEXT,   ///< moves the focus to the next button
    KEY_OK,     ///< presses the button that has the focus
    KEY_BACK,   ///< one dialog back
    KEY_HOME,   ///< back to the home screen
    KEY_SERVICE ///< the technician's key, behind the cover
};

class CController : public CMachineObserver
{
public:
    /** @param kMachine, kManager not owned; both outlive the controller */
    CController(CMachine& kMachine, CCoffeeMachineDialogManager& kManager);
    CController(const CController&) = delete;
    CController& operator=(const CController&) = delete;
    virtual ~CController();

    /** Registers all definitions and shows the home screen.
     *  @return false when the home screen could not be loaded
     */
    eC_Bool Start();

    /** Touches a button on the screen.
     *  @return false, with nothing done, when it is not on the screen or lies behind a popup that lets no
     *          touch through
     */
    eC_Bool Touch(ObjectHandle_t eButton);

    /** Presses a key. While a popup lets no touch through only the technician's key works. */
    void PressKey(EKey eKey);

    void OnMachineChanged() override;
    void OnCupReady() override;

private:
    void OnButton(ObjectHandle_t eButton);

    void GoBack();
    void GoHome();
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
    void ChangeHomeLayout();
    void SwitchReminder();

    CGUIObject* FindTouchable(ObjectHandle_t eButton) const;
    void TakeCup();
    void ShowWhile(eC_Bool bCondition, ObjectHandle_t ePopupID);
    eC_Bool IsReminderOn() const;

    CMachine& m_kMachine;
    CCoffeeMachineDialogManager& m_kManager;
    eC_Bool m_bBeansWereLow;
    eC_Bool m_bDescalingWasDue;
};

#endif
