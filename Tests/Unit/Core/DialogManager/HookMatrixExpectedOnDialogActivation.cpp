// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcOnDialogActivationOutcomes[] = {
    R"(
OnDialogActivation | CreateDialog, a new dialog
nothing | done | DLG_D | OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) {} | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after INVISIBLE kept; history D after INVISIBLE left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL kept; history D after INVISIBLE left INVISIBLE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE; history D after INVISIBLE left DELETE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE_ALL; history D after INVISIBLE left DELETE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after NOTHING kept; history D after INVISIBLE left NOTHING, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE; history D after INVISIBLE left DELETE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(D) OnDialogActivation(A) } | current A after INVISIBLE kept; history D after INVISIBLE left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- D- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(F) } | current F after INVISIBLE kept; history D after INVISIBLE left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | null | .. { OnDialogDeletion(D) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history D after INVISIBLE left DELETE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(D) } | current D after INVISIBLE kept unfocussed; history D after INVISIBLE left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(C) OnAfterDialogDeletion(D, C) } | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; focus O3; objects 7
Back(hide) | ended | = | .. { OnDialogDeactivation(D) OnDialogActivation(C) OnAfterDialogDeletion(D, C) } | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D- C P1; focus O3
BackToDialog(A, delete, direct) | true | null | .. { OnDialogDeletion(D) -> true OnAfterDialogDeletion(D, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- D- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(C) OnAfterDialogDeletion(D, C) OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | null | .. { OnDialogDeletion(D) -> true OnAfterDialogDeletion(D, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- D- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(1, delete, current) | ended | null | .. { OnDialogDeletion(D) -> true OnAfterDialogDeletion(D, C) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, C) OnAfterDialogDeletion(B, C) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
GetCurrentDialogID | DLG_D | = | = | =
GetCurrentDialog | DLG_D | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C- P3- P1- D P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C- P3- P1- D P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C- P3- D P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C- P3- P1- D P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- C- D P1; objects 8
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C- P1- D; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- D P6- P5- P4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C- P1- D P3
destroy the object | DLG_D | null | = | tree A- C- P3- P1; focus none; objects 7
destroy the object of P1 | POP_1 | = | .. {} !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. {} !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_D | OBJ_9 | = | tree A- C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_D | = | = | tree A- C- P3- P1; focus none
throw an int | - | throws int 7 | .. throws int 7 | tree A- C- P3- P1 D; focus none
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | tree A- C- P3- P1 D; focus none
)",
    R"(
OnDialogActivation | CreateDialog, a dialog of the history
nothing | done | DLG_A | OnDialogDeactivation(C) OnDialogActivation(A) {} | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree C- P3- A P1; focus O1; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history A after INVISIBLE kept left INVISIBLE at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history A after INVISIBLE kept left INVISIBLE_ALL at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history A after INVISIBLE kept left DELETE at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- D P1; focus O4; objects 9
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history A after INVISIBLE kept left DELETE_ALL at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- D P1; focus O4; objects 9
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history A after INVISIBLE kept left NOTHING at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A D P1; objects 9
CreateDialog(current, DELETE) | DLG_A | = | .. { OnDialogDeactivation(A) OnDialogActivation(A) } | current A after DELETE kept; history A after INVISIBLE kept left DELETE at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(A) OnDialogActivation(A) } | history A after INVISIBLE kept left INVISIBLE at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(F) } | current F after INVISIBLE kept; history A after INVISIBLE kept left INVISIBLE at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(F) } | current F after DELETE_ALL kept; history A after INVISIBLE kept left DELETE_ALL at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- F P1; focus O6; objects 9
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(A) } | current A after INVISIBLE kept unfocussed; history A after INVISIBLE kept left INVISIBLE at O1, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | .. { OnDialogDeactivation(A) OnDialogActivation(C) OnAfterDialogDeletion(A, C) } | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A- C P1; focus O3
Back(hide) | ended | = | .. { OnDialogDeactivation(A) OnDialogActivation(C) OnAfterDialogDeletion(A, C) } | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A- C P1; focus O3
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeactivation(A) OnAfterDialogDeletion(A, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(A) OnAfterDialogDeletion(A, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none
BackToDialog(A, delete, stepwise) | true | = | = | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | null | .. { OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree C- P3- A- P1; focus none
ClearDialogHistory(0, delete) | ended | null | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeactivation(A) OnAfterDialogDeletion(A, C) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, C) OnAfterDialogDeletion(B, C) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; remembered none; objects 5
GetCurrentDialogID | DLG_A | = | = | =
GetCurrentDialog | DLG_A | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree C- P3- P1- A P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree C- P3- P1- A P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree C- P3- A P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree C- P3- P1- A P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree C- P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree C- A P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree C- P1- A; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree C- P1- A P6- P5- P4; remembered O1; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree C- P1- A P3
destroy the object | DLG_A | null | = | tree C- P3- P1; focus none; objects 5
destroy the object of P1 | POP_1 | = | .. {} !UpdateActivePopups | popups P3 hidden; tree C- P3- A; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. {} !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_A | OBJ_9 | = | tree C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree C- O9- A O9
detach the object | DLG_A | = | = | tree C- P3- P1; focus none
throw an int | - | throws int 7 | .. throws int 7 | tree C- P3- P1 A
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | tree C- P3- P1 A
)",
    R"(
OnDialogActivation | Back
nothing | done | ended | OnDialogDeletion(C) -> true OnDialogActivation(B) {} OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus O2; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after INVISIBLE; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after INVISIBLE_ALL; history B after INVISIBLE left INVISIBLE_ALL at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after DELETE_ALL; history B after INVISIBLE left DELETE_ALL at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after NOTHING; history B after INVISIBLE left NOTHING at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; objects 9
CreateDialog(current, DELETE) | DLG_B | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(B) } .. | current B after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after INVISIBLE kept; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree P3- B- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(F) } OnAfterDialogDeletion(C, F) | current F after INVISIBLE kept; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(F) } OnAfterDialogDeletion(C, F) | current F after DELETE_ALL kept; history B after INVISIBLE left DELETE_ALL at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(B) } .. | current B after INVISIBLE kept unfocussed; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
Back(hide) | ended | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B- A P1; focus O1
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(C, none) | current none; history none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(C, none) | current none; history none; tree A- P3- B- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- B P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
GetCurrentDialogID | DLG_B | = | = | =
GetCurrentDialog | DLG_B | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | false | = | = | =
GetLastDialogID | DLG_A | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- P1- B P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- P1- B P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- B P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- P1- B P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- B P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1- B; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- B P6- P5- P4; remembered O2; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
destroy the object | DLG_B | = | = | tree A- P3- P1; focus none; objects 5
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A- B P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups none; tree none; focus none; objects 1
give the object another identifier | DLG_B | = | = | tree A- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | DLG_B | = | = | tree A- P3- P1; focus none
throw an int | - | = | .. throws int 7 !Back | tree A- P3- P1 B
throw a std::exception | - | = | .. throws deliberate failure !Back | tree A- P3- P1 B
)",
    R"(
OnDialogActivation | BackToDialog, direct
nothing | done | true | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) {} | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree P3- A- D P1; focus O4; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history A after NOTHING left INVISIBLE_ALL at O1; tree P3- A- D P1; focus O4; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history A after NOTHING left DELETE at O1; tree P3- D P1; focus O4
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history A after NOTHING left DELETE_ALL at O1; tree P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history A after NOTHING left NOTHING at O1; tree P3- A D P1; objects 7
CreateDialog(current, DELETE) | DLG_A | = | .. { OnDialogDeletion(A) -> true OnDialogActivation(A) } | current A after DELETE; history A after NOTHING left DELETE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(A) OnDialogActivation(A) } | current A after INVISIBLE kept; history A after NOTHING left INVISIBLE at O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(F) } | current F after INVISIBLE kept; history A after NOTHING left INVISIBLE at O1; tree P3- A- F P1; focus O6; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history A after NOTHING left DELETE_ALL at O1; tree P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(A) } | current A after INVISIBLE kept unfocussed; history A after NOTHING left INVISIBLE at O1; tree P3- A- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | false | = | .. { !BackToDialog } | =
BackToDialog(A, hide, direct) | false | = | .. { !BackToDialog } | =
BackToDialog(A, delete, stepwise) | false | = | .. { !BackToDialog } | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } | current none; tree P3- A- P1; focus none
ClearDialogHistory(0, delete) | ended | = | = | =
ClearDialogHistory(1, delete, current) | ended | = | = | =
GetCurrentDialogID | DLG_A | = | = | =
GetCurrentDialog | DLG_A | = | = | =
GetHistoryStackSize | 0 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | false | = | = | =
GetLastDialogID | NO_HANDLE | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- A P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- A P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- A P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree P1- A; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- A P6- P5- P4; remembered O1; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree P1- A P3
destroy the object | DLG_A | = | = | tree P3- P1; focus none; objects 3
destroy the object of P1 | POP_1 | = | .. {} !UpdateActivePopups | popups P3 hidden; tree P3- A; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. {} !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; objects 1
give the object another identifier | DLG_A | = | = | tree P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | DLG_A | = | = | tree P3- P1; focus none
throw an int | - | throws int 7 | .. throws int 7 | tree P3- P1 A
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | tree P3- P1 A
)",
    R"(
OnDialogActivation | BackToDialog, stepwise, a dialog on the way
nothing | done | true | OnDialogDeletion(C) -> true OnDialogActivation(B) {} OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, .. | =
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, .. | =
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, .. | =
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, .. | =
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, .. | =
CreateDialog(current, DELETE) | DLG_B | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(B) } OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(B) OnAfterDialogDeletion(B, .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) } OnAfterDialogDeletion(C, .. | current A after INVISIBLE kept; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree P3- B- A P1; objects 7
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(F) } OnAfterDialogDeletion(C, F) OnDialogDeactivation(F) OnDialogActivation(B) OnAfterDialogDeletion(F, .. | tree P3- F- A P1; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(F) } OnAfterDialogDeletion(C, F) OnDialogDeactivation(F) OnDialogActivation(B) OnAfterDialogDeletion(F, .. | tree P3- F- A P1; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(B) } OnAfterDialogDeletion(C, B) OnDialogActivation(B) OnAfterDialogDeletion(B, .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(C, .. | =
Back(hide) | ended | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(C, .. | tree P3- B- A P1; objects 7
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, .. | =
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, .. | tree P3- B- A P1; objects 7
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(C, .. | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | does not end
ClearDialogHistory(0, hide, current) | does not end
ClearDialogHistory(0, delete) | does not end
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnAfterDialogDeletion(C, .. | =
GetCurrentDialogID | DLG_B | = | = | =
GetCurrentDialog | DLG_B | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | false | = | = | =
GetLastDialogID | DLG_A | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- A P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- A P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- A P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1- A; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- A P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
destroy the object | DLG_B | = | .. OnDialogActivation(A) .. | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A P3; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | does not end
give the object another identifier | DLG_B | = | .. OnDialogActivation(A) .. | tree P3- O9 A P1; objects 7
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | DLG_B | = | .. OnDialogActivation(A) .. | objects 7
throw an int | - | = | .. throws int 7 !Back .. | =
throw a std::exception | - | = | .. throws deliberate failure !Back .. | =
)",
    R"(
OnDialogActivation | BackToDialog, stepwise, the last step
nothing | done | true | OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) {} OnAfterDialogDeletion(B, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, .. | =
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, .. | =
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, .. | =
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, .. | =
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, D) OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, .. | =
CreateDialog(current, DELETE) | DLG_A | = | .. { OnDialogDeletion(A) -> true OnDialogActivation(A) } .. | current A after DELETE; history A after NOTHING left DELETE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(A) OnDialogActivation(A) } .. | current A after INVISIBLE kept; history A after NOTHING left INVISIBLE at O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(F) } OnAfterDialogDeletion(B, F) OnDialogDeactivation(F) OnDialogActivation(A) OnAfterDialogDeletion(F, .. | tree P3- F- A P1; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(F) } OnAfterDialogDeletion(B, F) OnDialogDeactivation(F) OnDialogActivation(A) OnAfterDialogDeletion(F, .. | tree P3- F- A P1; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(A) } .. | current A after INVISIBLE kept unfocussed; history A after NOTHING left INVISIBLE at O1; tree P3- A- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | false | = | .. { !BackToDialog } .. | =
BackToDialog(A, hide, direct) | false | = | .. { !BackToDialog } .. | =
BackToDialog(A, delete, stepwise) | false | = | .. { !BackToDialog } .. | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | does not end
ClearDialogHistory(0, hide, current) | does not end
ClearDialogHistory(0, delete) | ended | = | = | =
ClearDialogHistory(1, delete, current) | ended | = | = | =
GetCurrentDialogID | DLG_A | = | = | =
GetCurrentDialog | DLG_A | = | = | =
GetHistoryStackSize | 0 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | false | = | = | =
GetLastDialogID | NO_HANDLE | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- A P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- A P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- A P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1- A; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- A P6- P5- P4; remembered O1; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
destroy the object | DLG_A | = | = | tree P3- P1; focus none; objects 3
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(B, .. | popups P3 shown; tree A P3; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(B, .. | popups none; tree none; focus none; objects 1
give the object another identifier | DLG_A | = | = | tree P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | DLG_A | = | = | tree P3- P1; focus none
throw an int | - | = | .. throws int 7 !Back | tree P3- P1 A
throw a std::exception | - | = | .. throws deliberate failure !Back | tree P3- P1 A
)",
    R"(
OnDialogActivation | ClearDialogHistory
nothing | done | ended | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) {} | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree P3- A- D P1; focus O4; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history A after NOTHING left INVISIBLE_ALL at O1; tree P3- A- D P1; focus O4; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history A after NOTHING left DELETE at O1; tree P3- D P1; focus O4
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history A after NOTHING left DELETE_ALL at O1; tree P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history A after NOTHING left NOTHING at O1; tree P3- A D P1; objects 7
CreateDialog(current, DELETE) | DLG_A | = | .. { OnDialogDeletion(A) -> true OnDialogActivation(A) } | current A after DELETE; history A after NOTHING left DELETE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(A) OnDialogActivation(A) } | current A after INVISIBLE kept; history A after NOTHING left INVISIBLE at O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(F) } | current F after INVISIBLE kept; history A after NOTHING left INVISIBLE at O1; tree P3- A- F P1; focus O6; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history A after NOTHING left DELETE_ALL at O1; tree P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(A) } | current A after INVISIBLE kept unfocussed; history A after NOTHING left INVISIBLE at O1; tree P3- A- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | false | = | .. { !BackToDialog } | =
BackToDialog(A, hide, direct) | false | = | .. { !BackToDialog } | =
BackToDialog(A, delete, stepwise) | false | = | .. { !BackToDialog } | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } | current none; tree P3- A- P1; focus none
ClearDialogHistory(0, delete) | ended | = | = | =
ClearDialogHistory(1, delete, current) | ended | = | = | =
GetCurrentDialogID | DLG_A | = | = | =
GetCurrentDialog | DLG_A | = | = | =
GetHistoryStackSize | 0 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | false | = | = | =
GetLastDialogID | NO_HANDLE | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- A P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- A P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- A P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree P1- A; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- A P6- P5- P4; remembered O1; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree P1- A P3
destroy the object | DLG_A | = | = | tree P3- P1; focus none; objects 3
destroy the object of P1 | POP_1 | = | .. {} !UpdateActivePopups | popups P3 hidden; tree P3- A; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. {} !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; objects 1
give the object another identifier | DLG_A | = | = | tree P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | DLG_A | = | = | tree P3- P1; focus none
throw an int | - | = | .. throws int 7 !ClearDialogHistory | tree P3- P1 A
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | tree P3- P1 A
)",
    nullptr};
