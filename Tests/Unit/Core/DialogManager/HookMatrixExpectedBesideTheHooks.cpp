// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcBesideTheHooksOutcomes[] = {
    R"(
sink | CreateDialog, the dialog is in the tree
nothing | done | DLG_A | {} OnDialogDeactivation(C) OnDialogActivation(A) | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree C- P3- A P1; focus O1; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after INVISIBLE left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- D- A P1; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after INVISIBLE_ALL left INVISIBLE at O3, C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- D- A P1; objects 9
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE left INVISIBLE, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- D- A P1; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE_ALL left INVISIBLE, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- D- A P1; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after NOTHING left INVISIBLE at O3, C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C P3- D- A P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left INVISIBLE, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- C- A P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- F- A P1; objects 9
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after DELETE_ALL kept left INVISIBLE, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- F- A P1; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeactivation(B) .. | history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree P3- B- A P1; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeactivation(B) .. | history B after INVISIBLE left INVISIBLE at O3, A after NOTHING left INVISIBLE at O1; tree C- P3- B- A P1; objects 9
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A P1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE at O3
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A P1; remembered none; objects 5
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | null | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } !CreateDialog | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } OnDialogAdded(A) .. | history none
ClearDialogHistory(0, delete) | ended | null | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } !CreateDialog | current C after DELETE; history none; tree C P3- P1; focus O3; objects 5
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A P1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree C- P3- P1- A P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree C- P3- P1- A P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree C- P3- A P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree C- P3- P1- A P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree C- P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree C- A P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree C- P1- A; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree C- P1- P6- P5- A P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree C- P1- A P3
destroy the object | DLG_C | = | .. OnDialogActivation(A) | history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A P1; remembered none; objects 5
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree C- P3- A; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_C | = | .. OnDialogActivation(A) | history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree O9 P3- A P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree C- O9- A O9
detach the object | DLG_C | = | .. OnDialogActivation(A) | history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A P1
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | CreateDialog with ODA_DELETE
nothing | done | DLG_D | {} OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- D P1; focus O4; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true .. | history D after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true .. | history D after INVISIBLE_ALL kept left DELETE at O3, C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE kept left DELETE at O3, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE_ALL kept left DELETE at O3, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true .. | history D after NOTHING kept left DELETE at O3, C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE at O3, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } .. | history A after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A D P1; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } .. | history F after INVISIBLE kept left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F D P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | history F after DELETE_ALL kept left DELETE at O3, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F D P1; focus O6; objects 9
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left DELETE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left DELETE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O2; objects 9
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left DELETE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none left DELETE at O3; tree P3- D P1; objects 5
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none left DELETE at O3
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after DELETE left DELETE at O3; tree P3- D P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- P1- D P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- P1- D P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- D P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- P1- D P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- D P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1- D; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- P6- P5- D P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- D P3
destroy the object | DLG_C | = | .. OnDialogAdded(D) .. | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- P3- D; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogAdded(D) OnDialogActivation(D) !UpdateActivePopups !UpdateActivePopups | popups none; tree D; objects 3
give the object another identifier | DLG_C | = | .. OnDialogAdded(D) .. | tree A- O9 P3- D P1; focus O3; remembered O3; objects 9
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- D O9
detach the object | DLG_C | = | .. OnDialogAdded(D) .. | remembered O3; objects 9
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | CreateDialog, the focus is refused
nothing | done | DLG_A | OnDialogDeactivation(C) {} !RecoverFocus OnDialogActivation(A) | current A after INVISIBLE kept; history C after INVISIBLE left INVISIBLE at O3, B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree B- C- P3- A P1; focus none; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(current, DELETE) | null | = | .. { CreateDialogImpl(none, true, true) -> null } .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | =
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree B- C- P3- A F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree B- C- P3- A F P1; focus O6; objects 11
AddDialog(current, INVISIBLE) | ended | = | = | =
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history none; tree P3- A P1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history none
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | null | .. { OnAfterDialogDeletion(none, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } !RecoverFocus | current none; history none; tree P3- P1; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } .. | history none; tree B- C- P3- A- P1
ClearDialogHistory(0, delete) | ended | null | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } !RecoverFocus | current none; history none; tree P3- P1; remembered none; objects 3
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, C) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, C) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, C) OnDialogActivation(A) } .. | history none; tree P3- A P1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree B- C- P3- P1- A P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree B- C- P3- P1- A P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree B- C- P3- A P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree B- C- P3- P1- A P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree B- C- P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree B- C- A P1; objects 8
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree B- C- P1- A; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree B- C- P1- A P6- P5- P4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree B- C- P1- A P3
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree B- C- P3- A; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. !RecoverFocus | current none; popups gone, gone; tree none; remembered none; objects 1
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree B- C- O9- A O9
detach the object | null | = | = | =
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | AddDialog
nothing | done | ended | OnDialogDeactivation(C) {} OnDialogAdded(D) | current D after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(current, DELETE) | null | = | .. { CreateDialogImpl(none, true, true) -> null } .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | tree C- P3- D A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A- C- P3- D F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A- C- P3- D F P1; focus O6; objects 11
AddDialog(current, INVISIBLE) | ended | = | = | =
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history none; tree P3- D A P1; focus O1; remembered none; objects 7
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history none; tree C- P3- D A P1; focus O1
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, C) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, C) OnAfterDialogDeletion(B, C) OnDialogActivation(A) } .. | history none; tree P3- D A P1; focus O1; remembered none; objects 7
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C- P3- P1- D P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- C- P3- P1- D P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C- P3- D P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C- P3- P1- D P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
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
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogAdded(D) !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | null | = | = | =
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | Back, the dialog left
nothing | done | ended | {} OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus O2; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D C P1; focus O3; objects 9
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D C P1; focus O3; objects 9
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus none
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; focus O3
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } OnDialogDeletion(C) -> true OnDialogDeactivation(A) !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A- P1; focus none; objects 5
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } OnDialogDeletion(C) -> true !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F C P1; focus O3; objects 9
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } OnDialogDeletion(C) -> true !MakeDialogVisible OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1; focus none; objects 5
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogActivation(A) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B A P1; focus O1
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeletion(C) -> true OnDialogActivation(A) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B A P1; focus O1
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeletion(C) -> true OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } OnDialogDeletion(C) -> true OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history none; tree A- P3- P1; focus none; objects 5
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnDialogDeletion(C) -> true OnLastDialogDeletion() OnAfterDialogDeletion(C, C) | current C after DELETE; history none; tree P3- P1; focus none; objects 3
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- P1- B P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- P1- B P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- B P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- P1- B P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- B P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1- B; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- P6- P5- B P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
destroy the object | DLG_C | = | .. OnDialogActivation(B) .. | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A- B P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogActivation(B) !UpdateActivePopups !UpdateActivePopups .. | popups none; tree B; objects 3
give the object another identifier | DLG_C | = | .. OnDialogActivation(B) .. | tree A- O9 P3- B P1; remembered O3; objects 9
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | DLG_C | = | .. OnDialogActivation(B) .. | remembered O3; objects 9
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | Back, the focus is refused
nothing | done | ended | OnDialogDeletion(C) -> true {} !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus none; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, D) | current D after INVISIBLE; history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, D) | current D after INVISIBLE_ALL; history B after INVISIBLE left INVISIBLE_ALL, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } !RecoverFocus OnAfterDialogDeletion(C, D) | current D after DELETE; history B after INVISIBLE left DELETE, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } !RecoverFocus OnAfterDialogDeletion(C, D) | current D after DELETE_ALL; history B after INVISIBLE left DELETE_ALL, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, D) | current D after NOTHING; history B after INVISIBLE left NOTHING, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O4; objects 9
CreateDialog(current, DELETE) | DLG_B | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(B) } !RecoverFocus .. | current B after DELETE; history B after INVISIBLE left DELETE, A after NOTHING left INVISIBLE at O1; focus O2
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) } !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, A) | current A after INVISIBLE kept; history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree P3- B- A P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(F) } !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, F) | current F after INVISIBLE kept; history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(F) } !RecoverFocus OnAfterDialogDeletion(C, F) | current F after DELETE_ALL kept; history B after INVISIBLE left DELETE_ALL, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(B) } .. | current B after INVISIBLE kept unfocussed; history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- P1
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } !RecoverFocus OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; objects 5
Back(hide) | ended | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) OnAfterDialogDeletion(B, A) } !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B- A P1
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } !RecoverFocus OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B- A P1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } !RecoverFocus OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; objects 5
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } !RecoverFocus OnAfterDialogDeletion(C, none) | current none; history none; tree P3- P1; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, none) | current none; history none; tree A- P3- B- P1
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- B P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } !RecoverFocus OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; objects 5
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
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- B P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- P1- B; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- B P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
destroy the object | DLG_B | = | .. OnAfterDialogDeletion(C, .. | tree A- P3- P1; objects 5
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A- B P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups .. | popups none; tree none; objects 1
give the object another identifier | DLG_B | = | .. OnDialogActivation(O9) .. | tree A- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | DLG_B | = | = | tree A- P3- P1
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | ShowPopup of a listed popup
nothing | done | POP_1 | {} | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null } | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1; focus none
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1; focus O2; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree C P3- P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C P3- P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- C P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3
destroy the object | DLG_C | = | = | tree A- P3- P1; focus none; remembered none; objects 5
destroy the object of P1 | POP_1 | null | = | popups P3 hidden, gone; tree A- C P3-; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | = | popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_C | = | = | tree A- O9 P3- P1
give all popups one identifier | done | OBJ_9 | = | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | DLG_C | = | = | tree A- P3- P1; focus none
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | ShowPopup of a displayed popup
nothing | done | POP_1 | {} | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null } | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1; focus none
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1; focus O2; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree C P3- P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden 3000 ms, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden 3000 ms, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C P3- P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden 3000 ms, P2 shown 1000 ms; tree A- C P3- P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- C P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3
destroy the object | DLG_C | = | = | tree A- P3- P1; focus none; remembered none; objects 5
destroy the object of P1 | POP_1 | null | = | popups P3 hidden, gone; tree A- C P3-; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | = | popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_C | = | = | tree A- O9 P3- P1
give all popups one identifier | done | OBJ_9 | = | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | DLG_C | = | = | tree A- P3- P1; focus none
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | UpdateActivePopups, a popup is lost
nothing | done | ended | {} !UpdateActivePopups | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden; tree A- C P3-; focus O3; remembered O3; dynamic 0; objects 6; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D; focus O4; objects 8
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D; focus O4; objects 8
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D; objects 8
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F; focus O6; objects 8
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3-; focus none
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P3) OnAfterDialogDeletion(C, B) } !UpdateActivePopups OnPopupDeactivation(P3) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- B P3-; focus O2; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnPopupActivation(P3) OnAfterDialogDeletion(C, B) } !UpdateActivePopups OnPopupDeactivation(P3) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- B P3-; focus O2; objects 8
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree P3- A; focus O1; remembered none; objects 4
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree C- P3- A; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P3) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } !UpdateActivePopups OnPopupDeactivation(P3) | current A after NOTHING; history none; tree A P3-; focus O1; remembered none; objects 4
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P3-; focus none; remembered none; objects 2
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3-; focus none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P3-; objects 4
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree P3- A; focus O1; remembered none; objects 4
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) } .. | popups P3 hidden, P4 shown 1000 ms; tree A- C P3- P4; objects 7
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) } .. | popups P3 hidden, P5 shown; tree A- C P3- P5; objects 7
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown; tree A- C P3- P6; objects 7
ShowPopup(P1) | POP_1 | = | { OnPopupActivation(P1) } .. | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) } .. | popups P3 hidden, P2 shown 1000 ms; tree A- C P3- P2; objects 7
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | false | = | = | =
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } .. | popups none; tree A- C; objects 5
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | false | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | false false true | = | { OnPopupDeactivation(P3) } .. | popups none; tree A- C; objects 5
close all popups and show P6, P5, P4 | false false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P6- P5- P4; objects 8
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | = | =
destroy the object | DLG_C | = | = | tree A- P3-; focus none; remembered none; objects 4
destroy the object of P1 | null | = | = | =
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_C | = | = | tree A- O9 P3-
give all popups one identifier | done | = | = | popups O9 hidden; tree A- C O9-
detach the object | DLG_C | = | = | tree A- P3-; focus none
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
sink | UpdateActivePopups, a popup is displayed
nothing | done | ended | {} | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null } | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1; focus none
AddDialog(null) | ended | = | = | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1; focus O2; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | = | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree C P3- P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C P3- P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | = | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } OnPopupDeactivation(P3) | popups P3 hidden; tree A- C P1- P3-
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- C P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } OnPopupDeactivation(P3) | popups P3 hidden; tree A- C P1- P3-
destroy the object | DLG_C | = | = | tree A- P3- P1; focus none; remembered none; objects 5
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree A- C P3-; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | {} !UpdateActivePopups | popups gone; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_C | = | = | tree A- O9 P3- P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | DLG_C | = | = | tree A- P3- P1; focus none
throw an int | - | = | = | =
throw a std::exception | - | = | = | =
)",
    R"(
SetInvisible | CreateDialog, the dialog is loaded
nothing | done | DLG_D | {} OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after INVISIBLE_ALL kept left INVISIBLE at O3, C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE kept left INVISIBLE, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; remembered none; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE_ALL kept left INVISIBLE, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; remembered none; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after NOTHING kept left INVISIBLE at O3, C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; focus O3
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left INVISIBLE, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C- D P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- D P1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F- D P1; objects 11
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after DELETE_ALL kept left INVISIBLE, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F- D P1; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
AddDialog(null) | ended | = | { !AddDialog } .. | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeactivation(B) .. | history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeactivation(B) .. | history B after INVISIBLE left INVISIBLE at O3, A after NOTHING left INVISIBLE at O1; tree A- C- P3- B- D P1; objects 11
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 7
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE at O3; tree C- P3- A- D P1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 7
BackToDialog(unknown) | false | = | { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after DELETE left INVISIBLE at O3; tree C- P3- D P1; objects 7
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 7
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C- P3- P1- D P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- C- P3- P1- D P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C- P3- D P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C- P3- P1- D P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | { !ShowPopup } .. | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- C- D P1; objects 8
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- C- P1- D; remembered none; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- P6- P5- D P4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
destroy the object | DLG_D | null | .. CreateDialogImpl(D, true, true) -> null !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; objects 7
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. CreateDialogImpl(D, true, true) -> null !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_D | OBJ_9 | .. OnDialogAdded(O9) OnDialogActivation(O9) | current O9 after INVISIBLE; tree A- C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_D | = | = | tree A- C- P3- P1; focus none
throw an int | - | null | !CreateDialog !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; objects 7
throw a std::exception | - | null | !CreateDialog !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; objects 7
)",
    R"(
SetInvisible | CreateDialog, the dialog left is hidden
nothing | done | DLG_D | OnDialogDeactivation(C) {} OnDialogAdded(D) OnDialogActivation(D) | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE_ALL kept left INVISIBLE at O3, C after DELETE left INVISIBLE_ALL, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE kept left INVISIBLE at O3, C after DELETE left DELETE, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; remembered none; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE_ALL kept left INVISIBLE at O3, C after DELETE left DELETE_ALL, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; remembered none; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | history D after NOTHING kept left INVISIBLE at O3, C after DELETE left NOTHING, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left INVISIBLE at O3, C after DELETE left DELETE, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C D P1; focus O3; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | history A after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A D P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | history F after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F D P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | history F after DELETE_ALL kept left INVISIBLE at O3, C after DELETE left DELETE_ALL, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F D P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left INVISIBLE at O3, C after DELETE left INVISIBLE, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left INVISIBLE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left INVISIBLE at O3, A after NOTHING left INVISIBLE at O1; tree A- C- P3- B D P1; focus O2; objects 11
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left INVISIBLE at O3; tree P3- A D P1; focus O1; remembered none; objects 7
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left INVISIBLE at O3; tree C- P3- A D P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | history A after NOTHING left INVISIBLE at O3; tree P3- A D P1; focus O1; remembered none; objects 7
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none left INVISIBLE at O3; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none left INVISIBLE at O3
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after DELETE left INVISIBLE at O3; tree C- P3- D P1; objects 7
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | history A after NOTHING left INVISIBLE at O3; tree P3- A D P1; focus O1; remembered none; objects 7
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
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- C- P1- D; remembered none; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- P6- P5- D P4; remembered none; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
destroy the object | DLG_C | = | = | tree A- P3- D P1; remembered none; objects 7
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogActivation(D) !UpdateActivePopups !UpdateActivePopups | popups none; tree D; remembered none; objects 3
give the object another identifier | DLG_C | = | = | tree A- O9- P3- D P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_C | = | = | tree A- P3- D P1
throw an int | - | throws int 7 | OnDialogDeactivation(C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1 D; focus none
throw a std::exception | - | throws deliberate failure | OnDialogDeactivation(C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1 D; focus none
)",
    R"(
SetInvisible | CreateDialog, the dialog is shown
nothing | done | DLG_D | OnDialogDeactivation(C) {} OnDialogAdded(D) OnDialogActivation(D) | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | =
CreateDialog(current, DELETE) | null | = | .. { CreateDialogImpl(none, true, true) -> null !CreateDialog } .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | tree C- P3- A D P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A- C- P3- F D P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A- C- P3- F D P1; focus O6; objects 11
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history none; tree P3- A D P1; focus O1; remembered none; objects 7
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history none; tree C- P3- A D P1; focus O1
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, C) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, C) OnAfterDialogDeletion(B, C) OnDialogActivation(A) } .. | history none; tree P3- A D P1; focus O1; remembered none; objects 7
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
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- P6- P5- D P4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
destroy the object | DLG_D | null | .. {} | current none; tree A- C- P3- P1; focus none; objects 7
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. {} | current none; popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_D | OBJ_9 | .. OnDialogAdded(O9) OnDialogActivation(O9) | current O9 after INVISIBLE; tree A- C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_D | = | = | tree A- C- P3- P1; focus none
throw an int | - | throws int 7 | OnDialogDeactivation(C) | current none; tree A- C- P3- P1 D; focus none
throw a std::exception | - | throws deliberate failure | OnDialogDeactivation(C) | current none; tree A- C- P3- P1 D; focus none
)",
    R"(
SetInvisible | Back, the dialog that comes back is shown
nothing | done | ended | OnDialogDeletion(C) -> true {} !RecoverFocus OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus none; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 9
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 9
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; focus O4; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after INVISIBLE left DELETE, A after NOTHING left INVISIBLE at O1; tree A- P3- C B P1; focus O3; objects 9
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { !RecoverFocus OnDialogActivation(A) } .. | tree P3- A B P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A- P3- F B P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A- P3- F B P1; focus O6; objects 9
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { !RecoverFocus OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none; tree P3- A B P1
Back(hide) | ended | = | .. { !RecoverFocus OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none; tree P3- A B P1
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) !RecoverFocus OnDialogActivation(A) } .. | history none; tree P3- A B P1
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) !RecoverFocus OnDialogActivation(A) } .. | history none; tree P3- A B P1
BackToDialog(A, delete, stepwise) | true | = | .. { !RecoverFocus OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none; tree P3- A B P1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- B P1; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- B P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, A) !RecoverFocus OnDialogActivation(A) } .. | history none; tree P3- A B P1
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
destroy the object | DLG_B | = | .. OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; tree A- P3- P1; objects 5
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A- B P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnLastDialogDeletion() !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, none) | current none; popups none; tree none; objects 1
give the object another identifier | DLG_B | = | .. OnDialogActivation(O9) .. | tree A- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | DLG_B | = | = | tree A- P3- P1
throw an int | - | = | .. !Back | current C after INVISIBLE; tree A- B P3- P1
throw a std::exception | - | = | .. !Back | current C after INVISIBLE; tree A- B P3- P1
)",
    R"(
SetInvisible | Back, an older dialog is shown
nothing | done | ended | OnDialogDeletion(C) -> true {} OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after NOTHING; history A after NOTHING left NOTHING at O1; popups P3 hidden, P1 shown 3000 ms; tree B P3- A P1; focus O1; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; objects 9
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; objects 9
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B P3- D A P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true .. | history C after NOTHING left DELETE at O1, A after NOTHING left NOTHING at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | =
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree B P3- F A P1; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree B P3- F A P1; objects 9
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none
Back(hide) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } .. | history none
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree B P3- P1; focus none; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } !RecoverFocus .. | history none; tree B P3- A- P1; focus O2
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree B P3- P1; focus none; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } .. | history none
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree B P3- P1- A P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree B P3- P1- A P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree B P3- A P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree B P3- P1- A P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree B P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree B A P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree B P1- A; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree B P1- P6- P5- A P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree B P1- A P3
destroy the object | DLG_A | = | = | tree B P3- P1; focus none; objects 5
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree B A P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnLastDialogDeletion() !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, none) | current none; popups none; tree none; focus none; objects 1
give the object another identifier | DLG_A | = | = | tree B P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree B O9- A O9
detach the object | DLG_A | = | = | tree B P3- P1; focus none
throw an int | - | = | .. !Back | current C after NOTHING; tree A B P3- P1
throw a std::exception | - | = | .. !Back | current C after NOTHING; tree A B P3- P1
)",
    R"(
SetInvisible | ShowPopup, the popup is about to be listed
nothing | done | POP_2 | {} OnPopupActivation(P2) OnPopupDeactivation(P1) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; focus O3; remembered O3; dynamic 0; objects 8; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1- P2; focus O4; objects 10
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1- P2; focus O4; objects 10
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1- P2; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1- P2; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1- P2; objects 10
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1- P2; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1- P2; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1- P2; focus O6; objects 10
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1- P2; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- P2; focus none
AddDialog(null) | ended | = | { !AddDialog } .. | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1- P2; focus O2; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1- P2; focus O2; objects 10
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree P3- A P1- P2; focus O1; remembered none; objects 6
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree C- P3- A P1- P2; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | current A after NOTHING; history none; tree P3- A P1- P2; focus O1; remembered none; objects 6
BackToDialog(unknown) | false | = | { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P3- P1- P2; focus none; remembered none; objects 4
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3- P1- P2; focus none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P3- P1- P2; objects 6
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree P3- A P1- P2; focus O1; remembered none; objects 6
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 hidden, P4 shown 1000 ms; tree A- C P3- P1- P2- P4; objects 9
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P1 hidden, P2 shown 1000 ms, P5 shown; tree A- C P3- P1- P5 P2; objects 9
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } OnPopupActivation(P2) OnPopupDeactivation(P1) OnPopupDeactivation(P6) | popups P3 hidden, P6 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P6- P2; objects 9
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms, P2 shown 1000 ms
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | { !ShowPopup } .. | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } OnPopupActivation(P2) OnPopupDeactivation(P3) | popups P3 hidden, P2 shown 1000 ms; tree A- C P1- P3- P2
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } .. | popups P1 hidden, P2 shown 1000 ms; tree A- C P1- P2; objects 7
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } OnPopupActivation(P2) | popups P2 shown 1000 ms; tree A- C P1- P2; remembered none; objects 7
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P2 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P2- P6- P5- P4; objects 10
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } OnPopupActivation(P2) OnPopupDeactivation(P3) | popups P3 hidden, P2 shown 1000 ms; tree A- C P1- P3- P2
destroy the object | POP_2 | null | .. !UpdateActivePopups .. | popups P3 hidden, P1 hidden; tree A- C P3- P1-; objects 7
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups | popups P3 hidden, P2 shown 1000 ms; tree A- C P3- P2; objects 7
destroy the object of P2 | POP_2 | null | .. !UpdateActivePopups .. | popups P3 hidden, P1 hidden; tree A- C P3- P1-; objects 7
destroy all objects | done | null | .. !UpdateActivePopups !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_2 | OBJ_9 | .. OnPopupActivation(O9) .. | popups P3 hidden, P1 hidden, O9 shown 1000 ms; tree A- C P3- P1- O9
give all popups one identifier | done | OBJ_9 | .. OnPopupActivation(O9) OnPopupDeactivation(O9) | popups O9 hidden, O9 hidden, O9 shown 1000 ms; tree A- C O9- O9- O9
detach the object | POP_2 | = | = | =
throw an int | - | throws int 7 | none | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1 P2-
throw a std::exception | - | throws deliberate failure | none | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1 P2-
)",
    R"(
SetInvisible | ShowPopup, the popup is shown
nothing | done | POP_2 | {} OnPopupActivation(P2) OnPopupDeactivation(P1) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; focus O3; remembered O3; dynamic 0; objects 8; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- D P2; focus O4; objects 10
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- D P2; focus O4; objects 10
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- D P2; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- D P2; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1- D P2; objects 10
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) OnPopupDeactivation(P1) } OnPopupActivation(P2) | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- C P2; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- P1- A P2; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- F P2; focus O6; objects 10
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- F P2; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- P2; focus none
AddDialog(null) | ended | = | { !AddDialog } .. | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupDeactivation(P1) OnAfterDialogDeletion(C, B) } OnPopupActivation(P2) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- P1- B P2; focus O2; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnPopupDeactivation(P1) OnAfterDialogDeletion(C, B) } OnPopupActivation(P2) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- B P2; focus O2; objects 10
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current A after NOTHING; history none; tree C- P3- P1- A P2; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupDeactivation(P1) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnPopupActivation(P2) | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
BackToDialog(unknown) | false | = | { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P3- P1- P2; focus none; remembered none; objects 4
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3- P1- P2; focus none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P3- P1- P2; objects 6
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) OnPopupDeactivation(P1) } OnPopupActivation(P2) | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P2) OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P1 hidden, P2 hidden 1000 ms, P4 shown 1000 ms; tree A- C P3- P1- P2- P4; objects 9
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P1 hidden, P5 shown, P2 shown 1000 ms; tree A- C P3- P1- P2 P5; objects 9
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P6 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P6- P2; objects 9
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | = | =
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | { !ShowPopup } .. | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P2 shown 1000 ms
ClosePopup(P2) | true | throws int 0 | { OnPopupDeactivation(P2) } | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P1 hidden, P2 shown 1000 ms; tree A- C P1- P2; objects 7
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | true | = | = | =
close all popups | true true true | throws int 0 | { OnPopupDeactivation(P1) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true true true POP_6 POP_5 POP_4 | throws int 0 | { OnPopupDeactivation(P1) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | { OnPopupDeactivation(P1) } OnPopupActivation(P2) | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P2 shown 1000 ms
destroy the object | POP_2 | null | .. OnPopupDeactivation(P1) | popups P3 hidden, P1 hidden, gone; tree A- C P3- P1-; objects 7
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups | popups P3 hidden, P2 shown 1000 ms; tree A- C P3- P2; objects 7
destroy the object of P2 | POP_2 | null | .. OnPopupDeactivation(P1) | popups P3 hidden, P1 hidden, gone; tree A- C P3- P1-; objects 7
destroy all objects | done | null | .. !UpdateActivePopups !UpdateActivePopups | popups gone; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_2 | OBJ_9 | .. OnPopupActivation(O9) .. | popups P3 hidden, P1 hidden, O9 shown 1000 ms; tree A- C P3- P1- O9
give all popups one identifier | done | OBJ_9 | .. OnPopupActivation(O9) OnPopupDeactivation(O9) | popups O9 hidden, O9 hidden, O9 shown 1000 ms; tree A- C O9- O9- O9
detach the object | POP_2 | = | = | popups P3 hidden, P1 hidden, P2 shown detached 1000 ms; tree A- C P3- P1-
throw an int | - | throws int 7 | none | popups P3 hidden, P1 shown 3000 ms, P2 shown; tree A- C P3- P1 P2
throw a std::exception | - | throws deliberate failure | none | popups P3 hidden, P1 shown 3000 ms, P2 shown; tree A- C P3- P1 P2
)",
    R"(
SetInvisible | ShowPopup, a popup of lower priority is hidden
nothing | done | POP_2 | OnPopupActivation(P2) {} OnPopupDeactivation(P1) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; focus O3; remembered O3; dynamic 0; objects 8; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- D P2; focus O4; objects 10
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- D P2; focus O4; objects 10
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- D P2; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- D P2; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1- D P2; objects 10
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- C P2; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- P1- A P2; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- F P2; focus O6; objects 10
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- F P2; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- P2; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- P1- B P2; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- B P2; focus O2; objects 10
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree C- P3- P1- A P2; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P3- P1- P2; focus none; remembered none; objects 4
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3- P1- P2; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P3- P1- P2; objects 6
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P2) } .. | popups P3 hidden, P1 hidden, P2 hidden, P4 shown 1000 ms; tree A- C P3- P1- P2- P4; objects 9
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) } .. | popups P3 hidden, P1 hidden, P5 shown, P2 shown 1000 ms; tree A- C P3- P1- P2 P5; objects 9
ShowPopup(P6, as high as P1) | POP_6 | = | = | popups P3 hidden, P6 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P6- P2; objects 9
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | = | =
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | throws int 0 | .. { OnPopupDeactivation(P1) } | popups P3 hidden, P2 shown 1000 ms
ClosePopup(P2) | true | null | .. { OnPopupDeactivation(P2) OnPopupActivation(P1) } .. | popups P3 hidden, P1 shown; tree A- C P3- P1; objects 7
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 hidden, P2 shown 1000 ms; tree A- C P1- P2; objects 7
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | false | = | = | =
IsPopupInPopupList(P2) | true | = | = | =
close all popups | true true true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true true true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | throws int 0 | .. { OnPopupDeactivation(P2) OnPopupActivation(P1) OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3; objects 7
destroy the object | POP_1 | = | .. {} | popups P3 hidden, gone, P2 shown 1000 ms; tree A- C P3- P2; objects 7
destroy the object of P1 | POP_1 | = | .. {} | popups P3 hidden, gone, P2 shown 1000 ms; tree A- C P3- P2; objects 7
destroy the object of P2 | POP_2 | null | = | popups P3 hidden, P1 hidden, gone; tree A- C P3- P1-; objects 7
destroy all objects | done | null | .. !UpdateActivePopups | popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_1 | = | .. OnPopupDeactivation(O9) | popups P3 hidden, O9 hidden, P2 shown 1000 ms; tree A- C P3- O9- P2
give all popups one identifier | done | OBJ_9 | .. OnPopupDeactivation(O9) | popups O9 hidden, O9 hidden, O9 shown 1000 ms; tree A- C O9- O9- O9
detach the object | POP_1 | = | = | popups P3 hidden, P1 hidden detached, P2 shown 1000 ms; tree A- C P3- P2
throw an int | - | throws int 7 | OnPopupActivation(P2) | popups P3 hidden, P1 hidden 3000 ms, P2 shown 1000 ms
throw a std::exception | - | throws deliberate failure | OnPopupActivation(P2) | popups P3 hidden, P1 hidden 3000 ms, P2 shown 1000 ms
)",
    R"(
SetInvisible | ClosePopup, hide on close
nothing | done | true | {} OnPopupDeactivation(P1) OnPopupActivation(P3) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 shown; tree A- C P1- P3; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- D P1- P3; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- D P1- P3; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- D P1- P3; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- D P1- P3; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C D P1- P3; objects 9
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) OnPopupActivation(P1) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- A P1- P3; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) OnPopupActivation(P1) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- F P1- P3; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) OnPopupActivation(P1) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- F P1- P3; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) OnPopupActivation(P1) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P1- P3; focus none
AddDialog(null) | ended | = | { !AddDialog } .. | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- B P1- P3; focus O2; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- B P1- P3; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree C- A P1- P3; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P1- P3; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P1- P3; focus none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P1- P3; objects 5
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) } OnPopupDeactivation(P1) | popups P3 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) } OnPopupDeactivation(P1) | popups P3 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P1) OnPopupActivation(P6) } OnPopupDeactivation(P1) | popups P3 hidden, P6 shown; tree A- C P3- P1- P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) } OnPopupDeactivation(P1) | popups P3 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | { !ShowPopup } .. | =
ClosePopup(P1) | true | throws int 0 | { OnPopupDeactivation(P1) OnPopupActivation(P3) } | =
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) OnPopupActivation(P1) } OnPopupDeactivation(P1) | popups none; tree A- C P1-; remembered none; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | false | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | throws int 0 | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | throws int 0 | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | { OnPopupActivation(P1) } .. | =
run the timer five seconds late | ended | throws int 0 | { OnPopupDeactivation(P1) OnPopupActivation(P3) } | =
destroy the object | POP_1 | = | .. OnPopupActivation(P3) | tree A- C P3; objects 6
destroy the object of P1 | POP_1 | = | .. OnPopupActivation(P3) | tree A- C P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_1 | = | .. OnPopupDeactivation(O9) .. | tree A- C O9- P3
give all popups one identifier | done | = | .. OnPopupDeactivation(O9) OnPopupActivation(O9) | popups O9 shown; tree A- C O9- O9
detach the object | POP_1 | = | = | tree A- C P3
throw an int | - | throws int 7 | none | popups P3 hidden, P1 hidden 3000 ms; tree A- C P3- P1-
throw a std::exception | - | throws deliberate failure | none | popups P3 hidden, P1 hidden 3000 ms; tree A- C P3- P1-
)",
    R"(
SetInvisible | ClosePopup, delete on close
nothing | done | true | {} OnPopupDeactivation(P2) OnPopupActivation(P1) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) OnPopupActivation(P2) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) OnPopupActivation(P2) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) OnPopupActivation(P2) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) OnPopupActivation(P2) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) OnPopupActivation(P2) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1; focus none
AddDialog(null) | ended | = | { !AddDialog } .. | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P2) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1; focus O2; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnPopupActivation(P2) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P2) } .. | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P2) } .. | current A after NOTHING; history none; tree C- P3- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P2) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P3- P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) OnPopupActivation(P2) } .. | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) } OnPopupDeactivation(P2) | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P2) OnPopupActivation(P5) } OnPopupDeactivation(P2) | popups P3 hidden, P1 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P2) } OnPopupDeactivation(P2) OnPopupActivation(P1) OnPopupActivation(P6) | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C P3- P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | = | =
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | { !ShowPopup } .. | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P2) } OnPopupDeactivation(P2) OnPopupActivation(P3) | popups P3 shown; tree A- C P1- P3
ClosePopup(P2) | true | throws int 0 | { OnPopupDeactivation(P2) OnPopupActivation(P1) } | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) OnPopupActivation(P2) } .. | popups P1 shown 3000 ms; tree A- C P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | false | = | = | =
IsPopupInPopupList(P2) | true | = | = | =
close all popups | true true true | throws int 0 | { OnPopupDeactivation(P1) OnPopupActivation(P2) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true true true POP_6 POP_5 POP_4 | throws int 0 | { OnPopupDeactivation(P1) OnPopupActivation(P2) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | { OnPopupActivation(P2) } .. | =
run the timer five seconds late | ended | throws int 0 | { OnPopupDeactivation(P2) OnPopupActivation(P1) } | =
destroy the object | POP_2 | = | .. OnPopupActivation(P1) | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups | popups P3 hidden; tree A- C P3-; objects 6
destroy the object of P2 | POP_2 | = | .. OnPopupActivation(P1) | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_2 | = | .. OnPopupDeactivation(O9) .. | =
give all popups one identifier | done | = | .. OnPopupDeactivation(O9) OnPopupActivation(O9) | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | POP_2 | = | = | =
throw an int | - | throws int 7 | none | popups P3 hidden, P1 hidden, P2 hidden 1000 ms; tree A- C P3- P1- P2-; objects 8
throw a std::exception | - | throws deliberate failure | none | popups P3 hidden, P1 hidden, P2 hidden 1000 ms; tree A- C P3- P1- P2-; objects 8
)",
    R"(
SetParent | CreateDialog, the dialog is loaded
nothing | done | DLG_D | {} OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after INVISIBLE_ALL kept left INVISIBLE at O3, C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE kept left INVISIBLE, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; remembered none; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after DELETE_ALL kept left INVISIBLE, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; remembered none; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeactivation(D) .. | history D after NOTHING kept left INVISIBLE at O3, C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; focus O3
CreateDialog(current, DELETE) | DLG_C | = | { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left INVISIBLE, C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C- D P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | { OnDialogDeactivation(C) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A- D P1
CreateDialog(unknown, DELETE) | null | = | { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after INVISIBLE kept left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F- D P1; objects 11
AddDialog(new, DELETE_ALL) | ended | = | { OnDialogDeletion(C) -> true OnDialogAdded(F) } OnDialogDeactivation(F) .. | history F after DELETE_ALL kept left INVISIBLE, C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F- D P1; remembered none
AddDialog(current, INVISIBLE) | ended | = | { OnDialogDeactivation(C) OnDialogAdded(C) } .. | history C after INVISIBLE kept unfocussed left INVISIBLE at O3, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
AddDialog(null) | ended | = | { !AddDialog } .. | =
Back(delete) | ended | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeactivation(B) .. | history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; remembered none
Back(hide) | ended | = | { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogDeactivation(B) .. | history B after INVISIBLE left INVISIBLE at O3, A after NOTHING left INVISIBLE at O1; tree A- C- P3- B- D P1; objects 11
BackToDialog(A, delete, direct) | true | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 7
BackToDialog(A, hide, direct) | true | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE at O3; tree C- P3- A- D P1
BackToDialog(A, delete, stepwise) | true | = | { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 7
BackToDialog(unknown) | false | = | { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- D P1; remembered none; objects 5
ClearDialogHistory(0, hide, current) | ended | = | { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none
ClearDialogHistory(0, delete) | ended | = | { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after DELETE left INVISIBLE at O3; tree C- P3- D P1; objects 7
ClearDialogHistory(1, delete, current) | ended | = | { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnDialogDeactivation(A) .. | history A after NOTHING left INVISIBLE; tree P3- A- D P1; remembered none; objects 7
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
ShowPopup(P4, highest) | POP_4 | = | { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C- P3- P1- D P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- C- P3- P1- D P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C- P3- D P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C- P3- P1- D P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | { !ShowPopup } .. | =
ClosePopup(P1) | true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree A- C- D P1; objects 8
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree A- C- P1- D; remembered none; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- P6- P5- D P4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- C- P1- D P3
destroy the object | DLG_D | null | .. CreateDialogImpl(D, true, true) -> null !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; objects 7
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. CreateDialogImpl(D, true, true) -> null !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_D | OBJ_9 | .. OnDialogAdded(O9) OnDialogActivation(O9) | current O9 after INVISIBLE; tree A- C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_D | = | = | tree A- C- P3- P1; focus none
throw an int | - | null | !CreateDialog !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; objects 7
throw a std::exception | - | null | !CreateDialog !CreateDialog | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1; focus O3; objects 7
)",
    R"(
SetParent | ShowPopup, a popup of CreatePopupImpl is attached
nothing | done | POP_2 | !LoadDialogDescription CreatePopupImpl(P2) -> P2 {} OnPopupActivation(P2) OnPopupDeactivation(P1) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; focus O3; remembered O3; dynamic 0; objects 8; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- D P2; focus O4; objects 10
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- D P2; focus O4; objects 10
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- D P2; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- D P2; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1- D P2; objects 10
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) OnPopupActivation(P2) OnPopupDeactivation(P1) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- C P2; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- P1- A P2; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- F P2; focus O6; objects 10
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- F P2; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- P2; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P2) OnPopupDeactivation(P1) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- P1- B P2; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnPopupActivation(P2) OnPopupDeactivation(P1) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- B P2; focus O2; objects 10
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current A after NOTHING; history none; tree C- P3- P1- A P2; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P2) OnPopupDeactivation(P1) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P3- P1- P2; focus none; remembered none; objects 4
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3- P1- P2; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P3- P1- P2; objects 6
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) OnPopupActivation(P2) OnPopupDeactivation(P1) } | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P1 hidden, P2 shown 1000 ms, P4 shown 1000 ms; tree A- C P3- P1- P2 P4; objects 9
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P2) OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown, P2 shown 1000 ms; tree A- C P3- P1- P2 P5; objects 9
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P6 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P6- P2; objects 9
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | = | =
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P2) } | popups P3 hidden, P2 shown 1000 ms
ClosePopup(P2) | true | throws int 0 | .. { OnPopupDeactivation(P2) } | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P1 hidden, P2 shown 1000 ms; tree A- C P1- P2; objects 7
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | true | = | = | =
close all popups | true true true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P2) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true true true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P2) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P2) } | popups P3 hidden, P2 shown 1000 ms
destroy the object | POP_2 | null | .. OnPopupDeactivation(P1) | popups P3 hidden, P1 hidden, gone; tree A- C P3- P1-; objects 7
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups | popups P3 hidden, P2 shown 1000 ms; tree A- C P3- P2; objects 7
destroy the object of P2 | POP_2 | null | .. OnPopupDeactivation(P1) | popups P3 hidden, P1 hidden, gone; tree A- C P3- P1-; objects 7
destroy all objects | done | null | .. !UpdateActivePopups !UpdateActivePopups | popups gone; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_2 | OBJ_9 | .. OnPopupActivation(O9) .. | popups P3 hidden, P1 hidden, O9 shown 1000 ms; tree A- C P3- P1- O9
give all popups one identifier | done | OBJ_9 | .. OnPopupActivation(O9) OnPopupDeactivation(O9) | popups O9 hidden, O9 hidden, O9 shown 1000 ms; tree A- C O9- O9- O9
detach the object | POP_2 | = | = | popups P3 hidden, P1 hidden, P2 shown detached 1000 ms; tree A- C P3- P1-
throw an int | - | throws int 7 | .. P2 | popups P3 hidden, P1 shown 3000 ms, P2 hidden; tree A- C P3- P1 P2-
throw a std::exception | - | throws deliberate failure | .. P2 | popups P3 hidden, P1 shown 3000 ms, P2 hidden; tree A- C P3- P1 P2-
)",
    R"(
FocusAny | CreateDialog, a child of the new dialog is asked
nothing | done | DLG_D | OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) {} | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after INVISIBLE kept; history D after INVISIBLE left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL kept; history D after INVISIBLE left INVISIBLE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE; history D after INVISIBLE left DELETE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE_ALL; history D after INVISIBLE left DELETE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after NOTHING kept; history D after INVISIBLE left NOTHING at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE; history D after INVISIBLE left DELETE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(D) OnDialogActivation(A) } | current A after INVISIBLE kept; history D after INVISIBLE left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- D- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(F) } | current F after INVISIBLE kept; history D after INVISIBLE left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | null | .. { OnDialogDeletion(D) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history D after INVISIBLE left DELETE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(D) } | current D after INVISIBLE kept unfocussed; history D after INVISIBLE left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- P1; focus none
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
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- D P6- P5- P4; remembered O4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C- P1- D P3
destroy the object | OBJ_4 | = | = | focus none; objects 8
destroy the object of P1 | POP_1 | = | .. {} !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. {} !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | OBJ_4 | = | = | focus O9
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | OBJ_4 | = | = | focus none
throw an int | - | throws int 7 | .. OnDialogActivation(D) | tree A- C- P3- P1 D
throw a std::exception | - | throws deliberate failure | .. OnDialogActivation(D) | tree A- C- P3- P1 D
)",
    R"(
FocusAny | CreateDialog, the new dialog is asked
nothing | done | DLG_D | OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) {} | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after INVISIBLE kept; history D after INVISIBLE left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL kept; history D after INVISIBLE left INVISIBLE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE; history D after INVISIBLE left DELETE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE_ALL; history D after INVISIBLE left DELETE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after NOTHING kept; history D after INVISIBLE left NOTHING at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_D | null | .. { OnDialogDeletion(D) -> true OnDialogActivation(D) } | current D after DELETE; history D after INVISIBLE left DELETE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(D) OnDialogActivation(A) } | current A after INVISIBLE kept; history D after INVISIBLE left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- D- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(F) } | current F after INVISIBLE kept; history D after INVISIBLE left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | null | .. { OnDialogDeletion(D) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history D after INVISIBLE left DELETE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(D) } | current D after INVISIBLE kept unfocussed; history D after INVISIBLE left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- P1; focus none
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
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- P1- D P6- P5- P4; remembered O4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C- P1- D P3
destroy the object | DLG_D | null | = | tree A- C- P3- P1; focus none; objects 7
destroy the object of P1 | POP_1 | = | .. {} !UpdateActivePopups | popups P3 hidden; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. {} !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_D | OBJ_9 | = | tree A- C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | DLG_D | = | = | tree A- C- P3- P1; focus none
throw an int | - | throws int 7 | .. OnDialogActivation(D) | tree A- C- P3- P1 D
throw a std::exception | - | throws deliberate failure | .. OnDialogActivation(D) | tree A- C- P3- P1 D
)",
    R"(
FocusAny | CreateDialog, an ancestor is asked
nothing | done | DLG_A | OnDialogDeactivation(C) !RecoverFocus {} OnDialogActivation(A) | current A after INVISIBLE kept; history C after INVISIBLE left INVISIBLE at O3, B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree B- C- P3- A P1; focus none; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree B- C- P3- A D P1; focus O4; objects 11
CreateDialog(current, DELETE) | null | = | .. { CreateDialogImpl(none, true, true) -> null !CreateDialog } .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { !RecoverFocus OnDialogActivation(A) } .. | =
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree B- C- P3- A F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree B- C- P3- A F P1; focus O6; objects 11
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) !RecoverFocus OnDialogActivation(A) } .. | history none; tree P3- A P1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(none, A) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) !RecoverFocus OnDialogActivation(A) } .. | history none
BackToDialog(A, delete, stepwise) | does not end
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | null | .. { OnAfterDialogDeletion(none, none) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(none, none) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } .. | history none; tree B- C- P3- A- P1
ClearDialogHistory(0, delete) | ended | null | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; remembered none; objects 3
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(none, C) OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, C) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, C) !RecoverFocus OnDialogActivation(A) } .. | history none; tree P3- A P1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree B- C- P3- P1- A P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree B- C- P3- P1- A P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree B- C- P3- A P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree B- C- P3- P1- A P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree B- C- P1- A P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 shown 3000 ms; tree B- C- A P1; objects 8
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } .. | popups none; tree B- C- P1- A; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree B- C- P1- A P6- P5- P4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree B- C- P1- A P3
destroy the object | DLG_A | null | .. {} | current none; tree B- C- P3- P1; objects 7
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree B- C- P3- A; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | .. {} | current none; popups gone, gone; tree none; remembered none; objects 1
give the object another identifier | DLG_A | OBJ_9 | .. OnDialogActivation(O9) | current O9 after INVISIBLE kept; tree B- C- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree B- C- O9- A O9
detach the object | DLG_A | = | = | tree B- C- P3- P1
throw an int | - | throws int 7 | .. !RecoverFocus | current none; tree B- C- P3- P1 A
throw a std::exception | - | throws deliberate failure | .. !RecoverFocus | current none; tree B- C- P3- P1 A
)",
    R"(
FocusAny | Back, an ancestor is asked
nothing | done | ended | OnDialogDeletion(C) -> true !RecoverFocus {} OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus none; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(B) OnAfterDialogDeletion(C, D) | current D after INVISIBLE; history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(B) OnAfterDialogDeletion(C, D) | current D after INVISIBLE_ALL; history B after INVISIBLE left INVISIBLE_ALL, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after DELETE; history B after INVISIBLE left DELETE, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, D) | current D after DELETE_ALL; history B after INVISIBLE left DELETE_ALL, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnDialogActivation(B) OnAfterDialogDeletion(C, D) | current D after NOTHING; history B after INVISIBLE left NOTHING, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O4; objects 9
CreateDialog(current, DELETE) | DLG_B | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(B) } .. | current B after DELETE; history B after INVISIBLE left DELETE, A after NOTHING left INVISIBLE at O1; focus O2
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(B) !RecoverFocus OnDialogActivation(A) } OnDialogActivation(B) OnAfterDialogDeletion(C, A) | current A after INVISIBLE kept; history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree P3- B- A P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(F) } OnDialogActivation(B) OnAfterDialogDeletion(C, F) | current F after INVISIBLE kept; history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(F) } OnAfterDialogDeletion(C, F) | current F after DELETE_ALL kept; history B after INVISIBLE left DELETE_ALL, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(B) } .. | current B after INVISIBLE kept unfocussed; history B after INVISIBLE left INVISIBLE, A after NOTHING left INVISIBLE at O1; tree A- P3- B- P1
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(B) -> true !RecoverFocus OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; objects 5
Back(hide) | ended | = | .. { OnDialogDeactivation(B) !RecoverFocus OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnDialogActivation(B) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B- A P1
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) !RecoverFocus OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) !RecoverFocus OnDialogActivation(A) } OnDialogActivation(B) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B- A P1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(B) -> true !RecoverFocus OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnAfterDialogDeletion(C, none) | current none; history none; tree P3- P1; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } OnDialogActivation(B) OnAfterDialogDeletion(C, none) | current none; history none; tree A- P3- B- P1
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree P3- B P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) !RecoverFocus OnDialogActivation(A) } OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; objects 5
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
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- B P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- B P3
destroy the object | DLG_B | = | .. OnAfterDialogDeletion(C, .. | tree A- P3- P1; objects 5
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A- B P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups .. | popups none; tree none; objects 1
give the object another identifier | DLG_B | = | .. OnDialogActivation(O9) .. | tree A- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | DLG_B | = | = | tree A- P3- P1
throw an int | - | = | .. !Back | tree A- P3- P1 B
throw a std::exception | - | = | .. !Back | tree A- P3- P1 B
)",
    R"(
destructor | CreateDialog with ODA_DELETE, a child of the dialog
nothing | done | DLG_D | OnDialogDeletion(C) -> true {} OnDialogAdded(D) OnDialogActivation(D) | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- D P1; focus O4; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE kept left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history D after INVISIBLE_ALL kept left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE kept left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history D after DELETE_ALL kept left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | history D after NOTHING kept left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE at O3, C after DELETE left DELETE, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C D P1; focus O3; objects 9
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | history A after INVISIBLE kept left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree P3- A D P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | history F after INVISIBLE kept left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F D P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | history F after DELETE_ALL kept left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F D P1; focus O6; objects 9
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left DELETE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O2; objects 9
Back(hide) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | history B after INVISIBLE left DELETE at O3, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none left DELETE at O3; tree P3- D P1; objects 5
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | history none left DELETE at O3
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history C after DELETE left DELETE at O3; tree P3- D P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | history A after NOTHING left DELETE at O3; tree P3- A D P1; focus O1
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | null | = | = | =
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
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(D) !UpdateActivePopups | popups P3 hidden; tree A- P3- D; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnDialogActivation(D) !UpdateActivePopups !UpdateActivePopups | popups none; tree D; objects 3
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- D O9
detach the object | null | = | = | =
)",
    R"(
destructor | Back, a child of the dialog left
nothing | done | ended | OnDialogDeletion(C) -> true {} OnDialogActivation(B) OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus O2; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; objects 9
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; objects 9
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A- P3- D B P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogActivation(C) OnAfterDialogDeletion(C, C) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; focus O3
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } OnDialogDeactivation(A) .. | tree P3- A- B P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A- P3- F B P1; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A- P3- F B P1; objects 9
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogActivation(A) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B A P1; focus O1
Back(hide) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } OnDialogActivation(A) OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- B A P1; focus O1
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } OnLastDialogDeletion() OnAfterDialogDeletion(C, none) | current none; history none; tree A- P3- P1; focus none; objects 5
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } OnLastDialogDeletion() OnAfterDialogDeletion(C, C) | current C after DELETE; history none; tree P3- P1; focus none; objects 3
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } OnLastDialogDeletion() OnAfterDialogDeletion(C, A) | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
GetCurrentDialogID | DLG_C | = | = | =
GetCurrentDialog | null | = | = | =
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
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(C, .. | popups P3 shown; tree A- B P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups none; tree B; objects 3
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | null | = | = | =
)",
    R"(
destructor | ClosePopup, a child of the popup
nothing | done | true | OnPopupDeactivation(P2) {} OnPopupActivation(P1) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P2) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) OnPopupActivation(P2) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) OnPopupActivation(P2) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) OnPopupActivation(P2) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) OnPopupActivation(P2) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) OnPopupActivation(P2) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P2) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnPopupActivation(P2) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P2) } .. | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P2) } .. | current A after NOTHING; history none; tree C- P3- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P2) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P3- P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) OnPopupActivation(P2) } .. | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P2) OnPopupActivation(P5) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P2) } OnPopupActivation(P1) OnPopupActivation(P6) | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C P3- P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | = | tree A- C P3- P2 P1; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P2) } OnPopupActivation(P3) | popups P3 shown; tree A- C P1- P3
ClosePopup(P2) | true | throws int 0 | .. { OnPopupDeactivation(P2) OnPopupActivation(P1) } | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) OnPopupActivation(P2) } .. | popups P1 shown 3000 ms; tree A- C P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | false | = | = | =
IsPopupInPopupList(P2) | true | = | = | =
close all popups | true true true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P2) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true true true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P2) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | .. { OnPopupActivation(P2) } .. | =
run the timer five seconds late | ended | = | = | =
destroy the object | DLG_C | = | = | tree A- P3- P1; focus none; remembered none; objects 5
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups | popups P3 hidden; tree A- C P3-; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | DLG_C | = | = | tree A- O9 P3- P1
give all popups one identifier | done | = | .. OnPopupActivation(O9) | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | DLG_C | = | = | tree A- P3- P1; focus none
)",
    nullptr};
