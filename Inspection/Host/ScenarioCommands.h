// SPDX-License-Identifier: MIT
#ifndef INSPECTION_HOST_SCENARIOCOMMANDS_H
#define INSPECTION_HOST_SCENARIOCOMMANDS_H

/** @file
 *  Executes input lines with a scenario player.
 */

#include "Inspection/InspectionCommands.h"
#include "Scenario/ScenarioPlayer.h"

/** All commands of a player: those of scenarios, including advance and attach, and those that the application
 *  has added.
 */
class CScenarioCommands : public CInspectionHandler
{
public:
    /** @param kPlayer not owned */
    explicit CScenarioCommands(CScenarioPlayer& kPlayer) : m_kPlayer(kPlayer) {}

    void Execute(eC_Char* pcLine, CInspectionReply& kReply) override;

private:
    CScenarioPlayer& m_kPlayer;
};

#endif
