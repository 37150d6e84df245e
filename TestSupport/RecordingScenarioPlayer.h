// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_RECORDINGSCENARIOPLAYER_H
#define TESTSUPPORT_RECORDINGSCENARIOPLAYER_H

/** @file
 *  The scenario player for tests of the manager itself.
 */

#include "Scenario/ScenarioPlayer.h"
#include "TestSupport/CodeFactory.h"
#include "TestSupport/HookRecorder.h"

/** Plays against a recording manager, with dialogs built in code. Its additional commands all prepare
 *  something:
 *
 *  | Command | Effect |
 *  |---|---|
 *  | tree path tree | registers or replaces the description for a path (see CObjectTree) |
 *  | no-tree path | forgets it, as if the file were gone |
 *  | fail-load number null/int/exception | makes the number-th load from now fail |
 *  | veto dialog true/false | sets whether OnDialogDeletion refuses |
 *  | create-dialog dialog allow-deletion recover-focus tree | makes CreateDialogImpl build a dialog,
 *    attach it to the root, and set its flags |
 *  | create-popup popup tree | makes CreatePopupImpl build a popup, without a parent |
 *  | hook hook once/always command | executes a command inside a hook |
 *  | throw hook int/exception | makes the next call of a hook throw |
 */
class CRecordingScenarioPlayer : public CScenarioPlayer
{
public:
    /** @param kManager, kClock, kEventLog as for CScenarioPlayer; the manager writes to the log
     *  @param kCodeFactory where trees are registered; not owned, outlives the player
     */
    CRecordingScenarioPlayer(CRecordingDialogManager& kManager, CSteppedClock& kClock, CEventLog& kEventLog,
                             CCodeFactory& kCodeFactory);

private:
    void AddFactoryCommands();
    void AddHookCommands();

    CRecordingDialogManager& m_kRecordingManager;
    CCodeFactory& m_kCodeFactory;
};

#endif
