// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_MODELTEXTS_H
#define TESTS_MODEL_MODELTEXTS_H

/** @file
 *  Names and texts that the model writes into its events and its state.
 */

#include <string>

enum EModelHook : unsigned char
{
    CREATE_DIALOG_IMPL,
    ON_DIALOG_ADDED,
    ON_DIALOG_ACTIVATION,
    ON_DIALOG_DEACTIVATION,
    ON_DIALOG_DELETION,
    ON_AFTER_DIALOG_DELETION,
    ON_LAST_DIALOG_DELETION,
    ON_POPUP_ACTIVATION,
    ON_POPUP_DEACTIVATION,
    CREATE_POPUP_IMPL
};

constexpr int ciInvisible = 0;
constexpr int ciInvisibleAll = 1;
constexpr int ciDelete = 2;
constexpr int ciDeleteAll = 3;
constexpr int ciNothing = 4;
constexpr int ciActions = 5;

const char* NameOfModelHook(int iHook);
std::string NameOf(int iID);
std::string NameOfAction(int iAction);
std::string NameOfFlag(bool bFlag);

/** @return "true, false" */
std::string NameOfFlags(bool bOne, bool bOther);

/** @return "prio 9, 3000 ms, delete on close" */
std::string PrintSettings(int iPriority, unsigned int uiTime, bool bDeleteOnClose);

#endif
