// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_CORE_DIALOGMANAGER_DIALOGTEST_H
#define TESTS_UNIT_CORE_DIALOGMANAGER_DIALOGTEST_H

/** @file
 *  What the tests of dialogs have in common.
 */

#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <string>

/** A CGUITest with short names for the actions, and shortcuts to common situations. */
class CDialogTest : public CGUITest
{
protected:
    using Access = CGUITestAccess;
    using EOldDialogAction = CGUIDialogManager::EOldDialogAction;

    static constexpr EOldDialogAction ODA_INVISIBLE = CGUIDialogManager::ODA_INVISIBLE;
    static constexpr EOldDialogAction ODA_INVISIBLE_ALL = CGUIDialogManager::ODA_INVISIBLE_ALL;
    static constexpr EOldDialogAction ODA_DELETE = CGUIDialogManager::ODA_DELETE;
    static constexpr EOldDialogAction ODA_DELETE_ALL = CGUIDialogManager::ODA_DELETE_ALL;
    static constexpr EOldDialogAction ODA_NOTHING = CGUIDialogManager::ODA_NOTHING;
    static constexpr EOldDialogAction eFirstUnknownAction = static_cast<EOldDialogAction>(5);
    static constexpr EOldDialogAction eLastUnknownAction = static_cast<EOldDialogAction>(255);

    /** Defines DLG_A, DLG_B, DLG_C and DLG_D as dialogs without children. */
    void DefineEmptyDialogs()
    {
        DefineDialog(DLG_A, "DLG_A");
        DefineDialog(DLG_B, "DLG_B");
        DefineDialog(DLG_C, "DLG_C");
        DefineDialog(DLG_D, "DLG_D");
    }

    /** Switches to a dialog, expects this to work, and forgets what was recorded. */
    void Go(ObjectHandle_t eID, EOldDialogAction eAction)
    {
        EXPECT_NE(nullptr, Manager().CreateDialog(eID, eAction));
        ClearEvents();
    }

    /** Expects that an operation returned the object with that identifier under the root. */
    void ExpectIsObject(ObjectHandle_t eID, const CGUIObject* pkReturned)
    {
        EXPECT_NE(nullptr, pkReturned);
        EXPECT_EQ(Object(eID), pkReturned);
    }

    /** Adds an entry at the recent end of the history, as if its dialog had been left. */
    void AddHistoryEntry(ObjectHandle_t eDialogID, EOldDialogAction eAction,
                         ObjectHandle_t eFocussedObject = NO_HANDLE,
                         EOldDialogAction eOldDialogAction = CGUIDialogManager::ODA_NOTHING)
    {
        const Access::DialogDescription_t kDialog(eDialogID, eOldDialogAction, true, true);
        Access::GetHistory(Manager()).Add(Access::HistoryEntry_t(kDialog, eAction, eFocussedObject));
    }
};

#endif
