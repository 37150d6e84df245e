#ifndef TESTS_UNIT_CORE_DIALOGMANAGER_HOOKMATRIXOUTCOMES_H
#define TESTS_UNIT_CORE_DIALOGMANAGER_HOOKMATRIXOUTCOMES_H

/** @file
 *  What is expected of the places at which hooks are called, see HookMatrix.h.
 */

// The expected lines of the places of each hook, place by place; null at the end.
extern const char* const capcCreateDialogImplOutcomes[];
extern const char* const capcOnDialogAddedOutcomes[];
extern const char* const capcOnDialogActivationOutcomes[];
extern const char* const capcOnDialogDeactivationOutcomes[];
extern const char* const capcOnDialogDeletionOutcomes[];
extern const char* const capcOnAfterDialogDeletionOutcomes[];
extern const char* const capcOnLastDialogDeletionOutcomes[];
extern const char* const capcOnPopupActivationOutcomes[];
extern const char* const capcOnPopupDeactivationOutcomes[];
extern const char* const capcCreatePopupImplOutcomes[];
extern const char* const capcBesideTheHooksOutcomes[];

#endif
