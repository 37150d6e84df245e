// SPDX-License-Identifier: MIT
#include "Inspection/Host/ScenarioCommands.h"

void CScenarioCommands::Execute(eC_Char* pcLine, CInspectionReply& kReply)
{
    try
    {
        kReply.Add(m_kPlayer.Run(pcLine).c_str());
    }
    catch (const ScenarioError_t& kError)
    {
        kReply.RefuseWith(kError.m_kText.c_str());
    }
}
