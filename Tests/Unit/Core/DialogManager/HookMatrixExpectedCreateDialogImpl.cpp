// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcCreateDialogImplOutcomes[] = {
    R"(
CreateDialogImpl | CreateDialog
nothing | done | DLG_D | CreateDialogImpl(D, true, true) -> D (true, true) {} OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus none; remembered O3; dynamic 0; objects 8; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after INVISIBLE left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- D P1; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after INVISIBLE_ALL left INVISIBLE at O3, C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- D P1; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE left INVISIBLE, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D- D P1; remembered none; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE_ALL left INVISIBLE, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D- D P1; remembered none; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after NOTHING left INVISIBLE at O3, C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D- D P1; focus O3; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left INVISIBLE, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C- D P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- D P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F- D P1; objects 10
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after DELETE_ALL kept left INVISIBLE, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F- D P1; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeactivation(B) .. | history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeactivation(B) .. | history B after INVISIBLE left INVISIBLE at O3, A after NOTHING left INVISIBLE at O1; tree A- C- P3- B- D P1; objects 10
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 6
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE at O3; tree C- P3- A- D P1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 6
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; remembered none; objects 4
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after DELETE left INVISIBLE at O3; tree C- P3- D P1; objects 6
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 6
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | DLG_C | = | = | =
GetHistoryStackSize | 2 | = | = | =
ContainsDialog(B) | true | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
GetLastDialogID | DLG_B | = | = | =
RegisterDialogDefinition(H) | true | = | = | definitions + dialog: H "code:E"
UnregisterDialogDefinition(A) | true | = | = | definitions - dialog: A "code:A"
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C- P3- P1- D P4; objects 9
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- C- P3- P1- D P5; objects 9
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C- P3- D P1 P6; objects 9
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C- P3- P1- D P2; objects 9
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- C- D P1; objects 7
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- C- P1- D; remembered none; objects 7
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- P6- P5- D P4; objects 10
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
destroy the object | DLG_C | = | .. OnDialogAdded(D) .. | history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; remembered none; objects 6
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 7
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogAdded(D) OnDialogActivation(D) !UpdateActivePopups !UpdateActivePopups | history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups none; tree D; remembered none; objects 2
give the object another identifier | DLG_C | = | .. OnDialogAdded(D) .. | history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- O9 P3- D P1; focus O3
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_C | = | .. OnDialogAdded(D) .. | history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1
throw an int | - | null | .. throws int 7 !CreateDialog !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; objects 7
throw a std::exception | - | null | .. throws deliberate failure !CreateDialog !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; objects 7
)",
    R"(
CreateDialogImpl | CreateDialog, once more: the action destroyed the dialog
nothing | done | DLG_D | OnDialogDeletion(C) -> true CreateDialogImpl(D, true, true) -> D (true, true) {} OnDialogAdded(D) OnDialogActivation(D) | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- D P1; focus none; remembered none; dynamic 0; objects 6; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D D P1; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D D P1; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D D P1; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D D P1; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D D P1; objects 7
CreateDialog(current, DELETE) | null | = | .. { CreateDialogImpl(none, true, true) -> null !CreateDialog } .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | tree P3- A D P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A- P3- F D P1; focus O6; objects 8
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A- P3- F D P1; focus O6; objects 8
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history none; tree P3- A D P1; focus O1
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history none; tree P3- A D P1; focus O1
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; objects 4
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; objects 4
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, C) OnAfterDialogDeletion(C, C) OnAfterDialogDeletion(B, C) OnDialogActivation(A) } .. | history none; tree P3- A D P1; focus O1
GetCurrentDialogID | NO_HANDLE | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 3 | = | = | =
ContainsDialog(B) | true | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
GetLastDialogID | DLG_C | = | = | =
RegisterDialogDefinition(H) | true | = | = | definitions + dialog: H "code:E"
UnregisterDialogDefinition(A) | true | = | = | definitions - dialog: A "code:A"
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- P1- D P4; objects 7
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- P1- D P5; objects 7
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- D P1 P6; objects 7
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- P1- D P2; objects 7
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- D P1; objects 5
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1- D; objects 5
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- P6- P5- D P4; objects 8
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- D P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- P3- D; objects 5
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogActivation(D) !UpdateActivePopups !UpdateActivePopups | popups none; tree D; objects 2
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- D O9
detach the object | null | = | = | =
throw an int | - | null | .. throws int 7 !CreateDialog !MakeDialogVisible | current none; tree A- P3- P1; objects 5
throw a std::exception | - | null | .. throws deliberate failure !CreateDialog !MakeDialogVisible | current none; tree A- P3- P1; objects 5
)",
    R"(
CreateDialogImpl | GetDialogObject, called by a derived class
nothing | done | DLG_D | CreateDialogImpl(D, true, true) -> D (true, true) {} | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1 D; focus O3; remembered O3; dynamic 0; objects 8; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1 D; focus none; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1 D; focus none; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1 D; focus none; remembered none; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1 D; focus none; remembered none; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | .. { CreateDialogImpl(D, true, true) -> D (true, true) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1 D; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1 D; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1 D; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1 D; focus O6; objects 10
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1 D; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1 D; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1 D; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1 D; focus O2; objects 10
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1 D; focus O1; remembered none; objects 6
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- A P1 D; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1 D; focus O1; remembered none; objects 6
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1 D; focus none; remembered none; objects 4
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- P1 D; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree C P3- P1 D; objects 6
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1 D; focus O1; remembered none; objects 6
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | DLG_C | = | = | =
GetHistoryStackSize | 2 | = | = | =
ContainsDialog(B) | true | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
GetLastDialogID | DLG_B | = | = | =
RegisterDialogDefinition(H) | true | = | = | definitions + dialog: H "code:E"
UnregisterDialogDefinition(A) | true | = | = | definitions - dialog: A "code:A"
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4 D; objects 9
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C P3- P1- P5 D; objects 9
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C P3- P1 P6 D; objects 9
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2 D; objects 9
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3 D
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- C P1 D; objects 7
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1- D; remembered none; objects 7
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4 D; objects 10
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3 D
destroy the object | DLG_C | = | = | tree A- P3- P1 D; focus none; remembered none; objects 6
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree A- C P3- D; objects 7
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree D; focus none; remembered none; objects 2
give the object another identifier | DLG_C | = | = | tree A- O9 P3- P1 D
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9 D
detach the object | DLG_C | = | = | tree A- P3- P1 D; focus none
throw an int | - | throws int 7 | .. throws int 7 | tree A- C P3- P1; objects 7
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | tree A- C P3- P1; objects 7
)",
    R"(
CreateDialogImpl | Back, the dialog that comes back
nothing | done | ended | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> B (true, true) {} OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus none; remembered none; dynamic 0; objects 6; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 8
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 8
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 8
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 8
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 8
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE, A after NOTHING left INVISIBLE at O1; tree A- P3- C B P1; focus O3; objects 8
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | tree P3- A B P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A- P3- F B P1; focus O6; objects 8
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A- P3- F B P1; focus O6; objects 8
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none; tree P3- A B P1; focus O1
Back(hide) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none; tree P3- A B P1; focus O1
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none; tree P3- A B P1; focus O1
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none; tree P3- A B P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none; tree P3- A B P1; focus O1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- B P1; objects 4
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- B P1; objects 4
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none; tree P3- A B P1; focus O1
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- P1- B P4; objects 7
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- P1- B P5; objects 7
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- B P1 P6; objects 7
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- P1- B P2; objects 7
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- B P1; objects 5
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1- B; objects 5
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- P6- P5- B P4; objects 8
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A- B P3; objects 5
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups none; tree B; objects 2
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | null | = | = | =
throw an int | - | = | .. throws int 7 !Back | current C after DELETE; tree A- P3- P1; objects 5
throw a std::exception | - | = | .. throws deliberate failure !Back | current C after DELETE; tree A- P3- P1; objects 5
)",
    R"(
CreateDialogImpl | Back, an older dialog that was left shown and is gone
nothing | done | ended | OnDialogDeletion(C) -> true CreateDialogImpl(A, false, false) -> A (true, true) {} OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after NOTHING; history A after NOTHING left NOTHING at O1; popups P3 hidden, P1 shown 3000 ms; tree B P3- A P1; focus none; remembered none; dynamic 0; objects 6; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; focus O4; objects 8
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; focus O4; objects 8
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; focus O4; objects 8
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; focus O4; objects 8
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; focus O4; objects 8
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true .. | history C after NOTHING left DELETE, A after NOTHING left NOTHING at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { CreateDialogImpl(A, true, true) -> A (true, true) OnDialogActivation(A) } .. | tree B P3- A A P1; focus O2; objects 7
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree B P3- F A P1; focus O6; objects 8
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree B P3- F A P1; focus O6; objects 8
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnLastDialogDeletion() OnAfterDialogDeletion(C, none) } .. | history none
Back(hide) | ended | = | .. { OnLastDialogDeletion() OnAfterDialogDeletion(C, none) } .. | history none
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) !BackToDialog OnLastDialogDeletion() } .. | history none
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) !BackToDialog OnLastDialogDeletion() } .. | history none
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, A) } .. | history none
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
GetLastDialogID | DLG_A | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree B P3- P1- A P4; objects 7
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree B P3- P1- A P5; objects 7
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree B P3- A P1 P6; objects 7
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree B P3- P1- A P2; objects 7
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree B P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree B A P1; objects 5
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree B P1- A; objects 5
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree B P1- P6- P5- A P4; objects 8
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree B P1- A P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree B A P3; objects 5
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnLastDialogDeletion() !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, none) | current none; popups none; tree A; objects 2
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree B O9- A O9
detach the object | null | = | = | =
throw an int | - | = | .. throws int 7 !Back | current C after NOTHING; tree B P3- P1; objects 5
throw a std::exception | - | = | .. throws deliberate failure !Back | current C after NOTHING; tree B P3- P1; objects 5
)",
    R"(
CreateDialogImpl | BackToDialog, direct
nothing | done | true | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) CreateDialogImpl(A, false, false) -> A (true, true) {} OnDialogActivation(A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus none; remembered none; dynamic 0; objects 4; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE; tree P3- C A P1; focus O3; objects 6
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { CreateDialogImpl(A, true, true) -> A (true, true) OnDialogAdded(A) OnDialogActivation(A) } .. | tree P3- A A P1; objects 5
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F A P1; focus O6; objects 6
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F A P1; focus O6; objects 6
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | false | = | .. { !BackToDialog } .. | =
BackToDialog(A, hide, direct) | false | = | .. { !BackToDialog } .. | =
BackToDialog(A, delete, stepwise) | false | = | .. { !BackToDialog } .. | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) } .. | =
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) } .. | =
ClearDialogHistory(0, delete) | ended | = | = | =
ClearDialogHistory(1, delete, current) | ended | = | = | =
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 0 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- A P4; objects 5
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- A P5; objects 5
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 5
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- A P2; objects 5
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A P1; objects 3
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1- A; objects 3
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- A P4; objects 6
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree P3- A; objects 3
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogActivation(A) !UpdateActivePopups !UpdateActivePopups | popups none; tree A; objects 2
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | null | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | current C after DELETE; tree P3- P1; objects 3
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | current C after DELETE; tree P3- P1; objects 3
)",
    R"(
CreateDialogImpl | BackToDialog, stepwise
nothing | done | true | OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true CreateDialogImpl(A, false, false) -> A (true, true) {} OnDialogActivation(A) OnAfterDialogDeletion(B, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus none; remembered none; dynamic 0; objects 4; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(current, DELETE) | DLG_B | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(B) } .. | history B after DELETE left DELETE; tree P3- B A P1; focus O2; objects 6
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { CreateDialogImpl(A, true, true) -> A (true, true) OnDialogAdded(A) OnDialogActivation(A) } .. | tree P3- A A P1; objects 5
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F A P1; focus O6; objects 6
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F A P1; focus O6; objects 6
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | false | = | .. { !BackToDialog } .. | =
BackToDialog(A, hide, direct) | false | = | .. { !BackToDialog } .. | =
BackToDialog(A, delete, stepwise) | false | = | .. { !BackToDialog } .. | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(B, none) } .. | =
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(B, none) } .. | =
ClearDialogHistory(0, delete) | ended | = | = | =
ClearDialogHistory(1, delete, current) | ended | = | = | =
GetCurrentDialogID | DLG_B | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- A P4; objects 5
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- A P5; objects 5
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 5
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- A P2; objects 5
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A P1; objects 3
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1- A; objects 3
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- A P4; objects 6
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(B, .. | popups P3 shown; tree A P3; objects 3
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(B, .. | popups none; tree A; objects 2
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | null | = | = | =
throw an int | does not end
throw a std::exception | does not end
)",
    R"(
CreateDialogImpl | ClearDialogHistory
nothing | done | ended | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) CreateDialogImpl(A, false, false) -> A (true, true) {} OnDialogActivation(A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus none; remembered none; dynamic 0; objects 4; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D A P1; focus O4; objects 6
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE; tree P3- C A P1; focus O3; objects 6
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { CreateDialogImpl(A, true, true) -> A (true, true) OnDialogAdded(A) OnDialogActivation(A) } .. | tree P3- A A P1; objects 5
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F A P1; focus O6; objects 6
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F A P1; focus O6; objects 6
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | false | = | .. { !BackToDialog } .. | =
BackToDialog(A, hide, direct) | false | = | .. { !BackToDialog } .. | =
BackToDialog(A, delete, stepwise) | false | = | .. { !BackToDialog } .. | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) } .. | =
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) } .. | =
ClearDialogHistory(0, delete) | ended | = | = | =
ClearDialogHistory(1, delete, current) | ended | = | = | =
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 0 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- A P4; objects 5
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- A P5; objects 5
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 5
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- A P2; objects 5
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A P1; objects 3
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1- A; objects 3
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- A P4; objects 6
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree P3- A; objects 3
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogActivation(A) !UpdateActivePopups !UpdateActivePopups | popups none; tree A; objects 2
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | null | = | = | =
throw an int | - | = | .. throws int 7 !ClearDialogHistory | current C after DELETE; tree P3- P1; objects 3
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | current C after DELETE; tree P3- P1; objects 3
)",
    nullptr};
