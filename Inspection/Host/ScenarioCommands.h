// SPDX-License-Identifier: MIT
#ifndef INSPECTION_HOST_SCENARIOCOMMANDS_H
#define INSPECTION_HOST_SCENARIOCOMMANDS_H

/** @file
 *  Executes the lines that come in with a player of scenarios.
 */

#include "Inspection/InspectionCommands.h"
#include "Scenario/ScenarioPlayer.h"

/** All commands of a player: those of scenarios, advance and attach included, and what the application has
 * added. */
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
