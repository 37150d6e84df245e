// SPDX-License-Identifier: MIT
// The sizes of the library's records, as the sizes of symbols. Nothing of this is linked into a program.

#include "Companions/GUIDialogArguments.h"
#include "Companions/GUIDialogBudget.h"
#include "Companions/GUIDialogStates.h"
#include "Companions/GUIGuard.h"
#include "Companions/GUIIdleHome.h"
#include "Companions/GUIObservedDialogManager.h"
#include "Companions/GUIPopupPolicy.h"
#include "Companions/GUIPostQueue.h"
#include "Companions/GUIRestore.h"
#include "Companions/GUIWatch.h"
#include "Core/Control/GUI.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"
#include "Loader/GUIDialogROMReader.h"
#include "TestSupport/TestAccess.h"
#include "Widgets/GUIWidgets.h"

#define RECORD(Name, ...)                                                                                    \
    extern const char Name[sizeof(__VA_ARGS__)];                                                             \
    const char Name[sizeof(__VA_ARGS__)] = {};

extern "C"
{
    RECORD(Record_DialogManager, CGUIDialogManager)
    RECORD(Record_DialogDescription, CGUITestAccess::DialogDescription_t)
    RECORD(Record_HistoryEntry, CGUITestAccess::HistoryEntry_t)
    RECORD(Record_HistoryEntryInItsList, ListNode<CGUITestAccess::HistoryEntry_t>)
    RECORD(Record_RegisteredDialog, CGUITestAccess::RegisteredDialog_t)
    RECORD(Record_RegisteredDialogInItsList, ListNode<CGUITestAccess::RegisteredDialog_t>)
    RECORD(Record_RegisteredPopup, CGUITestAccess::RegisteredPopup_t)
    RECORD(Record_RegisteredPopupInItsList, ListNode<CGUITestAccess::RegisteredPopup_t>)
    RECORD(Record_ActivePopup, CGUITestAccess::PopupDescription_t)
    RECORD(Record_ActivePopupInItsList, ListNode<CGUITestAccess::PopupDescription_t>)
    RECORD(Record_DynamicIdentifierInItsList, ListNode<int>)
    RECORD(Record_SafePointer, CSafeGUIObjectPtr)
    RECORD(Record_SafePointerInItsList, ListNode<CSafeGUIObjectPtr*>)
    RECORD(Record_List, eC_TListDoubleLinked<int>)
    RECORD(Record_Iterator, eC_TIterator<int>)
    RECORD(Record_SafeIterator, eC_TSafeIterator<int>)
    RECORD(Record_String, eC_String)
    RECORD(Record_Object, CGUIObject)
    RECORD(Record_CompositeObject, CGUICompositeObject)
    RECORD(Record_Root, CGUI)
    RECORD(Record_Timer, CGUITimer)
    RECORD(Record_TimerCallback, CGUITestAccess::AnimationCallback_t)
    RECORD(Record_Trace, CGUITrace)
    RECORD(Record_TraceRing, CGUITraceRing)
    RECORD(Record_FactoryManager, CGUIFactoryManager)
    RECORD(Record_ROMReader, CGUIDialogROMReader)
    RECORD(Record_DialogListener, CGUIDialogListener)
    RECORD(Record_ObservedDialogManager, CGUIObservedDialogManager)
    RECORD(Record_DialogArgumentsOf8Values, CGUIDialogArgumentsOf<8, 16>)
    RECORD(Record_DialogStatesOf1000Bytes, CGUIDialogStatesOf<1000>)
    RECORD(Record_DialogBudget, CGUIDialogBudget)
    RECORD(Record_PostQueueOf16Places, CGUIPostQueueOf<16>)
    RECORD(Record_PopupPolicyOf8Popups, CGUIPopupPolicyOf<8>)
    RECORD(Record_IdleHome, CGUIIdleHome)
    RECORD(Record_Guard, CGUIGuard)
    RECORD(Record_RestoreOf8Dialogs, CGUIRestoreOf<8, 4, 32>)
    RECORD(Record_WatchOf16Hooks, CGUIWatchOf<16>)
    RECORD(Record_LabelWidget, CGUILabel)
    RECORD(Record_ScreenWidget, CGUIScreen)
    RECORD(Record_SliderWidget, CGUISlider)
    RECORD(Record_ListWidget, CGUIList)
    RECORD(Record_TextFieldWidget, CGUITextField)
}
