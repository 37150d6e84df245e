// Written by ./run hooks --update; a difference is read before it is kept.
#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"

// clang-format off
const char* const capcOnAfterDialogDeletionOutcomes[] = {
    R"(
OnAfterDialogDeletion | Back
nothing | done | ended | OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) {} | current B after INVISIBLE; history A after NOTHING left INVISIBLE at O1; popups P3 hidden, P1 shown 3000 ms; tree A- P3- B P1; focus O2; remembered none; dynamic 0; objects 7; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; focus O4; objects 9
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } | current D after INVISIBLE_ALL; history B after INVISIBLE left INVISIBLE_ALL at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B- D P1; focus O4; objects 9
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } | current D after DELETE_ALL; history B after INVISIBLE left DELETE_ALL at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } | current D after NOTHING; history B after INVISIBLE left NOTHING at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B D P1; objects 9
CreateDialog(current, DELETE) | DLG_B | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(B) } | current B after DELETE; history B after INVISIBLE left DELETE at O2, A after NOTHING left INVISIBLE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) } | current A after INVISIBLE kept; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree P3- B- A P1; focus O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(F) } | current F after INVISIBLE kept; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B- F P1; focus O6; objects 9
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(F) } | current F after DELETE_ALL kept; history B after INVISIBLE left DELETE_ALL at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(B) } | current B after INVISIBLE kept unfocussed; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree A- P3- B- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
Back(hide) | ended | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- B- A P1; focus O1
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- B- A P1; focus O1
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; history none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnAfterDialogDeletion(A, none) } | current none; history none; tree A- P3- B- P1; focus none
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | history none; tree P3- B P1; objects 5
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | current A after NOTHING; history none; tree P3- A P1; focus O1; objects 5
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree A- P3- B P1- P4; objects 8
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree A- P3- B P1- P5; objects 8
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree A- P3- B P1 P6; objects 8
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree A- P3- B P1- P2; objects 8
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- B P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A- B P1; objects 6
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A- B P1-; objects 6
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A- B P1- P6- P5- P4; remembered O2; objects 9
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A- B P1- P3
destroy the object | DLG_B | = | = | tree A- P3- P1; focus none; objects 5
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree A- P3- B; objects 6
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; focus none; objects 1
give the object another identifier | DLG_B | = | = | tree A- P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A- O9- B O9
detach the object | DLG_B | = | = | tree A- P3- P1; focus none
throw an int | - | = | .. throws int 7 !Back | =
throw a std::exception | - | = | .. throws deliberate failure !Back | =
)",
    R"(
OnAfterDialogDeletion | BackToDialog, direct, the current dialog
nothing | done | true | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) {} OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree A P3- P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | tree P3- A P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A P3- F P1; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A P3- F P1; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | tree B P3- A P1; objects 7
Back(hide) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | tree B P3- A P1; objects 7
BackToDialog(A, delete, direct) | true | throws int 0 | .. { OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | =
BackToDialog(A, hide, direct) | true | throws int 0 | .. { OnAfterDialogDeletion(C, A) OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | tree A B- P3- P1; objects 7
BackToDialog(A, delete, stepwise) | true | throws int 0 | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | tree P3- A P1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, none) OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } | current none; tree A- B- P3- P1; focus none; objects 7
ClearDialogHistory(0, delete) | ended | throws int 0 | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current C after NOTHING; tree P3- P1; focus none; objects 3
ClearDialogHistory(1, delete, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | =
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
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree A P3-; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnAfterDialogDeletion(B, A) !BackToDialog OnLastDialogDeletion() | current none; popups gone, gone; tree none; focus none; objects 1
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A O9- O9
detach the object | null | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B P3- P1; objects 7
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B P3- P1; objects 7
)",
    R"(
OnAfterDialogDeletion | BackToDialog, direct, a dialog on the way
nothing | done | true | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) {} OnDialogActivation(A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree A P3- P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree A P3- D P1; objects 7
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | tree P3- A P1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree A P3- F P1; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree A P3- F P1; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | throws int 0 | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | =
Back(hide) | ended | throws int 0 | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | =
BackToDialog(A, delete, direct) | true | throws int 0 | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | =
BackToDialog(A, hide, direct) | true | throws int 0 | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | =
BackToDialog(A, delete, stepwise) | true | throws int 0 | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; tree P3- P1; focus none; objects 3
ClearDialogHistory(0, hide, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } | current none; tree A- P3- P1; focus none
ClearDialogHistory(0, delete) | ended | throws int 0 | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current C after NOTHING; tree P3- P1; focus none; objects 3
ClearDialogHistory(1, delete, current) | ended | throws int 0 | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | =
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
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | .. OnDialogActivation(A) !UpdateActivePopups | popups P3 hidden; tree A P3-; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. !BackToDialog OnLastDialogDeletion() | current none; popups gone, gone; tree none; focus none; objects 1
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree A O9- O9
detach the object | null | = | = | =
throw an int | - | throws int 7 | .. throws int 7 | current C after NOTHING; history A after NOTHING left NOTHING at O1
throw a std::exception | - | throws deliberate failure | .. throws deliberate failure | current C after NOTHING; history A after NOTHING left NOTHING at O1
)",
    R"(
OnAfterDialogDeletion | BackToDialog, stepwise, the first step
nothing | done | true | OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) {} OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, B) .. | =
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, B) .. | =
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, B) .. | =
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, B) .. | =
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(B) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(B) OnAfterDialogDeletion(D, B) .. | =
CreateDialog(current, DELETE) | DLG_B | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(B) } OnDialogDeletion(B) -> true OnDialogActivation(B) OnAfterDialogDeletion(B, B) .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) } | current A after INVISIBLE kept; history B after INVISIBLE left INVISIBLE at O2, A after NOTHING left INVISIBLE at O1; tree P3- B- A P1; objects 7
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(F) } OnDialogDeactivation(F) OnDialogActivation(B) OnAfterDialogDeletion(F, B) .. | tree P3- F- A P1; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogAdded(F) } OnDialogDeactivation(F) OnDialogActivation(B) OnAfterDialogDeletion(F, B) .. | tree P3- F- A P1; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(B) OnDialogAdded(B) } OnDialogActivation(B) OnAfterDialogDeletion(B, B) .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | =
Back(hide) | ended | = | .. { OnDialogDeactivation(B) OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | tree P3- B- A P1; objects 7
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | =
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | tree P3- B- A P1; objects 7
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | does not end
ClearDialogHistory(0, hide, current) | does not end
ClearDialogHistory(0, delete) | does not end
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | =
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
destroy the object of P1 | POP_1 | = | .. !UpdateActivePopups OnPopupActivation(P3) OnAfterDialogDeletion(B, .. | popups P3 shown; tree A P3; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | does not end
give the object another identifier | DLG_B | = | .. OnDialogActivation(A) .. | tree P3- O9 A P1; objects 7
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | DLG_B | = | .. OnDialogActivation(A) .. | objects 7
throw an int | - | = | .. throws int 7 !Back .. | =
throw a std::exception | - | = | .. throws deliberate failure !Back .. | =
)",
    R"(
OnAfterDialogDeletion | BackToDialog, stepwise, the last step
nothing | done | true | OnDialogDeletion(C) -> true OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) {} | current A after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- A P1; focus O1; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | =
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | =
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | =
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | =
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(D) -> true OnDialogActivation(A) OnAfterDialogDeletion(D, A) | =
CreateDialog(current, DELETE) | DLG_A | = | .. { OnDialogDeletion(A) -> true OnDialogActivation(A) } | current A after DELETE; history A after NOTHING left DELETE at O1
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(A) OnDialogActivation(A) } | current A after INVISIBLE kept; history A after NOTHING left INVISIBLE at O1
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(F) } OnDialogDeactivation(F) OnDialogActivation(A) OnAfterDialogDeletion(F, A) | tree P3- F- A P1; objects 7
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogAdded(F) } OnDialogDeactivation(F) OnDialogActivation(A) OnAfterDialogDeletion(F, A) | tree P3- F- A P1; objects 7
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(A) OnDialogAdded(A) } | current A after INVISIBLE kept unfocussed; history A after NOTHING left INVISIBLE at O1; tree P3- A- P1; focus none
AddDialog(null) | ended | = | .. { !AddDialog } | =
Back(delete) | ended | = | = | =
Back(hide) | ended | = | = | =
BackToDialog(A, delete, direct) | false | = | .. { !BackToDialog } | =
BackToDialog(A, hide, direct) | false | = | .. { !BackToDialog } | =
BackToDialog(A, delete, stepwise) | false | = | .. { !BackToDialog } | =
BackToDialog(unknown) | false | = | .. { !BackToDialog } | =
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
ShowPopup(P4, highest) | POP_4 | = | .. { OnPopupActivation(P4) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P4 shown 1000 ms; tree P3- A P1- P4; objects 6
ShowPopup(P5, as high as P2) | POP_5 | = | .. { OnPopupActivation(P5) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P5 shown; tree P3- A P1- P5; objects 6
ShowPopup(P6, as high as P1) | POP_6 | = | .. { OnPopupActivation(P6) } | popups P3 hidden, P6 shown, P1 shown 3000 ms; tree P3- A P1 P6; objects 6
ShowPopup(P1) | POP_1 | = | = | =
ShowPopup(P2) | POP_2 | = | .. { OnPopupActivation(P2) OnPopupDeactivation(P1) } | popups P3 hidden, P1 hidden, P2 shown 1000 ms; tree P3- A P1- P2; objects 6
ShowPopup(P3) | POP_3 | = | = | =
ShowPopup(unknown) | null | = | .. { !ShowPopup } | =
ClosePopup(P1) | true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A P1- P3
ClosePopup(P2) | false | = | = | =
ClosePopup(P3) | true | = | .. { OnPopupDeactivation(P3) } | popups P1 shown 3000 ms; tree A P1; objects 4
ClosePopup(unknown) | false | = | = | =
IsPopupDisplayed(P1) | true | = | = | =
IsPopupInPopupList(P2) | false | = | = | =
close all popups | true false true | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) } | popups none; tree A P1-; objects 4
close all popups and show P6, P5, P4 | true false true POP_6 POP_5 POP_4 | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) OnPopupDeactivation(P3) OnPopupActivation(P6) OnPopupActivation(P5) OnPopupDeactivation(P6) OnPopupActivation(P4) OnPopupDeactivation(P5) } | popups P6 hidden, P5 hidden, P4 shown 1000 ms; tree A P1- P6- P5- P4; remembered O1; objects 7
UpdateActivePopups | ended | = | = | =
run the timer five seconds late | ended | = | .. { OnPopupDeactivation(P1) OnPopupActivation(P3) } | popups P3 shown; tree A P1- P3
destroy the object | DLG_A | = | = | tree P3- P1; focus none; objects 3
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree P3- A; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | = | popups gone, gone; tree none; focus none; objects 1
give the object another identifier | DLG_A | = | = | tree P3- O9 P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- A O9
detach the object | DLG_A | = | = | tree P3- P1; focus none
throw an int | - | = | .. throws int 7 !Back | =
throw a std::exception | - | = | .. throws deliberate failure !Back | =
)",
    R"(
OnAfterDialogDeletion | ClearDialogHistory, the current dialog
nothing | done | ended | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) {} OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) | current none; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- P1; focus none; remembered none; dynamic 0; objects 3; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | =
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F P1; objects 5
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F P1; objects 5
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | tree B P3- P1; objects 5
Back(hide) | ended | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) } .. | tree B P3- P1; objects 5
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | tree A P3- P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogDeactivation(B) OnAfterDialogDeletion(B, A) OnDialogActivation(A) } | tree A B- P3- P1; focus O1; objects 7
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogActivation(B) OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnDialogActivation(A) OnAfterDialogDeletion(B, A) } | tree P3- A P1; focus O1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | =
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeactivation(B) OnAfterDialogDeletion(B, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } | tree A- B- P3- P1; objects 7
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | =
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, B) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, B) OnDialogActivation(A) } | tree A P3- P1; focus O1; objects 5
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
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree P3-; objects 2
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnAfterDialogDeletion(B, none) .. | popups gone, gone; tree none; objects 1
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- O9
detach the object | null | = | = | =
throw an int | - | = | .. throws int 7 !ClearDialogHistory | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B P3- P1; focus O1; objects 7
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | current C after NOTHING; history B after NOTHING left NOTHING at O1, A after NOTHING left NOTHING at O1; tree A B P3- P1; focus O1; objects 7
)",
    R"(
OnAfterDialogDeletion | ClearDialogHistory, a dialog of the history
nothing | done | ended | OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) {} OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) | current none; history none; popups P3 hidden, P1 shown 3000 ms; tree P3- P1; focus none; remembered none; dynamic 0; objects 3; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogAdded(D) OnDialogActivation(D) } .. | tree P3- D P1; objects 5
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | =
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogActivation(A) } .. | =
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F P1; objects 5
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogAdded(F) } .. | tree P3- F P1; objects 5
AddDialog(current, INVISIBLE) | ended | = | .. { !AddDialog } .. | =
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | tree A P3- P1; focus O1; objects 5
Back(hide) | ended | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | tree A P3- P1; focus O1; objects 5
BackToDialog(A, delete, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | tree A P3- P1; focus O1; objects 5
BackToDialog(A, hide, direct) | true | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | tree A P3- P1; focus O1; objects 5
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | tree A P3- P1; focus O1; objects 5
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | =
ClearDialogHistory(0, hide, current) | ended | = | .. { OnAfterDialogDeletion(C, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } | tree A- P3- P1; objects 5
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | =
ClearDialogHistory(1, delete, current) | ended | = | .. { OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | tree A P3- P1; focus O1; objects 5
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
destroy the object | null | = | = | =
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree P3-; objects 2
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnAfterDialogDeletion(A, .. | popups gone, gone; tree none; objects 1
give the object another identifier | null | = | = | =
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree O9- O9
detach the object | null | = | = | =
throw an int | - | = | .. throws int 7 !ClearDialogHistory | current C after NOTHING; history A after NOTHING left NOTHING at O1; tree A P3- P1; focus O1; objects 5
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | current C after NOTHING; history A after NOTHING left NOTHING at O1; tree A P3- P1; focus O1; objects 5
)",
    R"(
OnAfterDialogDeletion | ClearDialogHistory without the current dialog
nothing | done | ended | OnDialogDeletion(B) -> true OnAfterDialogDeletion(B, none) {} OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) | current C after NOTHING; history none; popups P3 hidden, P1 shown 3000 ms; tree C P3- P1; focus none; remembered none; dynamic 0; objects 5; definitions unchanged
CreateDialog(D, INVISIBLE) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | current D after INVISIBLE; tree P3- D P1
CreateDialog(D, INVISIBLE_ALL) | DLG_D | = | .. { OnDialogDeactivation(A) OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | current D after INVISIBLE_ALL; tree P3- D P1; focus O4
CreateDialog(D, DELETE) | DLG_D | = | .. { OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, none) .. | current D after DELETE; tree P3- D P1
CreateDialog(D, DELETE_ALL) | DLG_D | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(C) -> true OnDialogAdded(D) OnDialogActivation(D) } OnAfterDialogDeletion(C, none) .. | current D after DELETE_ALL; tree P3- D P1; focus O4
CreateDialog(D, NOTHING) | DLG_D | = | .. { OnDialogDeactivation(C) OnDialogAdded(D) OnDialogActivation(D) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | current D after NOTHING; tree P3- D P1
CreateDialog(current, DELETE) | DLG_C | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(C) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | current C after DELETE; tree P3- P1; objects 3
CreateDialog(A, INVISIBLE) | DLG_A | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | current A after INVISIBLE kept; tree P3- P1; objects 3
CreateDialog(unknown, DELETE) | null | = | .. { CreateDialogImpl(G, true, true) -> null !CreateDialog } .. | =
AddDialog(new, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(F) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | current F after INVISIBLE kept; tree P3- F P1
AddDialog(new, DELETE_ALL) | ended | = | .. { OnDialogDeletion(A) -> true OnDialogDeletion(C) -> true OnDialogAdded(F) } OnAfterDialogDeletion(C, none) .. | current F after DELETE_ALL kept; tree P3- F P1; focus O6
AddDialog(current, INVISIBLE) | ended | = | .. { OnDialogDeactivation(C) OnDialogAdded(C) } OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) .. | current C after INVISIBLE kept unfocussed; tree P3- P1; objects 3
AddDialog(null) | ended | = | .. { !AddDialog } .. | =
Back(delete) | ended | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | current A after NOTHING; tree A P3- P1; focus O1
Back(hide) | ended | = | .. { OnDialogDeactivation(C) OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | current A after NOTHING; tree A C- P3- P1; focus O1; objects 7
BackToDialog(A, delete, direct) | true | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | current A after NOTHING; tree A P3- P1; focus O1
BackToDialog(A, hide, direct) | true | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | current A after NOTHING; tree A C- P3- P1; focus O1; objects 7
BackToDialog(A, delete, stepwise) | true | = | .. { OnDialogDeletion(C) -> true OnDialogActivation(A) OnAfterDialogDeletion(C, A) } | current A after NOTHING; tree A P3- P1; focus O1
BackToDialog(unknown) | false | = | .. { !BackToDialog } .. | =
ClearDialogHistory(0, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, none) OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | current none; tree P3- P1; objects 3
ClearDialogHistory(0, hide, current) | ended | = | .. { OnDialogDeactivation(C) OnAfterDialogDeletion(C, none) OnDialogDeactivation(A) OnAfterDialogDeletion(A, none) } | current none; tree A- C- P3- P1; objects 7
ClearDialogHistory(0, delete) | ended | = | .. { OnDialogDeletion(A) -> true OnAfterDialogDeletion(A, none) } | =
ClearDialogHistory(1, delete, current) | ended | = | .. { OnDialogDeletion(C) -> true OnAfterDialogDeletion(C, A) OnDialogActivation(A) } | current A after NOTHING; tree A P3- P1; focus O1
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
destroy the object | DLG_C | = | = | tree P3- P1; objects 3
destroy the object of P1 | POP_1 | = | = | popups P3 hidden, gone; tree C P3-; objects 4
destroy the object of P2 | null | = | = | =
destroy all objects | done | = | .. OnAfterDialogDeletion(A, .. | popups gone, gone; tree none; objects 1
give the object another identifier | DLG_C | = | = | tree O9 P3- P1
give all popups one identifier | done | = | = | popups O9 hidden, O9 shown 3000 ms; tree C O9- O9
detach the object | DLG_C | = | = | tree P3- P1
throw an int | - | = | .. throws int 7 !ClearDialogHistory | history A after NOTHING left NOTHING at O1; tree A C P3- P1; focus O1; objects 7
throw a std::exception | - | = | .. throws deliberate failure !ClearDialogHistory | history A after NOTHING left NOTHING at O1; tree A C P3- P1; focus O1; objects 7
)",
    nullptr};
