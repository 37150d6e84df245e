// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcOnLastDialogDeletionOutcomes[] = {
    R"(
OnLastDialogDeletion | Back
nothing | done | ended | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() {} OnAfterDialogDeletion(C, none) | current none; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- P1; focus none; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after INVISIBLE; tree A- P3- D P1; focus O4; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after INVISIBLE_ALL; tree A- P3- D P1; focus O4; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after DELETE; tree A- P3- D P1; focus O4; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after DELETE_ALL; tree A- P3- D P1; focus O4; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after NOTHING; tree A- P3- D P1; focus O4; objects 7
CreateDialog(current, DELETE) | null | = | .. { CreateDialogImpl(none, true, true) -> null !CreateDialog } .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after INVISIBLE kept; tree P3- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } OnAfterDialogDeletion(C, F) | current F after INVISIBLE kept; tree A- P3- F P1; focus O6; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } OnAfterDialogDeletion(C, F) | current F after DELETE_ALL kept; tree A- P3- F P1; focus O6; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- P1; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- P1; objects 3
ClearDialogHistory(1, delete, current) | ended | = | = | =
GetCurrentDialogID | NO_HANDLE | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | false | = | = | =
GetLastDialogID | DLG_A | = | = | =
RegisterDialogDefinition(H) | true | = | = | definitions + dialog: H "code:E"
UnregisterDialogDefinition(A) | true | = | = | definitions - dialog: A "code:A"
UnregisterDialogDefinition(B) | false | = | = | =
GetRegisteredPath(C) | code:DLG_C | = | = | =
GetRegisteredDialogID(path of C) | DLG_C | = | = | =
CreateDynamicObjectID | 29 | = | = | dynamic 1
RegisterPopupDefinition(P7) | true | = | = | definitions + popup: P7 prio 9, 0 ms, delete on close, ""
UnregisterPopupDefinition(P1) | true | = | = | definitions - popup: P1 prio 5, 3000 ms, hide on close, "code:P1"
UnregisterPopupDefinition(P2) | true | = | = | definitions - popup: P2 prio 7, 1000 ms, delete on close, "code:P2"
UpdateRegisteredPopupDisplayTime(P1) | true | = | = | definitions - popup: P1 prio 5, 3000 ms, hide on close, "code:P1" / + popup: P1 prio 5, 500 ms, hide on close, "code:P1"
UpdateRegisteredPopupDisplayTime(P2) | true | = | = | definitions - popup: P2 prio 7, 1000 ms, delete on close, "code:P2" / + popup: P2 prio 7, 500 ms, delete on close, "code:P2"
GetRegisteredPopupDisplayTime(P1) | true 3000 | = | = | =
GetRegisteredPopupInfo(P1) | true POP_1 prio 5, 3000 ms, hide on close, "code:POP_1" | = | = | =
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- P1- P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- P1- P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- P1- P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- P6- P5- P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups P3 hidden; tree A- P3-; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups none; tree none; objects 1
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- O9
detach the object | null | = | = | =
throw an int | - | = | .. throws int 7 !Back | =
throw a std::exception | - | = | .. throws deliberate failure !Back | =
)",
    R"(
OnLastDialogDeletion | BackToDialog, direct
nothing | done | true | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) CreateDialogImpl(A, false, false) -> null !BackToDialog OnLastDialogDeletion() {} | current none; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- P1; focus none; remembered none; dynamic 0; objects 3; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; tree P3- D P1; focus O4; objects 5
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; tree P3- D P1; focus O4; objects 5
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; tree P3- D P1; focus O4; objects 5
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; tree P3- D P1; focus O4; objects 5
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; tree P3- D P1; focus O4; objects 5
CreateDialog(current, DELETE) | null | = | .. { CreateDialogImpl(none, true, true) -> null !CreateDialog } | =
CreateDialog(A, INVISIBLE) | null | = | .. { CreateDialogImpl(A, true, true) -> null !CreateDialog } | =
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } | current F after INVISIBLE kept; tree P3- F P1; focus O6; objects 5
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } | current F after DELETE_ALL kept; tree P3- F P1; focus O6; objects 5
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } | =
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | false | = | .. { !BackToDialog } | =
BackToDialog(A, hide, direct) | false | = | .. { !BackToDialog } | =
BackToDialog(A, delete, stepwise) | false | = | .. { !BackToDialog } | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | = | =
ClearDialogHistory(0, hide, current) | ended | = | = | =
ClearDialogHistory(0, delete) | ended | = | = | =
ClearDialogHistory(1, delete, current) | ended | = | = | =
GetCurrentDialogID | NO_HANDLE | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 0 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | false | = | = | =
GetLastDialogID | NO_HANDLE | = | = | =
RegisterDialogDefinition(H) | true | = | = | definitions + dialog: H "code:E"
UnregisterDialogDefinition(A) | false | = | = | =
UnregisterDialogDefinition(B) | true | = | = | definitions - dialog: B "code:B"
GetRegisteredPath(C) | code:DLG_C | = | = | =
GetRegisteredDialogID(path of C) | DLG_C | = | = | =
CreateDynamicObjectID | 29 | = | = | dynamic 1
RegisterPopupDefinition(P7) | true | = | = | definitions + popup: P7 prio 9, 0 ms, delete on close, ""
UnregisterPopupDefinition(P1) | true | = | = | definitions - popup: P1 prio 5, 3000 ms, hide on close, "code:P1"
UnregisterPopupDefinition(P2) | true | = | = | definitions - popup: P2 prio 7, 1000 ms, delete on close, "code:P2"
UpdateRegisteredPopupDisplayTime(P1) | true | = | = | definitions - popup: P1 prio 5, 3000 ms, hide on close, "code:P1" / + popup: P1 prio 5, 500 ms, hide on close, "code:P1"
UpdateRegisteredPopupDisplayTime(P2) | true | = | = | definitions - popup: P2 prio 7, 1000 ms, delete on close, "code:P2" / + popup: P2 prio 7, 500 ms, delete on close, "code:P2"
GetRegisteredPopupDisplayTime(P1) | true 3000 | = | = | =
GetRegisteredPopupInfo(P1) | true POP_1 prio 5, 3000 ms, hide on close, "code:POP_1" | = | = | =
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- P4; objects 4
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- P5; objects 4
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- P1 P6; objects 4
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- P2; objects 4
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree P1; objects 2
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree P1-; objects 2
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- P4; objects 5
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree P1- P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree P3-; objects 2
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; objects 1
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- O9
detach the object | null | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | =
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | =
)",
    R"(
OnLastDialogDeletion | BackToDialog, stepwise
nothing | does not end
CreateDialog(D, INVISIBLE) | DLG_D | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE_ALL) | DLG_D | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, DELETE) | DLG_D | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, DELETE_ALL) | DLG_D | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, NOTHING) | DLG_D | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(current, DELETE) | does not end
CreateDialog(A, INVISIBLE) | DLG_A | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after INVISIBLE kept; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(unknown, DELETE) | does not end
AddDialog(new, INVISIBLE) | ended | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnDialogAdded(F) } OnAfterDialogDeletion(C, F) OnDialogDeactivation(F) OnDialogActivation(A) OnAfterDialogDeletion(F, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- F- A P1; focus O1; remembered none; dynamic 0; objects 7; definitions unchanged
AddDialog(new, DELETE_ALL) | ended | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnDialogAdded(F) } OnAfterDialogDeletion(C, F) OnDialogDeactivation(F) OnDialogActivation(A) OnAfterDialogDeletion(F, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- F- A P1; focus O1; remembered none; dynamic 0; objects 7; definitions unchanged
AddDialog(current, INVISIBLE) | does not end
AddDialog(null) | does not end
Back(delete) | does not end
Back(hide) | does not end
BackToDialog(A, delete, direct) | true | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnAfterDialogDeletion(none, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
BackToDialog(A, hide, direct) | true | true | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() { OnAfterDialogDeletion(none, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | does not end
ClearDialogHistory(0, delete, current) | does not end
ClearDialogHistory(0, hide, current) | does not end
ClearDialogHistory(0, delete) | does not end
ClearDialogHistory(1, delete, current) | does not end
GetCurrentDialogID | does not end
GetCurrentDialog | does not end
GetHistoryStackSize | does not end
ContainsDialog(B) | does not end
ContainsDialog(C, current counts) | does not end
GetLastDialogID | does not end
RegisterDialogDefinition(H) | does not end
UnregisterDialogDefinition(A) | does not end
UnregisterDialogDefinition(B) | does not end
GetRegisteredPath(C) | does not end
GetRegisteredDialogID(path of C) | does not end
CreateDynamicObjectID | does not end
RegisterPopupDefinition(P7) | does not end
UnregisterPopupDefinition(P1) | does not end
UnregisterPopupDefinition(P2) | does not end
UpdateRegisteredPopupDisplayTime(P1) | does not end
UpdateRegisteredPopupDisplayTime(P2) | does not end
GetRegisteredPopupDisplayTime(P1) | does not end
GetRegisteredPopupInfo(P1) | does not end
ShowPopup(P4, highest) | does not end
ShowPopup(P5, as high as P2) | does not end
ShowPopup(P6, as high as P1) | does not end
ShowPopup(P1) | does not end
ShowPopup(P2) | does not end
ShowPopup(P3) | does not end
ShowPopup(unknown) | does not end
ClosePopup(P1) | does not end
ClosePopup(P2) | does not end
ClosePopup(P3) | does not end
ClosePopup(unknown) | does not end
IsPopupDisplayed(P1) | does not end
IsPopupInPopupList(P2) | does not end
close all popups | does not end
close all popups and show P6, P5, P4 | does not end
UpdateActivePopups | does not end
run the timer five seconds late | does not end
destroy the object | does not end
destroy the object of P1 | does not end
destroy the object of P2 | does not end
destroy all objects | does not end
give the object another identifier | does not end
give all popups one identifier | does not end
detach the object | does not end
throw an int | does not end
throw a std::exception | does not end
)",
    nullptr};
