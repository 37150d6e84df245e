// SPDX-License-Identifier: MIT
// An application whose dynamic memory consists of fixed blocks. It prints what each operation of the dialog
// manager allocates, first while the application starts and again in the long run, and how many blocks were
// needed in total.

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITrace.h"
#include "Core/Utils/eC_SpareBlocks.h"
#include "Examples/FixedBlocks/FixedBlocks.h"
#include "GUIConfig/GUIObjectHandleResource.h"

#include <cstdio>
#include <cstdlib>

#define FIXEDBLOCKS_HANDLES(HANDLE)                                                                          \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(DLG_SETTINGS)                                                                                     \
    HANDLE(DLG_LANGUAGE)                                                                                     \
    HANDLE(POPUP_SAVED)                                                                                      \
    HANDLE(OBJ_BUTTON)
GUI_DECLARE_OBJECT_HANDLES(FIXEDBLOCKS_HANDLES)
GUI_DEFINE_OBJECT_HANDLES(FIXEDBLOCKS_HANDLES)

namespace
{
constexpr int ciObjectsPerDialog = 10;

using Manager_t = CGUIDialogManager;

/** Builds a dialog that is never deleted. */
void BuildDialog(ObjectHandle_t eID)
{
    CGUICompositeObject* pkDialog = new CGUICompositeObject(&CGUI::GetInstance(), eID);
    pkDialog->SetInvisible(true);
    CGUIObject* pkButton = new CGUIObject(pkDialog, OBJ_BUTTON);
    pkButton->SetFocusable(true);
    for (int iObject = 1; iObject < ciObjectsPerDialog; ++iObject)
    {
        new CGUIObject(pkDialog);
    }
}

/** Prints the allocations since a moment, and by how much the memory in use has grown.
 *  @return the number of allocations
 */
std::size_t PrintSince(const Requests_t& kBefore, const char* pcName)
{
    const Requests_t kNow = GetRequests();
    const std::size_t uiNumber = kNow.m_uiNumber - kBefore.m_uiNumber;
    std::printf("%-44s %11u %11u %11d\n", pcName, static_cast<unsigned>(uiNumber),
                static_cast<unsigned>(kNow.m_uiBytes - kBefore.m_uiBytes),
                static_cast<int>(kNow.m_uiBytesHeld) - static_cast<int>(kBefore.m_uiBytesHeld));
    return uiNumber;
}

/** Prints what an operation allocates without spare blocks, and what it keeps. */
template <typename Operation_t>
void PrintKept(const char* pcName, Operation_t fnOperation)
{
    eC_SpareBlocks::ReleaseAll();
    const Requests_t kBefore = GetRequests();
    fnOperation();
    eC_SpareBlocks::ReleaseAll();
    PrintSince(kBefore, pcName);
}

/** Prints what an operation allocates.
 *  @return the number of allocations
 */
template <typename Operation_t>
std::size_t Print(const char* pcName, Operation_t fnOperation)
{
    const Requests_t kBefore = GetRequests();
    fnOperation();
    return PrintSince(kBefore, pcName);
}

void PrintHeading(const char* pcHeading)
{
    std::printf("\n%-44s %11s %11s %11s\n", pcHeading, "allocations", "bytes", "bytes held");
}

void PrintWhatIsKept(Manager_t& kManager)
{
    PrintHeading("The first time, with nothing spare");
    PrintKept("a dialog registered",
              [&] { kManager.RegisterDialogDefinition("Dialogs/Settings.xml", DLG_SETTINGS); });
    PrintKept("a popup registered",
              [&] {
                  kManager.RegisterPopupDefinition(POPUP_SAVED, Manager_t::PRIO_MEDIUM, 0, false,
                                                   "Dialogs/Saved.xml");
              });
    kManager.CreateDialog(DLG_HOME, Manager_t::ODA_INVISIBLE);
    PrintKept("a switch, with its history entry",
              [&] { kManager.CreateDialog(DLG_SETTINGS, Manager_t::ODA_INVISIBLE); });
    PrintKept("the next one, with another history entry",
              [&] { kManager.CreateDialog(DLG_LANGUAGE, Manager_t::ODA_INVISIBLE); });
    PrintKept("a popup shown", [&] { kManager.ShowPopup(POPUP_SAVED); });
    kManager.ClosePopup(POPUP_SAVED);
    kManager.BackToDialog(DLG_HOME, false, true);
    PrintKept("a dynamic identifier", [&] { kManager.CreateDynamicObjectID(); });
}

/** @return the number of allocations of all operations that switch dialogs */
std::size_t PrintWhatOperationsAsk(Manager_t& kManager)
{
    CGUIObject* pkSettings = CGUI::GetInstance().GetObjectByID(DLG_SETTINGS, false);

    kManager.CreateDialog(DLG_SETTINGS, Manager_t::ODA_INVISIBLE);
    kManager.Back(false);
    kManager.ShowPopup(POPUP_SAVED);
    kManager.ClosePopup(POPUP_SAVED);
    PrintHeading("Each operation, when all has been done before");
    std::size_t uiNumber = 0;
    uiNumber += Print("CreateDialog", [&] { kManager.CreateDialog(DLG_SETTINGS, Manager_t::ODA_INVISIBLE); });
    uiNumber += Print("Back", [&] { kManager.Back(false); });
    uiNumber += Print("AddDialog", [&] { kManager.AddDialog(pkSettings, Manager_t::ODA_INVISIBLE, true); });
    uiNumber += Print("BackToDialog", [&] { kManager.BackToDialog(DLG_HOME, false, false); });
    kManager.CreateDialog(DLG_SETTINGS, Manager_t::ODA_INVISIBLE);
    uiNumber += Print("ClearDialogHistory", [&] { kManager.ClearDialogHistory(0, false, false); });
    kManager.CreateDialog(DLG_HOME, Manager_t::ODA_INVISIBLE);
    Print("ShowPopup", [&] { kManager.ShowPopup(POPUP_SAVED); });
    Print("ShowPopup again", [&] { kManager.ShowPopup(POPUP_SAVED); });
    Print("ClosePopup", [&] { kManager.ClosePopup(POPUP_SAVED); });

    Print("GetRegisteredPath", [&] { kManager.GetRegisteredPath(DLG_SETTINGS); });
    Print("GetRegisteredDialogID", [&] { kManager.GetRegisteredDialogID("Dialogs/Saved.xml"); });
    Print("UnregisterDialogDefinition", [&] { kManager.UnregisterDialogDefinition(DLG_SETTINGS); });
    Print("RegisterDialogDefinition",
          [&] { kManager.RegisterDialogDefinition("Dialogs/Settings.xml", DLG_SETTINGS); });
    Print("UpdateRegisteredPopupDisplayTime",
          [&] { kManager.UpdateRegisteredPopupDisplayTime(POPUP_SAVED, 500); });
    Print("UnregisterPopupDefinition", [&] { kManager.UnregisterPopupDefinition(POPUP_SAVED); });
    Print("RegisterPopupDefinition",
          [&] {
              kManager.RegisterPopupDefinition(POPUP_SAVED, Manager_t::PRIO_MEDIUM, 0, false,
                                               "Dialogs/Saved.xml");
          });
    Print("CreateDynamicObjectID", [&] { kManager.CreateDynamicObjectID(); });
    return uiNumber;
}

void PrintPools()
{
    std::printf("\n%-20s %11s %11s\n", "blocks of bytes", "there are", "most used");
    for (std::size_t uiPool = 0; uiPool < cuiNOFPools; ++uiPool)
    {
        const PoolUse_t kUse = GetPoolUse(uiPool);
        std::printf("%-20u %11u %11u\n", static_cast<unsigned>(kUse.m_uiBlockSize),
                    static_cast<unsigned>(kUse.m_uiBlocks), static_cast<unsigned>(kUse.m_uiMostUsed));
    }
}
} // namespace

int main()
{
    // A device keeps its newest messages in memory.
    static eC_Char s_acMessages[1024];
    static CGUITraceRing s_kRing(s_acMessages, sizeof(s_acMessages));
    CGUITrace::GetInstance().SetSink(&s_kRing);

    std::size_t uiNumber = 0;
    {
        CGUI kRoot;
        BuildDialog(DLG_HOME);
        BuildDialog(DLG_SETTINGS);
        BuildDialog(DLG_LANGUAGE);
        BuildDialog(POPUP_SAVED);
        Manager_t kManager;
        PrintWhatIsKept(kManager);
        uiNumber = PrintWhatOperationsAsk(kManager);
    }
    PrintPools();
    CGUITrace::GetInstance().SetSink(nullptr);
    if (uiNumber != 0)
    {
        std::fputs("FixedBlocks: switching to and fro should need no memory\n", stderr);
    }
    return uiNumber == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
