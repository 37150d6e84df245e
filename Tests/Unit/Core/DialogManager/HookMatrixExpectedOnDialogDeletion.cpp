// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcOnDialogDeletionOutcomes[] = {
    R"(
OnDialogDeletion | CreateDialog with ODA_DELETE
nothing | done | DLG_D | OnDialogDeletion(C) -> true {} OnDialogAdded(D) OnDialogActivation(D) | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- D P1; focus O4; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE_ALL kept left DELETE at O3, C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE kept left DELETE at O3, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE_ALL kept left DELETE at O3, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after NOTHING kept left DELETE at O3, C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE at O3, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C D P1; focus O3; objects 9
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } .. | history A after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A D P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } .. | history F after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F D P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | history F after DELETE_ALL kept left DELETE at O3, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F D P1; focus O6; objects 9
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left DELETE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O2; objects 9
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left DELETE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none left DELETE at O3; tree P3- D P1; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none left DELETE at O3
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after DELETE left DELETE at O3; tree P3- D P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- P1- D P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- P1- D P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- D P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- P1- D P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- D P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1- D; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- P6- P5- D P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- D P3
destroy the object | DLG_C | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- P3- D; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogActivation(D) !UpdateActivePopups !UpdateActivePopups | popups none; tree D; objects 3
give the object another identifier | DLG_C | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- D O9
detach the object | DLG_C | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1 D; focus O3; remembered O3; objects 9
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1 D; focus O3; remembered O3; objects 9
)",
    R"(
OnDialogDeletion | CreateDialog with ODA_DELETE_ALL, an older dialog
nothing | done | DLG_D | OnDialogDeletion(A) -> true {} OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) | current D after DELETE_ALL; history C after NOTHING left DELETE_ALL at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; popups P3 hidden, P1 shown 3000 ms; tree P3- D P1; focus O4; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(B) -> true OnDialogDeactivation(D) .. | history D after INVISIBLE kept left DELETE_ALL at O1, C after NOTHING left INVISIBLE at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree C- P3- D P1; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogDeactivation(B) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(B) -> true OnDialogDeactivation(D) .. | history D after INVISIBLE_ALL kept left DELETE_ALL at O1, C after NOTHING left INVISIBLE_ALL at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree C- P3- D P1; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(B) -> true OnDialogDeactivation(D) .. | history D after DELETE kept left DELETE_ALL at O1, C after NOTHING left DELETE at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE_ALL kept left DELETE_ALL at O1, C after NOTHING left DELETE_ALL at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogDeactivation(D) .. | history D after NOTHING kept left DELETE_ALL at O1, C after NOTHING left NOTHING at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE_ALL at O1, C after NOTHING left DELETE at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } OnDialogDeletion(B) .. | history A after INVISIBLE kept left DELETE_ALL at O1, C after NOTHING left INVISIBLE at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree C- P3- D P1; objects 7
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } OnDialogDeletion(B) -> true OnDialogDeactivation(F) .. | history F after INVISIBLE kept left DELETE_ALL at O1, C after NOTHING left INVISIBLE at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree C- P3- F- D P1; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after DELETE_ALL kept left DELETE_ALL at O1, C after NOTHING left DELETE_ALL at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree P3- F- D P1; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } OnDialogDeletion(B) .. | history C after INVISIBLE kept unfocussed left DELETE_ALL at O1, C after NOTHING left INVISIBLE at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree C- P3- D P1; objects 7
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeletion(B) .. | history B after NOTHING left DELETE_ALL at O1, A after NOTHING left NOTHING at O1
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeletion(B) .. | history B after NOTHING left DELETE_ALL at O1, A after NOTHING left NOTHING at O1; tree C- P3- D P1; objects 7
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE_ALL at O1
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE_ALL at O1; tree B- C- P3- D P1; objects 9
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | history A after NOTHING left DELETE_ALL at O1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none left DELETE_ALL at O1
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } .. | history none left DELETE_ALL at O1; tree B- C- P3- D P1; objects 9
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after NOTHING left DELETE_ALL at O1
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | history A after NOTHING left DELETE_ALL at O1
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- D P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- D P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- D P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- D P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree D P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1- D; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- D P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- D P3
destroy the object | DLG_A | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree P3- D; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogAdded(D) OnDialogActivation(D) !UpdateActivePopups !UpdateActivePopups | popups none; tree D; objects 3
give the object another identifier | DLG_A | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- D O9
detach the object | DLG_A | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B C P3- P1 D; focus O1; objects 11
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B C P3- P1 D; focus O1; objects 11
)",
    R"(
OnDialogDeletion | CreateDialog with ODA_DELETE_ALL, the current dialog
nothing | done | DLG_D | OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true {} OnDialogAdded(D) OnDialogActivation(D) | current D after DELETE_ALL; history C after NOTHING left DELETE_ALL at O1, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; popups P3 hidden, P1 shown 3000 ms; tree P3- D P1; focus O4; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE kept left DELETE_ALL at O1, C after NOTHING left INVISIBLE, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE_ALL kept left DELETE_ALL at O1, C after NOTHING left INVISIBLE_ALL, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE kept left DELETE_ALL at O1, C after NOTHING left DELETE, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE_ALL kept left DELETE_ALL at O1, C after NOTHING left DELETE_ALL, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after NOTHING kept left DELETE_ALL at O1, C after NOTHING left NOTHING, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE_ALL at O1, C after NOTHING left DELETE, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree P3- C D P1; focus O3; objects 7
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } .. | history A after INVISIBLE left DELETE_ALL at O1, C after NOTHING left INVISIBLE, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree P3- A D P1; focus O1; objects 7
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } .. | history F after INVISIBLE kept left DELETE_ALL at O1, C after NOTHING left INVISIBLE, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree P3- F D P1; focus O6; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | history F after DELETE_ALL kept left DELETE_ALL at O1, C after NOTHING left DELETE_ALL, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree P3- F D P1; focus O6; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left DELETE_ALL at O1, C after NOTHING left INVISIBLE, B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnLastDialogDeletion() OnAfterDialogDeletion(C, none) } .. | history none left DELETE_ALL at O1, A after NOTHING left NOTHING at O1; tree P3- A D P1; objects 7
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnLastDialogDeletion() OnAfterDialogDeletion(C, none) } .. | history none left DELETE_ALL at O1, A after NOTHING left NOTHING at O1; tree P3- A D P1; objects 7
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) !BackToDialog OnLastDialogDeletion() } .. | history none left DELETE_ALL at O1
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) !BackToDialog OnLastDialogDeletion() } .. | history none left DELETE_ALL at O1
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none left DELETE_ALL at O1
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none left DELETE_ALL at O1
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history C after NOTHING left DELETE_ALL at O1
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) } .. | history none left DELETE_ALL at O1
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- D P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- D P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- D P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- D P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree D P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1- D; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- D P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- D P3
destroy the object | DLG_C | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree P3- D; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogActivation(D) !UpdateActivePopups !UpdateActivePopups | popups none; tree D; objects 3
give the object another identifier | DLG_C | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- D O9
detach the object | DLG_C | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree C P3- P1 D; focus none; objects 7
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree C P3- P1 D; focus none; objects 7
)",
    R"(
OnDialogDeletion | AddDialog
nothing | done | ended | OnDialogDeletion(C) -> true {} OnDialogAdded(D) | current D after DELETE kept; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- D P1; focus O4; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE_ALL kept left DELETE at O3, C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE kept left DELETE at O3, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE_ALL kept left DELETE at O3, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after NOTHING kept left DELETE at O3, C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE at O3, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D C P1; focus O3; objects 9
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } .. | history A after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- D A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } .. | history F after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | history F after DELETE_ALL kept left DELETE at O3, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D F P1; focus O6; objects 9
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left DELETE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- D B P1; focus O2; objects 9
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left DELETE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- D B P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- D A P1; focus O1
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- D A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | history A after NOTHING left DELETE at O3; tree P3- D A P1; focus O1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none left DELETE at O3; tree P3- D P1; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none left DELETE at O3
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after DELETE left DELETE at O3; tree P3- D P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- D A P1; focus O1
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- P1- D P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- P1- D P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- D P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- P1- D P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- D P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1- D; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- D P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- D P3
destroy the object | DLG_C | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogAdded(D) !UpdateActivePopups | popups P3 hidden; tree A- P3- D; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !AddDialog | current none; popups gone, gone; tree none; focus none; objects 1
give the object another identifier | DLG_C | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- D O9
detach the object | DLG_C | = | = | =
throw an int | - | = | .. throws int 7 !AddDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1 D; focus O3; remembered O3; objects 9
throw a std::exception | - | = | .. throws deliberate failure !AddDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1 D; focus O3; remembered O3; objects 9
)",
    R"(
OnDialogDeletion | Back
nothing | done | ended | OnDialogDeletion(C) -> true {} OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus O2; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D C P1; focus O3; objects 9
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D C P1; focus O3; objects 9
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus none
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; focus O3
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } OnDialogDeactivation(A) !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A- P1; focus none; objects 5
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F C P1; focus O3; objects 9
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1; focus none; objects 5
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogActivation(A) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B A P1; focus O1
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogActivation(A) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B A P1; focus O1
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history none; tree A- P3- P1; focus none; objects 5
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnLastDialogDeletion() OnAfterDialogDeletion(C, C) | current C after DELETE; history none; tree P3- P1; focus none; objects 3
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | DLG_C | = | = | =
GetHistoryStackSize | 2 | = | = | =
ContainsDialog(B) | true | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
GetLastDialogID | DLG_B | = | = | =
RegisterDialogDefinition(H) | true | = | = | definitions + dialog: H "code:E"
UnregisterDialogDefinition(A) | true | = | = | definitions - dialog: A "code:A"
UnregisterDialogDefinition(B) | true | = | .. CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; tree A- P3- P1; focus none; objects 5; definitions - dialog: B "code:B"
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
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- P6- P5- B P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
destroy the object | DLG_C | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A- B P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups none; tree B; objects 3
give the object another identifier | DLG_C | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | DLG_C | = | = | =
throw an int | - | = | .. throws int 7 !Back | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; remembered O3
throw a std::exception | - | = | .. throws deliberate failure !Back | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; remembered O3
)",
    R"(
OnDialogDeletion | Back, an older dialog recorded as deleted
nothing | done | ended | OnDialogDeactivation(C) OnDialogDeletion(A) -> true {} OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after DELETE; history A after NOTHING left DELETE at O1; popups P3 hidden, P1 shown 3000 ms; tree C- P3- B P1; focus O2; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history C after INVISIBLE left INVISIBLE, A after NOTHING left DELETE at O1; tree C- P3- D B P1; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history C after INVISIBLE left INVISIBLE_ALL, A after NOTHING left DELETE at O1; tree C- P3- D B P1; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history C after INVISIBLE left DELETE, A after NOTHING left DELETE at O1; tree P3- D B P1; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history C after INVISIBLE left DELETE_ALL, A after NOTHING left DELETE at O1; tree P3- D B P1; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history C after INVISIBLE left NOTHING, A after NOTHING left DELETE at O1; tree P3- D C B P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true .. | history C after INVISIBLE left DELETE, A after NOTHING left DELETE at O1; tree P3- B P1; remembered none; objects 5
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | history C after INVISIBLE left INVISIBLE, A after NOTHING left DELETE at O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | history C after INVISIBLE left INVISIBLE, A after NOTHING left DELETE at O1; tree C- P3- F B P1; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | history C after INVISIBLE left DELETE_ALL, A after NOTHING left DELETE at O1; tree P3- F B P1; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogAdded(C) } .. | history C after INVISIBLE left INVISIBLE, A after NOTHING left DELETE at O1
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none; tree P3- B P1; remembered none; objects 5
Back(hide) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none; tree P3- B P1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none; tree P3- B P1; remembered none; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- B P1; remembered none; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none; tree P3- B P1; remembered none; objects 5
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | DLG_C | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree C- P3- P1- B P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree C- P3- P1- B P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree C- P3- B P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree C- P3- P1- B P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree C- P1- B P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree C- B P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree C- P1- B; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree C- P1- P6- P5- B P4; remembered none; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree C- P1- B P3
destroy the object | DLG_A | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree C- B P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !MakeDialogVisible OnLastDialogDeletion() !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, none) | current none; popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_A | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree C- O9- B O9
detach the object | DLG_A | = | = | =
throw an int | - | = | .. throws int 7 !Back | current C after INVISIBLE; tree A- B- C- P3- P1; focus none; objects 9
throw a std::exception | - | = | .. throws deliberate failure !Back | current C after INVISIBLE; tree A- B- C- P3- P1; focus none; objects 9
)",
    R"(
OnDialogDeletion | BackToDialog, direct, the current dialog
nothing | done | true | OnDialogDeletion(C) -> true {} OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree A P3- P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, A) .. | tree A P3- D P1; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogDeactivation(B) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, A) OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) !RecoverFocus .. | tree A- P3- D P1; focus O4; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, A) .. | tree A P3- D P1; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) !BackToDialog OnLastDialogDeletion() | current none; tree P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, A) .. | tree A P3- D P1; objects 7
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnAfterDialogDeletion(C, A) OnDialogDeletion(C) -> true .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } OnAfterDialogDeletion(A, A) .. | tree P3- A P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } OnAfterDialogDeletion(F, A) .. | tree A P3- F P1; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(F) } OnAfterDialogDeletion(F, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) !BackToDialog OnLastDialogDeletion() | current none; tree P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } OnAfterDialogDeletion(C, A) .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | tree B P3- A P1; objects 7
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | tree B P3- A P1; objects 7
BackToDialog(A, delete, direct) | true | throws int 0 | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnAfterDialogDeletion(A, A) | =
BackToDialog(A, hide, direct) | true | throws int 0 | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnAfterDialogDeletion(A, A) | tree A B- P3- P1; objects 7
BackToDialog(A, delete, stepwise) | true | throws int 0 | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(A, A) | tree P3- A P1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | throws int 0 | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(none, A) | current none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | throws int 0 | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(none, A) | current none; tree A- B- P3- P1; focus none; objects 7
ClearDialogHistory(0, delete) | ended | throws int 0 | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(C, A) | current C after NOTHING; tree P3- P1; focus none; objects 3
ClearDialogHistory(1, delete, current) | ended | throws int 0 | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnAfterDialogDeletion(A, A) | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A P3- P1- P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A P3- P1- P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A P3- P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A P3- P1- P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A P1- P6- P5- P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A P1- P3
destroy the object | DLG_C | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree A P3-; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnAfterDialogDeletion(B, A) !BackToDialog OnLastDialogDeletion() | current none; popups gone, gone; tree none; focus none; objects 1
give the object another identifier | DLG_C | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A O9- O9
detach the object | DLG_C | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B C P3- P1; objects 9
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B C P3- P1; objects 9
)",
    R"(
OnDialogDeletion | BackToDialog, direct, a dialog on the way
nothing | done | true | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true {} OnAfterDialogDeletion(B, A) OnDialogActivation(A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree A P3- P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnAfterDialogDeletion(B, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | tree P3- A P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A P3- F P1; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A P3- F P1; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | throws int 0 | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, A) | =
Back(hide) | ended | throws int 0 | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, A) | =
BackToDialog(A, delete, direct) | true | throws int 0 | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, A) | =
BackToDialog(A, hide, direct) | true | throws int 0 | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, A) | =
BackToDialog(A, delete, stepwise) | true | throws int 0 | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, A) | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, A) | current none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, A) | current none; tree A- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | throws int 0 | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, A) | current C after NOTHING; tree P3- P1; focus none; objects 3
ClearDialogHistory(1, delete, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, A) | =
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A P3- P1- P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A P3- P1- P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A P3- P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A P3- P1- P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A P1- P6- P5- P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A P1- P3
destroy the object | DLG_B | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree A P3-; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !BackToDialog OnLastDialogDeletion() | current none; popups gone, gone; tree none; focus none; objects 1
give the object another identifier | DLG_B | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A O9- O9
detach the object | DLG_B | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | current C after NOTHING; history A after NOTHING left NOTHING at O1; tree A B P3- P1; objects 7
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | current C after NOTHING; history A after NOTHING left NOTHING at O1; tree A B P3- P1; objects 7
)",
    R"(
OnDialogDeletion | BackToDialog, stepwise, the first step
nothing | done | true | OnDialogDeletion(C) -> true {} OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | does not end
CreateDialog(D, INVISIBLE_ALL) | does not end
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) OnDialogDeletion(C) -> true .. | tree P3- D A P1; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) OnDialogDeletion(C) -> true .. | tree P3- D A P1; objects 7
CreateDialog(D, NOTHING) | does not end
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) OnDialogDeletion(C) -> true .. | =
CreateDialog(A, INVISIBLE) | does not end
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | does not end
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(F) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) OnDialogDeletion(C) -> true .. | tree P3- F A P1; objects 7
AddDialog(current, INVISIBLE) | does not end
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogActivation(A) OnAfterDialogDeletion(C, .. | tree B P3- A P1; objects 7
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogActivation(A) OnAfterDialogDeletion(C, .. | tree B P3- A P1; objects 7
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, .. | tree A P3- P1
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, .. | tree A B- P3- P1; objects 7
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, .. | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | does not end
ClearDialogHistory(0, hide, current) | does not end
ClearDialogHistory(0, delete) | does not end
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, .. | tree A P3- P1
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
destroy the object | DLG_C | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A P3; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | does not end
give the object another identifier | DLG_C | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | DLG_C | = | = | =
throw an int | - | = | .. throws int 7 !Back OnDialogDeletion(C) -> true .. | =
throw a std::exception | - | = | .. throws deliberate failure !Back OnDialogDeletion(C) -> true .. | =
)",
    R"(
OnDialogDeletion | BackToDialog, stepwise, the last step
nothing | done | true | OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true {} OnDialogActivation(A) OnAfterDialogDeletion(B, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | does not end
CreateDialog(D, INVISIBLE_ALL) | does not end
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(B) OnAfterDialogDeletion(B, B) OnDialogDeletion(B) -> true .. | tree P3- D A P1; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(B) OnAfterDialogDeletion(B, B) OnDialogDeletion(B) -> true .. | tree P3- D A P1; objects 7
CreateDialog(D, NOTHING) | does not end
CreateDialog(current, DELETE) | DLG_B | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(B) } OnDialogActivation(B) OnAfterDialogDeletion(B, B) OnDialogDeletion(B) -> true .. | =
CreateDialog(A, INVISIBLE) | does not end
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | does not end
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogAdded(F) } OnDialogActivation(B) OnAfterDialogDeletion(B, B) OnDialogDeletion(B) -> true .. | tree P3- F A P1; objects 7
AddDialog(current, INVISIBLE) | does not end
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnLastDialogDeletion() .. | =
Back(hide) | ended | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnLastDialogDeletion() .. | =
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() .. | =
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() .. | =
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnLastDialogDeletion() .. | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | does not end
ClearDialogHistory(0, hide, current) | does not end
ClearDialogHistory(0, delete) | does not end
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() .. | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- A P1- P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- A P1- P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- A P1- P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A P1- P6- P5- P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A P1- P3
destroy the object | DLG_B | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(B, .. | popups P3 shown; tree A P3; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | does not end
give the object another identifier | DLG_B | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | DLG_B | = | = | =
throw an int | - | = | .. throws int 7 !Back OnDialogDeletion(B) -> true .. | =
throw a std::exception | - | = | .. throws deliberate failure !Back OnDialogDeletion(B) -> true .. | =
)",
    R"(
OnDialogDeletion | ClearDialogHistory, the current dialog
nothing | done | ended | OnDialogDeletion(C) -> true {} OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) | current none; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- P1; focus none; remembered none; dynamic 0; objects 3; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, none) .. | tree P3- D P1; objects 5
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogDeactivation(B) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, none) .. | tree P3- D P1; focus O4; objects 5
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, none) .. | tree P3- D P1; objects 5
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) .. | tree P3- D P1; focus O4; objects 5
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(D, none) .. | tree P3- D P1; objects 5
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnAfterDialogDeletion(C, none) OnDialogDeletion(C) -> true .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } OnAfterDialogDeletion(A, none) .. | =
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } OnAfterDialogDeletion(F, none) .. | tree P3- F P1; objects 5
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(B) -> true OnDialogDeletion(C) -> true OnDialogAdded(F) } OnAfterDialogDeletion(F, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) .. | tree P3- F P1; focus O6; objects 5
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } OnAfterDialogDeletion(C, none) .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | tree B P3- P1; objects 5
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | tree B P3- P1; objects 5
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | tree A P3- P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | tree A B- P3- P1; focus O1; objects 7
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | tree P3- A P1; focus O1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(none, .. | =
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(none, .. | tree A- B- P3- P1; objects 7
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(C, .. | =
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | tree A P3- P1; focus O1; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- P4; objects 4
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- P5; objects 4
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- P1 P6; objects 4
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- P2; objects 4
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree P1; objects 2
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1-; objects 2
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- P4; objects 5
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- P3
destroy the object | DLG_C | = | = | =
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree P3-; objects 2
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnAfterDialogDeletion(B, none) .. | popups gone, gone; tree none; objects 1
give the object another identifier | DLG_C | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- O9
detach the object | DLG_C | = | = | =
throw an int | - | = | .. throws int 7 !ClearDialogHistory | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B C P3- P1; focus O1; objects 9
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B C P3- P1; focus O1; objects 9
)",
    R"(
OnDialogDeletion | ClearDialogHistory, a dialog of the history
nothing | done | ended | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true {} OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) | current none; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- P1; focus none; remembered none; dynamic 0; objects 3; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnAfterDialogDeletion(B, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | =
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F P1; objects 5
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F P1; objects 5
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, .. | tree A P3- P1; focus O1; objects 5
Back(hide) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, .. | tree A P3- P1; focus O1; objects 5
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, .. | tree A P3- P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, .. | tree A P3- P1; focus O1; objects 5
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, .. | tree A P3- P1; focus O1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, .. | =
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, .. | tree A- P3- P1; objects 5
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, .. | =
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, .. | tree A P3- P1; focus O1; objects 5
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | null | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- P1- P4; objects 4
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree P3- P1- P5; objects 4
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- P1 P6; objects 4
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- P1- P2; objects 4
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree P1; objects 2
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree P1-; objects 2
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- P4; objects 5
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- P3
destroy the object | DLG_B | = | = | =
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree P3-; objects 2
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnAfterDialogDeletion(A, .. | popups gone, gone; tree none; objects 1
give the object another identifier | DLG_B | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- O9
detach the object | DLG_B | = | = | =
throw an int | - | = | .. throws int 7 !ClearDialogHistory | current C after NOTHING; history A after NOTHING left NOTHING at O1; tree A B P3- P1; focus O1; objects 7
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | current C after NOTHING; history A after NOTHING left NOTHING at O1; tree A B P3- P1; focus O1; objects 7
)",
    R"(
OnDialogDeletion | ClearDialogHistory without the current dialog
nothing | done | ended | OnDialogDeletion(B) -> true {} OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) | current C after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree C P3- P1; focus none; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | current D after INVISIBLE; tree P3- D P1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | current D after INVISIBLE_ALL; tree P3- D P1; focus O4
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(C, .. | current D after DELETE; tree P3- D P1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(C, none) .. | current D after DELETE_ALL; tree P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(B, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | current D after NOTHING; tree P3- D P1
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnAfterDialogDeletion(B, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | current C after DELETE; tree P3- P1; objects 3
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } OnAfterDialogDeletion(B, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | current A after INVISIBLE kept; tree P3- P1; objects 3
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } OnAfterDialogDeletion(B, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | current F after INVISIBLE kept; tree P3- F P1
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(C) -> true OnDialogAdded(F) } OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(C, none) .. | current F after DELETE_ALL kept; tree P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } OnAfterDialogDeletion(B, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, .. | current C after INVISIBLE kept unfocussed; tree P3- P1; objects 3
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, .. | current A after NOTHING; tree A P3- P1; focus O1
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, .. | current A after NOTHING; tree A C- P3- P1; focus O1; objects 7
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, .. | current A after NOTHING; tree A P3- P1; focus O1
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, .. | current A after NOTHING; tree A C- P3- P1; focus O1; objects 7
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(A) OnAfterDialogDeletion(C, A) } OnAfterDialogDeletion(B, .. | current A after NOTHING; tree A P3- P1; focus O1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, .. | current none; tree P3- P1; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, .. | current none; tree A- C- P3- P1; objects 7
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(B, .. | =
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogActivation(A) } OnAfterDialogDeletion(B, .. | current A after NOTHING; tree A P3- P1; focus O1
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | DLG_C | = | = | =
GetHistoryStackSize | 1 | = | = | =
ContainsDialog(B) | false | = | = | =
ContainsDialog(C, current counts) | true | = | = | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree C P3- P1- P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree C P3- P1- P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree C P3- P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree C P3- P1- P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree C P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree C P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree C P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree C P1- P6- P5- P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree C P1- P3
destroy the object | DLG_B | = | = | =
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree C P3-; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnAfterDialogDeletion(A, .. | popups gone, gone; tree none; objects 1
give the object another identifier | DLG_B | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree C O9- O9
detach the object | DLG_B | = | = | =
throw an int | - | = | .. throws int 7 !ClearDialogHistory | history A after NOTHING left NOTHING at O1; tree A B C P3- P1; focus O1; objects 9
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | history A after NOTHING left NOTHING at O1; tree A B C P3- P1; focus O1; objects 9
)",
    nullptr};
