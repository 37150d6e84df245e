#ifndef APPLICATION_APPLICATION_H
#define APPLICATION_APPLICATION_H

#include "Application/ApplicationDialogManager.h"
#include "Application/Handles.h"
#include "Core/Control/GUI.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Widgets/GUIWidgetInput.h"

// Companions, see below:
// #include "Companions/GUIDialogArguments.h"
// #include "Companions/GUIDialogBudget.h"
// #include "Companions/GUIDialogStates.h"
// #include "Companions/GUIIdleHome.h"
// #include "Companions/GUIPopupPolicy.h"
// #include "Companions/GUIPostQueue.h"

enum EKey : unsigned char
{
    KEY_NEXT, ///< moves the focus to the next button
    KEY_OK,   ///< presses the button that has the focus
    KEY_BACK  ///< one dialog back
};

/** The whole application, without what depends on a system: keys, time and a screen. */
class CApplication : public CGUIWidgetListener
{
public:
    CApplication();
    CApplication(const CApplication&) = delete;
    CApplication& operator=(const CApplication&) = delete;
    virtual ~CApplication();

    /** Shows the first dialog. @return false if it cannot be loaded; the trace says why */
    eC_Bool Start();

    /** @return false if the key had no effect */
    eC_Bool PressKey(EKey eKey);

    CApplicationDialogManager& GetManager() { return m_kManager; }

    /** @return what takes touches and keys */
    CGUIWidgetInput& GetInput() { return m_kInput; }

private:
    /** A button is pressed. */
    void OnActivated(CGUIWidget& kWidget) override;

    // In this order: the manager is created after the root and destroyed before it.
    CGUIDialogXMLReader m_kReader;
    CGUI m_kRoot;
    CApplicationDialogManager m_kManager;
    CGUIWidgetInput m_kInput;

    // What many applications need besides. Docs/Companions.md of the dialog manager says what each of them
    // does; take the slashes away from those that you use. The same page has dialogs behind a code, the
    // return after a reset, and the time that hooks take.
    // CGUIDialogArgumentsOf<8, 32> m_kArguments{m_kManager};
    // CGUIDialogStatesOf<2000> m_kStates{m_kManager, &CGUIWidget::FindState};
    // CGUIDialogBudget m_kBudget{m_kManager, 200};
    // CGUIIdleHome m_kIdleHome{m_kManager, DLG_HOME, CGUIDialogManager::ODA_DELETE, 60000};
    // CGUIPopupPolicyOf<8> m_kPopups{m_kManager};
    // CGUIPostQueueOf<16> m_kPosts;
};

#endif
