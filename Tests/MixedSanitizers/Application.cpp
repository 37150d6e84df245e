// SPDX-License-Identifier: MIT
// An application that shares spare blocks with the library. It is linked in four ways, both parts with and
// without the address sanitizer, and must succeed in all of them. With an argument it reads an element that
// no longer exists.

#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITrace.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_TList_doubleLinked.h"

#include <cstdlib>

namespace
{
/** An element type of the application. Its nodes have the same size as those of the library's lists. */
struct Own_t
{
    int m_iValue = 0;
};

class CManager : public CGUIDialogManager
{
private:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) const override
    {
        return new CGUICompositeObject(&CGUI::GetInstance(), eID);
    }
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override { return new CGUICompositeObject(nullptr, eID); }
};

/** Makes the application and the library reuse blocks that the other one freed, and more than are kept. */
void ShareBlocks()
{
    CManager kManager;
    kManager.RegisterPopupDefinition(OBJ_MSGBOX_SAVE, CGUIDialogManager::PRIO_HIGH, 1000, true, eC_String());
    eC_TListDoubleLinked<Own_t> kOwn;
    eC_TListDoubleLinked<int> kNumbers;
    for (int iRound = 0; iRound < 10; ++iRound)
    {
        for (int i = 0; i < 4 * iRound; ++i)
        {
            kOwn.Add(Own_t());
            kNumbers.AddAtEnd(i);
        }
        kManager.CreateDialog(OBJ_MSGBOX_OK, CGUIDialogManager::ODA_DELETE_ALL);
        kManager.CreateDialog(OBJ_MSGBOX_CANCEL, CGUIDialogManager::ODA_DELETE);
        kManager.ShowPopup(OBJ_MSGBOX_SAVE);
        const eC_String kText = eC_String("a text that needs an array, number ") + eC_String(iRound);
        kManager.ClosePopup(OBJ_MSGBOX_SAVE);
        // The library reads the application's pointers whenever an object is destroyed.
        const CSafeGUIObjectPtr kFirst(kManager.GetCurrentDialog());
        const CSafeGUIObjectPtr kSecond(kFirst);
        kManager.Back(true);
        kOwn.RemoveAll();
        kNumbers.RemoveAll();
    }
}

int ReadWhatIsGone()
{
    eC_TListDoubleLinked<Own_t> kOwn;
    kOwn.Add(Own_t());
    const volatile Own_t& kElement = *kOwn.GetBegin();
    kOwn.RemoveAll();
    return kElement.m_iValue;
}
} // namespace

int main(int iArguments, char**) // NOLINT(bugprone-exception-escape): without memory it may end this way
{
    CGUITrace::GetInstance().SetSink(nullptr);
    CGUI kRoot;
    ShareBlocks();
    return iArguments > 1 ? ReadWhatIsGone() : EXIT_SUCCESS;
}
