// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcOnPopupDeactivationOutcomes[] = {
    R"(
OnPopupDeactivation | ShowPopup, a popup of lower priority
nothing | done | POP_2 | OnPopupActivation(P2) OnPopupDeactivation(P1) {} | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; focus O3; remembered O3; dynamic 0; objects 8; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- D P2; focus O4; objects 10
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- D P2; focus O4; objects 10
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- D P2; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- D P2; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- P1- D P2; objects 10
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- C P2; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- P1- A P2; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- F P2; focus O6; objects 10
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- P1- F P2; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- P2; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- P1- B P2; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- B P2; focus O2; objects 10
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- P1- A P2; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1- P2; focus none; remembered none; objects 4
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- P1- P2; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree C P3- P1- P2; objects 6
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- P1- A P2; focus O1; remembered none; objects 6
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P2) } | popups P3 hidden, P1 hidden, P2 hidden, P4 shown 1000 ms; tree A- C P3- P1- P2- P4; objects 9
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) } | popups P3 hidden, P1 hidden, P5 shown, P2 shown 1000 ms; tree A- C P3- P1- P2 P5; objects 9
ShowPopup(P6, as high as P1) | POP_6 | = | = | popups P3 hidden, P6 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P6- P2; objects 9
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | = | =
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | throws int 0 | .. { OnPopupDeactivation(P1) } | popups P3 hidden, P2 shown 1000 ms
ClosePopup(P2) | true | null | .. { OnPopupDeactivation(P2) OnPopupActivation(P1) } | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 hidden, P2 shown 1000 ms; tree A- C P1- P2; objects 7
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | false | = | = | =
IsPopupInPopupList(P2) | true | = | = | =
close all popups | true true true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true true true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupDeactivation(P2) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | null | .. { OnPopupDeactivation(P2) OnPopupActivation(P1) } | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
destroy the object | POP_1 | = | = | popups P3 hidden, gone, P2 shown 1000 ms; tree A- C P3- P2; objects 7
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone, P2 shown 1000 ms; tree A- C P3- P2; objects 7
destroy the object of P2 | POP_2 | null | = | popups P3 hidden, P1 hidden, gone; tree A- C P3- P1-; objects 7
destroy all objects | done | null | .. {} !UpdateActivePopups | popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_1 | = | = | popups P3 hidden, O9 hidden, P2 shown 1000 ms; tree A- C P3- O9- P2
give all popups one identifier | done | OBJ_9 | = | popups O9 hidden, O9 hidden, O9 shown 1000 ms; tree A- C O9- O9- O9
detach the object | POP_1 | = | = | popups P3 hidden, P1 hidden detached, P2 shown 1000 ms; tree A- C P3- P2
throw an int | - | throws int 7 | .. throws int 7 | =
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | =
)",
    R"(
OnPopupDeactivation | ClosePopup, hide on close
nothing | done | true | OnPopupDeactivation(P1) {} OnPopupActivation(P3) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 shown; tree A- C P1- P3; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- D P1- P3; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- D P1- P3; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- D P1- P3; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- D P1- P3; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C D P1- P3; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) OnPopupActivation(P1) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- A P1- P3; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) OnPopupActivation(P1) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- F P1- P3; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) OnPopupActivation(P1) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- F P1- P3; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) OnPopupActivation(P1) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P1- P3; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- B P1- P3; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- B P1- P3; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree C- A P1- P3; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P1- P3; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P1- P3; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P1- P3; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) } | popups P3 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) } | popups P3 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P1) OnPopupActivation(P6) } | popups P3 hidden, P6 shown; tree A- C P3- P1- P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) } | popups P3 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | =
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) OnPopupActivation(P1) } | popups none; tree A- C P1-; remembered none; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | false | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | .. { OnPopupActivation(P1) } .. | =
run the timer five seconds late | ended | = | = | =
destroy the object | POP_1 | = | = | tree A- C P3; objects 6
destroy the object of P1 | POP_1 | = | = | tree A- C P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_1 | = | = | tree A- C O9- P3
give all popups one identifier | done | = | .. OnPopupActivation(O9) | popups O9 shown; tree A- C O9- O9
detach the object | POP_1 | = | = | tree A- C P3
throw an int | - | throws int 7 | .. throws int 7 | popups P3 hidden, P1 hidden; tree A- C P3- P1-
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | popups P3 hidden, P1 hidden; tree A- C P3- P1-
)",
    R"(
OnPopupDeactivation | ClosePopup, delete on close
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
ShowPopup(P2) | POP_2 | = | = | =
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
destroy the object | POP_2 | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups | popups P3 hidden; tree A- C P3-; objects 6
destroy the object of P2 | POP_2 | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_2 | = | = | =
give all popups one identifier | done | = | .. OnPopupActivation(O9) | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | POP_2 | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | popups P3 hidden, P1 hidden, P2 hidden; tree A- C P3- P1- P2-; objects 8
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | popups P3 hidden, P1 hidden, P2 hidden; tree A- C P3- P1- P2-; objects 8
)",
    R"(
OnPopupDeactivation | ClosePopup, a waiting popup
nothing | done | true | OnPopupDeactivation(P3) {} | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P1 shown 3000 ms; tree A- C P1; focus O3; remembered O3; dynamic 0; objects 6; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- D P1; focus O4; objects 8
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- D P1; focus O4; objects 8
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- D P1; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- D P1; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C D P1; objects 8
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- F P1; focus O6; objects 8
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- F P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- B P1; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- B P1; focus O2; objects 8
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree A P1; focus O1; remembered none; objects 4
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree A P1; focus O1; remembered none; objects 4
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P1; focus none; remembered none; objects 2
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree C P1; objects 4
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | current A after NOTHING; history none; tree A P1; focus O1; remembered none; objects 4
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P1 hidden, P4 shown 1000 ms; tree A- C P1- P4; objects 7
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P1 hidden, P5 shown; tree A- C P1- P5; objects 7
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P6 shown, P1 shown 3000 ms; tree A- C P1 P6; objects 7
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P1 hidden, P2 shown 1000 ms; tree A- C P1- P2; objects 7
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups none; tree A- C P1-; remembered none
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | throws int 0 | .. { OnPopupDeactivation(P3) } | =
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups none; tree A- C P1-; remembered none
destroy the object | POP_3 | = | = | =
destroy the object of P1 | POP_1 | = | .. {} !UpdateActivePopups | popups none; tree A- C; objects 5
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. {} !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_3 | = | = | =
give all popups one identifier | done | = | = | popups O9 shown 3000 ms; tree A- C O9
detach the object | POP_3 | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
)",
    R"(
OnPopupDeactivation | ClosePopup, a popup of lower priority
nothing | done | true | OnPopupDeactivation(P2) OnPopupActivation(P1) OnPopupDeactivation(P3) {} | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree C P3- P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C P3- P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | throws int 0 | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- C P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3
destroy the object | POP_3 | = | = | popups gone, P1 shown 3000 ms; tree A- C P1; objects 6
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree A- C P3-; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree A- C O9- P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A- C P1
throw an int | - | throws int 7 | .. throws int 7 | =
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | =
)",
    R"(
OnPopupDeactivation | A popup's time is up, hide on close
nothing | done | ended | OnPopupDeactivation(P1) {} OnPopupActivation(P3) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 shown; tree A- C P1- P3; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- D P1- P3; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- D P1- P3; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- D P1- P3; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- D P1- P3; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupActivation(P1) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C D P1- P3; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) OnPopupActivation(P1) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- A P1- P3; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) OnPopupActivation(P1) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- F P1- P3; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) OnPopupActivation(P1) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- F P1- P3; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) OnPopupActivation(P1) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P1- P3; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- B P1- P3; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- B P1- P3; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree C- A P1- P3; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupActivation(P1) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P1- P3; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P1- P3; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P1- P3; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) OnPopupActivation(P1) } .. | current A after NOTHING; history none; tree A P1- P3; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) } | popups P3 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) } | popups P3 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P1) OnPopupActivation(P6) } | popups P3 hidden, P6 shown; tree A- C P3- P1- P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) } | popups P3 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | =
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) OnPopupActivation(P1) } | popups none; tree A- C P1-; remembered none; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | false | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | .. { OnPopupActivation(P1) } .. | =
run the timer five seconds late | ended | = | = | =
destroy the object | POP_1 | = | = | tree A- C P3; objects 6
destroy the object of P1 | POP_1 | = | = | tree A- C P3; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_1 | = | = | tree A- C O9- P3
give all popups one identifier | done | = | .. OnPopupActivation(O9) | popups O9 shown; tree A- C O9- O9
detach the object | POP_1 | = | = | tree A- C P3
throw an int | - | throws int 7 | .. throws int 7 | popups P3 hidden, P1 hidden; tree A- C P3- P1-
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | popups P3 hidden, P1 hidden; tree A- C P3- P1-
)",
    R"(
OnPopupDeactivation | A popup's time is up, delete on close
nothing | done | ended | OnPopupDeactivation(P2) {} OnPopupActivation(P1) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
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
ShowPopup(P2) | POP_2 | = | = | =
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
destroy the object | POP_2 | = | = | =
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups | popups P3 hidden; tree A- C P3-; objects 6
destroy the object of P2 | POP_2 | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups | popups none; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_2 | = | = | =
give all popups one identifier | done | = | .. OnPopupActivation(O9) | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | POP_2 | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | popups P3 hidden, P1 hidden, P2 hidden; tree A- C P3- P1- P2-; objects 8
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | popups P3 hidden, P1 hidden, P2 hidden; tree A- C P3- P1- P2-; objects 8
)",
    R"(
OnPopupDeactivation | UpdateActivePopups, called by a derived class
nothing | done | ended | OnPopupDeactivation(P3) {} | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; focus O3; remembered O3; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1; objects 9
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1; focus O2; objects 9
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree C- P3- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; remembered none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- C- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree C P3- P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; remembered none; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C P3- P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C P3- P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | throws int 0 | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- C P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C P1-; remembered none; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C P1- P3
destroy the object | POP_3 | = | = | popups gone, P1 shown 3000 ms; tree A- C P1; objects 6
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree A- C P3-; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree A- C O9- P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C O9- O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A- C P1
throw an int | - | throws int 7 | .. throws int 7 | =
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | =
)",
    R"(
OnPopupDeactivation | CreateDialog
nothing | done | DLG_D | OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) OnPopupDeactivation(P3) {} | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C- P3- D P1- P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C- P3- D P1- P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C- P3- D P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C- P3- D P1- P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C- D P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | throws int 0 | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- C- D P1; objects 8
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- C- D P1-; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- D P1- P6- P5- P4; remembered O4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C- D P1- P3
destroy the object | POP_3 | = | = | popups gone, P1 shown 3000 ms; tree A- C- D P1; objects 8
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | null | = | popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree A- C- O9- D P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A- C- D P1
throw an int | - | throws int 7 | .. throws int 7 | =
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | =
)",
    R"(
OnPopupDeactivation | AddDialog
nothing | done | ended | OnDialogDeactivation(C) OnDialogAdded(D) OnPopupDeactivation(P3) {} | current D after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- C- P3- D P1; focus O4; remembered O3; dynamic 0; objects 9; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | history D after INVISIBLE kept left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL kept; history D after INVISIBLE kept left INVISIBLE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after DELETE kept; history D after INVISIBLE kept left DELETE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after DELETE_ALL kept; history D after INVISIBLE kept left DELETE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after NOTHING kept; history D after INVISIBLE kept left NOTHING at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(current, DELETE) | DLG_D | = | .. { OnDialogDeactivation(D) OnDialogActivation(D) } | current D after DELETE kept; history D after INVISIBLE kept left DELETE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(D) OnDialogActivation(A) } | current A after INVISIBLE kept; history D after INVISIBLE kept left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- D- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(F) } | current F after INVISIBLE kept; history D after INVISIBLE kept left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- F P1; focus O6; objects 11
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(F) } | current F after DELETE_ALL kept; history D after INVISIBLE kept left DELETE_ALL at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- F P1; focus O6; objects 11
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(D) OnDialogAdded(D) } | current D after INVISIBLE kept unfocussed; history D after INVISIBLE kept left INVISIBLE at O4, C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D- P1; focus none
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- C- P3- D P1- P4; objects 10
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- C- P3- D P1- P5; objects 10
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- C- P3- D P1 P6; objects 10
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C- P3- D P1- P2; objects 10
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C- D P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } !AddDialog | popups P1 shown 3000 ms; tree A- C- D P1; objects 8
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } !AddDialog | popups none; tree A- C- D P1-; objects 8
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } !AddDialog | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- C- D P1- P6- P5- P4; remembered O4; objects 11
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- C- D P1- P3
destroy the object | POP_3 | = | = | popups gone, P1 shown 3000 ms; tree A- C- D P1; objects 8
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree A- C- P3- D; objects 8
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; focus none; remembered none; objects 1
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree A- C- O9- D P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- C- O9- D O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A- C- D P1
throw an int | - | = | .. throws int 7 !AddDialog | =
throw a std::exception | - | = | .. throws deliberate failure !AddDialog | =
)",
    R"(
OnPopupDeactivation | Back
nothing | done | ended | OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupDeactivation(P3) {} OnAfterDialogDeletion(C, B) | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus O2; remembered none; dynamic 0; objects 7; definitions unchanged
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- B P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- B P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } .. | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- B P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } .. | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- B P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- B P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } !Back | popups P1 shown 3000 ms; tree A- B P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } !Back | popups none; tree A- B P1-; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } !Back | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- B P1- P6- P5- P4; remembered O2; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- B P1- P3
destroy the object | POP_3 | = | .. !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups P1 shown 3000 ms; tree A- B P1; objects 6
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups P3 hidden; tree A- P3- B; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups none; tree none; focus none; objects 1
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree A- O9- B P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A- B P1
throw an int | - | = | .. throws int 7 !Back | =
throw a std::exception | - | = | .. throws deliberate failure !Back | =
)",
    R"(
OnPopupDeactivation | Back, no dialog came back
nothing | done | ended | OnDialogDeletion(C) -> true CreateDialogImpl(B, false, false) -> null OnLastDialogDeletion() OnPopupDeactivation(P3) {} OnAfterDialogDeletion(C, none) | current none; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- P1; focus none; remembered none; dynamic 0; objects 5; definitions unchanged
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
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } !Back | popups P1 shown 3000 ms; tree A- P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } !Back | popups none; tree A- P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } !Back | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- P1- P6- P5- P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree A- P1- P3
destroy the object | POP_3 | = | = | popups gone, P1 shown 3000 ms; tree A- P1; objects 4
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree A- P3-; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; objects 1
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree A- O9- P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A- P1
throw an int | - | = | .. throws int 7 !Back | =
throw a std::exception | - | = | .. throws deliberate failure !Back | =
)",
    R"(
OnPopupDeactivation | BackToDialog, direct
nothing | done | true | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) OnPopupDeactivation(P3) {} | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- A P1- P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree P3- A P1- P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- A P1- P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | throws int 0 | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | throws int 0 | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A P1- P6- P5- P4; remembered O1; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A P1- P3
destroy the object | POP_3 | = | = | popups gone, P1 shown 3000 ms; tree A P1; objects 4
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree P3- A; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; focus none; objects 1
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree O9- A P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A P1
throw an int | - | throws int 7 | .. throws int 7 | =
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | =
)",
    R"(
OnPopupDeactivation | BackToDialog, stepwise
nothing | done | true | OnDialogDeletion(C) -> true OnDialogActivation(B) OnPopupDeactivation(P3) {} OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
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
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } !Back .. | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } !Back .. | popups none; tree P1- A; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } !Back .. | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree P1- P6- P5- A P4; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } .. | popups P3 shown; tree P1- A P3
destroy the object | POP_3 | = | .. !UpdateActivePopups OnAfterDialogDeletion(C, .. | popups P1 shown 3000 ms; tree A P1; objects 4
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnPopupActivation(P3) .. | popups P3 shown; tree A P3; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | does not end
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree O9- A P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A P1
throw an int | - | = | .. throws int 7 !Back .. | =
throw a std::exception | - | = | .. throws deliberate failure !Back .. | =
)",
    R"(
OnPopupDeactivation | ClearDialogHistory
nothing | done | ended | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) OnPopupDeactivation(P3) {} | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- A P1- P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree P3- A P1- P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- A P1- P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } !ClearDialogHistory | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } !ClearDialogHistory | popups none; tree A P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } !ClearDialogHistory | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A P1- P6- P5- P4; remembered O1; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A P1- P3
destroy the object | POP_3 | = | = | popups gone, P1 shown 3000 ms; tree A P1; objects 4
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree P3- A; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; focus none; objects 1
give the object another identifier | POP_3 | = | = | popups O9 hidden, P1 shown 3000 ms; tree O9- A P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | POP_3 | = | = | popups P3 hidden detached, P1 shown 3000 ms; tree A P1
throw an int | - | = | .. throws int 7 !ClearDialogHistory | =
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | =
)",
    nullptr};
