// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcOnDialogAddedOutcomes[] = {
    R"(
OnDialogAdded | CreateDialog
nothing | done | DLG_D | OnDialogDeactivation(C) OnDialogAdded(D) {} OnDialogActivation(D) | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } .. | current D after INVISIBLE kept; history D after INVISIBLE left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } .. | current D after INVISIBLE_ALL kept; history D after INVISIBLE left INVISIBLE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE; history D after INVISIBLE left DELETE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE_ALL; history D after INVISIBLE left DELETE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } .. | current D after NOTHING kept; history D after INVISIBLE left NOTHING, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE; history D after INVISIBLE left DELETE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(D) OnDialogActivation(A) } .. | current A after INVISIBLE kept; history D after INVISIBLE left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- D- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(F) } .. | current F after INVISIBLE kept; history D after INVISIBLE left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | null | .. { OnDialogDeletion(D) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history D after INVISIBLE left DELETE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(D) } .. | current D after INVISIBLE kept unfocussed; history D after INVISIBLE left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(C) OnAfterDialogDeletion(D, C) } | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; focus O3; objects 7
Back(hide) | ended | = | .. { OnDialogDeactivation(D) OnDialogActivation(C) OnAfterDialogDeletion(D, C) } .. | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D- C P1; focus O3
BackToDialog(A, delete, direct) | true | null | .. { OnDialogDeletion(D) -> true OnAfterDialogDeletion(D, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree C- P3- D- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(C) OnAfterDialogDeletion(D, C) OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | null | .. { OnDialogDeletion(D) -> true OnAfterDialogDeletion(D, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3- D- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C- P3- P1- D P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- C- P3- P1- D P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C- P3- D P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C- P3- P1- D P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- C- D P1; objects 8
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- C- P1- D; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- D P6- P5- P4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
destroy the object | DLG_D | null | .. {} | tree A- C- P3- P1; focus none; objects 7
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_D | OBJ_9 | .. OnDialogActivation(O9) | tree A- C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_D | = | = | tree A- C- P3- P1; focus none
throw an int | - | throws int 7 | .. throws int 7 | tree A- C- P3- P1 D; focus none
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | tree A- C- P3- P1 D; focus none
)",
    R"(
OnDialogAdded | AddDialog
nothing | done | ended | OnDialogDeactivation(C) OnDialogAdded(D) {} | current D after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | history D after INVISIBLE kept left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL kept; history D after INVISIBLE kept left INVISIBLE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after DELETE kept; history D after INVISIBLE kept left DELETE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after DELETE_ALL kept; history D after INVISIBLE kept left DELETE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after NOTHING kept; history D after INVISIBLE kept left NOTHING, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after DELETE kept; history D after INVISIBLE kept left DELETE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(D) OnDialogActivation(A) } | current A after INVISIBLE kept; history D after INVISIBLE kept left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- D- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(F) } | current F after INVISIBLE kept; history D after INVISIBLE kept left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(F) } | current F after DELETE_ALL kept; history D after INVISIBLE kept left DELETE_ALL, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- F P1; focus O6; objects 11
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(D) } | current D after INVISIBLE kept unfocussed; history D after INVISIBLE kept left INVISIBLE, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | .. { OnDialogDeactivation(D) OnDialogActivation(C) OnAfterDialogDeletion(D, C) } | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D- C P1; focus O3
Back(hide) | ended | = | .. { OnDialogDeactivation(D) OnDialogActivation(C) OnAfterDialogDeletion(D, C) } | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D- C P1; focus O3
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- D- A P1; focus O1; remembered none; objects 7
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- D- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeactivation(D) OnDialogActivation(C) OnAfterDialogDeletion(D, C) OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- D- A P1; focus O1; remembered none; objects 7
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- D- P1; focus none; remembered none; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- D- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeactivation(D) OnAfterDialogDeletion(D, C) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, C) OnAfterDialogDeletion(B, C) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- D- A P1; focus O1; remembered none; objects 7
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
destroy the object | DLG_D | = | = | tree A- C- P3- P1; focus none; objects 7
destroy the object of P1 | POP_1 | = | .. {} !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. {} !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_D | = | = | tree A- C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_D | = | = | tree A- C- P3- P1; focus none
throw an int | - | = | .. throws int 7 !AddDialog | tree A- C- P3- P1 D; focus none
throw a std::exception | - | = | .. throws deliberate failure !AddDialog | tree A- C- P3- P1 D; focus none
)",
    nullptr};
