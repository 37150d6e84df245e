#ifndef APPLICATION_APPLICATIONDIALOGMANAGER_H
#define APPLICATION_APPLICATIONDIALOGMANAGER_H

#include "Companions/GUIObservedDialogManager.h"

/** The application's dialog manager. Core/GUIDialogManager.h has the table of all hooks. Its base class lets
 *  companions listen to them, too.
 */
class CApplicationDialogManager : public CGUIObservedDialogManager
{
public:
    eC_UInt GetBrightness() const { return m_uiBrightness; }

    /** Sets what the dialogs show. @param uiBrightness percent, 0 to 100 */
    void SetBrightness(eC_UInt uiBrightness);

protected:
    /** Fills in the values of the dialog: its file has none, and they may have changed while it was hidden.
     */
    void OnDialogActivation(CGUIObject* pDialog) override;

private:
    void ShowBrightness(const CGUIObject* pkDialog) const;

    eC_UInt m_uiBrightness = 50;
};

#endif
