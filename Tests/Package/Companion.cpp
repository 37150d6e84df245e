// SPDX-License-Identifier: MIT
// A typical outside application that uses one of the companions.

#include "Companions/GUIDialogListener.h"
#include "Companions/GUIObservedDialogManager.h"
#include "Core/Control/GUI.h"
#include "Core/GUITrace.h"

#include <cstdio>

namespace
{
const ObjectHandle_t ceHome = static_cast<ObjectHandle_t>(1);

class CHome : public CGUIDialogListener
{
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) override
    {
        return new CGUICompositeObject(&CGUI::GetInstance(), eID);
    }

    void OnDialogActivation(CGUIObject* pDialog) override
    {
        std::printf("dialog %d is shown\n", static_cast<int>(pDialog->GetID()));
    }
};
} // namespace

int main()
{
    CGUITrace::GetInstance().SetSink(nullptr);
    CGUI kRoot;
    CGUIObservedDialogManager kManager;
    CHome kHome;
    kManager.AddListener(kHome);
    return kManager.CreateDialog(ceHome, CGUIDialogManager::ODA_NOTHING) != nullptr ? 0 : 1;
}
