// SPDX-License-Identifier: MIT
#include "Tests/Torture/FailureRules.h"

#include "Core/Utils/eC_SpareBlocks.h"
#include "Scenario/ScenarioArguments.h"
#include "Scenario/TextLines.h"

#include <algorithm>
#include <array>

namespace
{
/** The transcript of one command. */
class CCommandRecord
{
public:
    explicit CCommandRecord(const FailedCommand_t& kFailed) : m_kFailed(kFailed)
    {
        const auto kCommand =
            std::find_if(kFailed.m_kLines.begin(), kFailed.m_kLines.end(),
                         [](const std::string& kLine) { return kLine.compare(0, 2, "> ") == 0; });
        m_kArguments =
            CScenarioArguments(kCommand == kFailed.m_kLines.end() ? std::string() : kCommand->substr(2));
    }

    std::string GetCommand() const { return m_kArguments.GetCommand(); }

    bool HasLine(const std::string& kSought) const
    {
        return std::find(m_kFailed.m_kLines.begin(), m_kFailed.m_kLines.end(), kSought) !=
               m_kFailed.m_kLines.end();
    }

    bool HasText(const std::string& kSought) const
    {
        return std::any_of(m_kFailed.m_kLines.begin(), m_kFailed.m_kLines.end(),
                           [&kSought](const std::string& kLine)
                           { return kLine.find(kSought) != std::string::npos; });
    }

    bool IsGuarded() const
    {
        const std::string kCommand = GetCommand();
        return kCommand == "AddDialog" || kCommand == "Back" || kCommand == "ClearDialogHistory" ||
               (kCommand == "BackToDialog" && m_kArguments.GetText(2) == "true");
    }

    /** @return whether it is a single call of the manager, with no other call inside */
    bool IsSingleCall() const
    {
        const std::string kCommand = GetCommand();
        const bool bIsOperation = !kCommand.empty() && kCommand.front() >= 'A' && kCommand.front() <= 'Z';
        return bIsOperation && !HasText("nested: ");
    }

    bool IsUnchanged() const { return m_kFailed.m_bIsUnchanged; }

private:
    const FailedCommand_t& m_kFailed;
    CScenarioArguments m_kArguments{std::string()};
};

constexpr const char* cpcCaughtInCreation =
    "ERROR: CGUIDialogManager::CreateDialog: Caught an exception during dialog creation.";

std::string CheckCreateDialog(const CCommandRecord& kRecord, bool bWasThrown)
{
    const bool bWasCaught = kRecord.HasText(cpcCaughtInCreation);
    const bool bWasLostMeanwhile = kRecord.HasText("CGUIDialogManager::MakeDialogVisible: ");
    if (bWasCaught && !bWasThrown && !kRecord.HasLine("= null"))
    {
        return "CreateDialog caught an exception and did not return null\n";
    }
    if (bWasCaught && !bWasLostMeanwhile && !kRecord.IsUnchanged())
    {
        return "CreateDialog caught an exception and has changed something\n";
    }
    return std::string();
}

std::string CheckException(const FailedCommand_t& kFailed, const CCommandRecord& kRecord)
{
    const bool bWasThrown = kRecord.HasLine("= " + GetThrownText(kFailed.m_eInjection));
    const bool bWasCaught = kRecord.HasText(": Caught an exception during ");
    const bool bIsCreateDialog = kRecord.GetCommand() == "CreateDialog";
    if (!bWasThrown && !bWasCaught)
    {
        return "the exception was neither thrown nor logged\n";
    }
    // Without spare buffers, every entry that names an identifier needs memory.
    const bool bEntryNeedsMemory =
        eC_SpareBlocks::cuiLargestBuffer == 0 && IsAllocation(kFailed.m_eInjection);
    const bool bMayLackItsOnlyEntry =
        bEntryNeedsMemory && kRecord.GetCommand() == "BackToDialog" && kRecord.IsUnchanged();
    if (bWasThrown && kRecord.IsGuarded() && !bMayLackItsOnlyEntry)
    {
        return "an operation threw that must not\n";
    }
    if (!kRecord.IsSingleCall())
    {
        return std::string();
    }
    // The second entry of CreateDialog names the dialog, which needs memory that may have run out.
    const bool bMayLackAnEntry =
        bIsCreateDialog && (bEntryNeedsMemory || kFailed.m_eInjection == INJECTION_ALLOCATIONS);
    if (bWasThrown && bWasCaught && !bMayLackAnEntry)
    {
        return "the exception was both logged and thrown\n";
    }
    if (bWasCaught && !kRecord.IsGuarded() && !bIsCreateDialog)
    {
        return "an operation caught an exception that must let it pass\n";
    }
    return bIsCreateDialog ? CheckCreateDialog(kRecord, bWasThrown) : std::string();
}
} // namespace

std::string CheckFailedCommand(const FailedCommand_t& kFailed)
{
    const CCommandRecord kRecord(kFailed);
    std::string kFault;
    if (kFailed.m_eInjection == INJECTION_LOAD_NULL)
    {
        const bool bIsLogged =
            kRecord.HasText("ERROR: CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID ");
        kFault = bIsLogged ? "" : "a load that gave null was not logged\n";
    }
    else if (IsAllocation(kFailed.m_eInjection) && kFailed.m_bIsSilent)
    {
        const bool bIsSeen = kRecord.HasLine("= " + GetThrownText(kFailed.m_eInjection));
        kFault = bIsSeen ? "an exception was thrown although none was raised\n" : "";
    }
    else
    {
        kFault = CheckException(kFailed, kRecord);
    }
    return kFault.empty() ? kFault : kFault + JoinLines(kFailed.m_kLines);
}
