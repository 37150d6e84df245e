// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcCreatePopupImplOutcomes[] = {
    R"(
CreatePopupImpl | ShowPopup
nothing | done | POP_2 | !LoadDialogDescription CreatePopupImpl(P2) -> P2 {} OnPopupActivation(P2) OnPopupDeactivation(P1) | current C after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P2; focus O3; remembered O3; dynamic 0; objects 8; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after INVISIBLE; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1- P2; focus O4; objects 10
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after INVISIBLE_ALL; history C after DELETE left INVISIBLE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- D P1- P2; focus O4; objects 10
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | current D after DELETE; history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1- P2; focus O4; remembered none
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } .. | current D after DELETE_ALL; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1- P2; focus O4; remembered none
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } .. | current D after NOTHING; history C after DELETE left NOTHING at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C P3- D P1- P2; objects 10
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } .. | history C after DELETE left DELETE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- C P1- P2; remembered none
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } .. | current A after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree C- P3- A P1- P2; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } .. | current F after INVISIBLE kept; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- F P1- P2; focus O6; objects 10
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(F) } .. | current F after DELETE_ALL kept; history C after DELETE left DELETE_ALL at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1- P2; focus O6; remembered none
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } .. | current C after INVISIBLE kept unfocussed; history C after DELETE left INVISIBLE at O3, B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- C- P3- P1- P2; focus none
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- P3- B P1- P2; focus O2; remembered none
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; tree A- C- P3- B P1- P2; focus O2; objects 10
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree P3- A P1- P2; focus O1; remembered none; objects 6
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree C- P3- A P1- P2; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } .. | current A after NOTHING; history none; tree P3- A P1- P2; focus O1; remembered none; objects 6
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | current none; history none; tree P3- P1- P2; focus none; remembered none; objects 4
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } .. | current none; history none; tree A- C- P3- P1- P2; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } .. | history none; tree C P3- P1- P2; objects 6
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, B) OnAfterDialogDeletion(B, B) OnDialogActivation(A) } .. | current A after NOTHING; history none; tree P3- A P1- P2; focus O1; remembered none; objects 6
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 hidden detached, P4 shown 1000 ms; tree A- C P3- P1- P4; objects 9
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P1 hidden, P2 shown 1000 ms, P5 shown; tree A- C P3- P1- P5 P2; objects 9
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } OnPopupActivation(P2) OnPopupDeactivation(P1) OnPopupDeactivation(P6) | popups P3 hidden, P6 hidden, P1 hidden, P2 shown 1000 ms; tree A- C P3- P1- P6- P2; objects 9
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { !LoadDialogDescription CreatePopupImpl(P2) -> P2 OnPopupActivation(P2) OnPopupDeactivation(P1) } OnPopupActivation(P2) | popups P3 hidden, P1 hidden, P2 shown 1000 ms, P2 shown 1000 ms; tree A- C P3- P1- P2 P2; objects 9
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } .. | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } OnPopupActivation(P2) OnPopupDeactivation(P3) | popups P3 hidden, P2 shown 1000 ms; tree A- C P1- P3- P2
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } .. | popups P1 hidden, P2 shown 1000 ms; tree A- C P1- P2; objects 7
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } OnPopupActivation(P2) | popups P2 shown 1000 ms; tree A- C P1- P2; remembered none; objects 7
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P2 hidden detached, P5 hidden, P4 shown 1000 ms; tree A- C P1- P6- P5- P4; objects 10
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } OnPopupActivation(P2) OnPopupDeactivation(P3) | popups P3 hidden, P2 shown 1000 ms; tree A- C P1- P3- P2
destroy the object | DLG_C | = | = | tree A- P3- P1- P2; focus none; remembered none; objects 6
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups | popups P3 hidden, P2 shown 1000 ms; tree A- C P3- P2; objects 7
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !UpdateActivePopups !UpdateActivePopups | popups P2 shown 1000 ms; tree P2; focus none; remembered none; objects 2
give the object another identifier | DLG_C | = | = | tree A- O9 P3- P1- P2
give all popups one identifier | done | = | .. OnPopupDeactivation(O9) | popups O9 hidden, O9 hidden, P2 shown 1000 ms; tree A- C O9- O9- P2
detach the object | DLG_C | = | = | tree A- P3- P1- P2; focus none
throw an int | - | throws int 7 | .. throws int 7 | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | popups P3 hidden, P1 shown 3000 ms; tree A- C P3- P1; objects 7
)",
    nullptr};
