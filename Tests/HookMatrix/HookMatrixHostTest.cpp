// SPDX-License-Identifier: MIT
#include "Tests/HookMatrix/HookMatrix.h"
#include "Tests/HookMatrix/RecordedOutcomes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{
using Lines_t = std::vector<std::string>;

const std::string kDocument = DIALOGMANAGER_SOURCE_DIRECTORY "/Docs/HookMatrix.md";

std::string GetOutcomeFile(const std::string& kGroup)
{
    return DIALOGMANAGER_SOURCE_DIRECTORY "/Tests/HookMatrix/Outcomes/" + kGroup + ".txt";
}

/** @return true if the tables are to be written instead of compared */
bool IsUpdate()
{
    const char* pcValue = std::getenv("DIALOGMANAGER_UPDATE_HOOKS");
    return pcValue != nullptr && std::strcmp(pcValue, "1") == 0;
}

// --- Cells that never end ---------------------------------------------------------------------------

/** Plays a cell in a separate process and stops it after 10 ms of processor time, fifty times what a cell
 *  that ends needs.
 */
bool EndsInTime(const HookPlace_t& kPlace, const InnerAction_t& kInner)
{
    const pid_t iProcess = fork();
    if (iProcess == 0)
    {
        itimerval kTime = {};
        kTime.it_value.tv_usec = 10000;
        setitimer(ITIMER_VIRTUAL, &kTime, nullptr);
        PlayHookCell(kPlace, kInner);
        _exit(0);
    }
    int iStatus = 0;
    EXPECT_EQ(iProcess, waitpid(iProcess, &iStatus, 0));
    const bool bWasStopped = WIFSIGNALED(iStatus) && WTERMSIG(iStatus) == SIGVTALRM;
    EXPECT_TRUE(bWasStopped || WIFEXITED(iStatus)) << kPlace.m_pcName << ": " << kInner.m_pcName;
    return !bWasStopped;
}

/** @return whether the cell goes back step by step, the only thing that may never end */
bool MayNotEnd(const HookPlace_t& kPlace, const InnerAction_t& kInner)
{
    return std::strstr(kPlace.m_pcName, "stepwise") != nullptr ||
           std::strstr(kInner.m_pcName, "stepwise") != nullptr;
}

TEST(CHookMatrixHostTest, TheCellsThatAreExpectedNotToEnd_DoNotEnd)
{
    for (const HookPlace_t& kPlace : GetHookPlaces())
    {
        const Lines_t kExpected = GetExpectedHookLines(kPlace);
        for (const InnerAction_t& kInner : GetInnerActions())
        {
            const bool bIsEndless = std::find(kExpected.begin(), kExpected.end(),
                                              PrintEndlessHookLine(kInner)) != kExpected.end();
            if (bIsEndless)
            {
                EXPECT_FALSE(EndsInTime(kPlace, kInner)) << kPlace.m_pcName << ": " << kInner.m_pcName;
            }
        }
    }
}

// --- What the expected lines say ----------------------------------------------------------------------

/** One expected line, taken apart. */
struct Cell_t
{
    bool m_bEnds = false;
    std::string m_kOuter; ///< "=" if it is the same as when the hook does nothing
    std::string m_kCalls;
    std::string m_kState;
};

Lines_t Split(const std::string& kText, const std::string& kSeparator)
{
    Lines_t kParts;
    std::size_t uiBegin = 0;
    for (std::size_t uiEnd = kText.find(kSeparator); uiEnd != std::string::npos;
         uiEnd = kText.find(kSeparator, uiBegin))
    {
        kParts.push_back(kText.substr(uiBegin, uiEnd - uiBegin));
        uiBegin = uiEnd + kSeparator.size();
    }
    kParts.push_back(kText.substr(uiBegin));
    return kParts;
}

/** @return the expected lines, cached because the tables need them many times */
const Lines_t& GetLines(const HookPlace_t& kPlace)
{
    static std::map<const HookPlace_t*, Lines_t> kLines;
    if (kLines.count(&kPlace) == 0)
    {
        kLines[&kPlace] = GetExpectedHookLines(kPlace);
    }
    return kLines[&kPlace];
}

Cell_t GetCell(const HookPlace_t& kPlace, std::size_t uiInner)
{
    Cell_t kCell;
    const Lines_t& kLines = GetLines(kPlace);
    if (uiInner + 1 >= kLines.size())
    {
        ADD_FAILURE() << PrintHookHeadline(kPlace) << ": an outcome is missing, see ./run hooks --update";
        return kCell;
    }
    const Lines_t kParts = Split(kLines[uiInner + 1], " | ");
    kCell.m_bEnds = kParts.size() == 5;
    if (kCell.m_bEnds)
    {
        kCell.m_kOuter = kParts[2];
        kCell.m_kCalls = kParts[3];
        kCell.m_kState = kParts[4];
    }
    return kCell;
}

bool Contains(const std::string& kText, const std::string& kPart)
{
    return kText.find(kPart) != std::string::npos;
}

/** @return the operation's own calls: those outside braces */
std::string OutsideBraces(const std::string& kCalls)
{
    std::string kText;
    int iDepth = 0;
    for (const char cLetter : kCalls)
    {
        iDepth += cLetter == '{' ? 1 : 0;
        if (iDepth == 0)
        {
            kText += cLetter;
        }
        iDepth -= cLetter == '}' ? 1 : 0;
    }
    return kText;
}

/** @return the letter of a cell in the document's matrix */
char Classify(const HookPlace_t& kPlace, const Cell_t& kCell)
{
    if (!kCell.m_bEnds)
    {
        return 'L';
    }
    if (kCell.m_kOuter.rfind("throws ", 0) == 0)
    {
        return kCell.m_kOuter == "throws int 0" ? 'Z' : 'X';
    }
    const std::string kNothingCalls = OutsideBraces(GetCell(kPlace, 0).m_kCalls);
    for (const char* pcError : {"!CreateDialog", "!AddDialog", "!Back", "!ClearDialogHistory"})
    {
        if (kCell.m_kCalls != "=" &&
            Contains(OutsideBraces(kCell.m_kCalls) + " ", std::string(pcError) + " ") &&
            !Contains(kNothingCalls + " ", std::string(pcError) + " "))
        {
            return 'E';
        }
    }
    if (kCell.m_kOuter != "=")
    {
        return 'R';
    }
    return kCell.m_kCalls == "=" && kCell.m_kState == "=" ? '-' : 'D';
}

// --- The tables of the document -----------------------------------------------------------------------

struct Column_t
{
    eC_UInt m_uiCaller;
    EHookOccasion m_eOccasion;
};

const std::vector<Column_t>& GetColumns()
{
    static const std::vector<Column_t> kColumns = []
    {
        std::vector<Column_t> kFound;
        for (const HookPlace_t& kPlace : GetHookPlaces())
        {
            const bool bIsNew = kFound.empty() || kFound.back().m_uiCaller != kPlace.m_uiCaller ||
                                kFound.back().m_eOccasion != kPlace.m_eOccasion;
            if (bIsNew)
            {
                kFound.push_back({kPlace.m_uiCaller, kPlace.m_eOccasion});
            }
        }
        return kFound;
    }();
    return kColumns;
}

/** @return the letters of all places of a column, except those whose operation never ends anyway */
std::string GetLetters(const Column_t& kColumn, std::size_t uiInner)
{
    std::string kLetters;
    for (const char cLetter : std::string("-DRZEXL"))
    {
        const auto HasLetter = [&](const HookPlace_t& kPlace)
        {
            return kPlace.m_uiCaller == kColumn.m_uiCaller && kPlace.m_eOccasion == kColumn.m_eOccasion &&
                   CanHappen(kPlace, GetInnerActions()[uiInner]) && GetCell(kPlace, 0).m_bEnds &&
                   Classify(kPlace, GetCell(kPlace, uiInner)) == cLetter;
        };
        const bool bOccurs = std::any_of(GetHookPlaces().begin(), GetHookPlaces().end(), HasLetter);
        kLetters += bOccurs ? std::string(1, cLetter) : "";
    }
    const bool bIsForbidden = kColumn.m_eOccasion == OCCASION_GOING_BACK &&
                              GetInnerActions()[uiInner].m_eKind == INNER_CHANGES_HISTORY;
    return bIsForbidden ? "(" + kLetters + ")" : kLetters;
}

/** @return the matrix; neighbouring rows with the same letters are merged */
Lines_t RenderMatrix()
{
    const char* const apcOccasions[] = {"s", "b", "p"};
    std::string kHead = "| Done inside |";
    std::string kRule = "|---|";
    for (const Column_t& kColumn : GetColumns())
    {
        kHead += std::string(" ") + NameOfCaller(kColumn.m_uiCaller) + " " +
                 apcOccasions[kColumn.m_eOccasion] + " |";
        kRule += "---|";
    }
    Lines_t kLines = {kHead, kRule};
    std::string kLettersBefore;
    for (std::size_t uiInner = 1; uiInner < GetInnerActions().size(); ++uiInner)
    {
        std::string kLetters;
        for (const Column_t& kColumn : GetColumns())
        {
            kLetters.append(" ").append(GetLetters(kColumn, uiInner)).append(" |");
        }
        const std::string kName = GetInnerActions()[uiInner].m_pcName;
        if (kLetters == kLettersBefore)
        {
            kLines.back().insert(kLines.back().size() - kLetters.size() - 2, "; " + kName);
        }
        else
        {
            kLines.push_back("| " + kName);
            kLines.back() += " |" + kLetters;
        }
        kLettersBefore = kLetters;
    }
    return kLines;
}

std::string DescribeEnd(const HookPlace_t& kPlace, const Cell_t& kCell)
{
    const char cLetter = Classify(kPlace, kCell);
    if (cLetter == 'X')
    {
        return "passes";
    }
    if (cLetter == '-')
    {
        return "swallowed";
    }
    const std::size_t uiError = kCell.m_kCalls.rfind('!');
    return cLetter == 'L'
               ? "does not end"
               : "ERROR of " +
                     kCell.m_kCalls.substr(uiError + 1, kCell.m_kCalls.find(' ', uiError) - uiError - 1);
}

/** @return how the operation ends when a hook throws an int, and what differs then */
std::string DescribeThrowing(const HookPlace_t& kPlace)
{
    const std::size_t uiThrowInt = GetInnerActions().size() - 2;
    if (!CanHappen(kPlace, GetInnerActions()[uiThrowInt]))
    {
        return "must not happen | -";
    }
    const Cell_t kThrowing = GetCell(kPlace, uiThrowInt);
    const std::string kDifference = kThrowing.m_kState == "=" ? "nothing" : kThrowing.m_kState;
    return DescribeEnd(kPlace, kThrowing) + " | " + (kThrowing.m_bEnds ? kDifference : "-");
}

Lines_t RenderPlaces(eC_UInt uiGroup)
{
    Lines_t kLines = {"| Called by | Hooks of the operation | When it throws | What is different then |",
                      "|---|---|---|---|"};
    for (const HookPlace_t& kPlace : GetHookPlaces())
    {
        if (kPlace.GetGroup() == uiGroup)
        {
            const std::string kCaller =
                uiGroup < cuiNOFHooks ? "" : NameOfCaller(kPlace.m_uiCaller) + std::string(": ");
            const Cell_t kNothing = GetCell(kPlace, 0);
            const std::string kCalls = kNothing.m_bEnds ? kNothing.m_kCalls : "does not end";
            std::string kLine = "| " + kCaller + kPlace.m_pcName;
            kLine += " | " + kCalls;
            kLine += " | " + DescribeThrowing(kPlace);
            kLines.push_back(kLine + " |");
        }
    }
    return kLines;
}

TEST(CHookMatrixHostTest, AnInt_EndsAnOperationLikeAnException)
{
    for (const HookPlace_t& kPlace : GetHookPlaces())
    {
        if (!CanHappen(kPlace, GetInnerActions().back()))
        {
            continue;
        }
        const Cell_t kInt = GetCell(kPlace, GetInnerActions().size() - 2);
        const Cell_t kException = GetCell(kPlace, GetInnerActions().size() - 1);
        EXPECT_EQ(kInt.m_bEnds, kException.m_bEnds) << kPlace.m_pcName;
        EXPECT_EQ(kInt.m_kState, kException.m_kState) << kPlace.m_pcName;
        EXPECT_EQ(Classify(kPlace, kInt), Classify(kPlace, kException)) << kPlace.m_pcName;
    }
}

// --- Files --------------------------------------------------------------------------------------------

std::string ReadFile(const std::string& kPath)
{
    std::ifstream kStream(kPath);
    EXPECT_TRUE(kStream.is_open()) << kPath;
    return {std::istreambuf_iterator<char>(kStream), std::istreambuf_iterator<char>()};
}

void WriteFile(const std::string& kPath, const std::string& kText)
{
    std::ofstream kStream(kPath);
    kStream << kText;
    EXPECT_TRUE(kStream.good()) << kPath;
}

/** @return the document with each table between two marks replaced */
std::string RenderDocument(std::string kText)
{
    const auto Replace = [&kText](const std::string& kName, const Lines_t& kLines)
    {
        const std::string kBegin = "<!-- " + kName + ": written by ./run hooks --update -->\n";
        const std::string kEnd = "<!-- end of " + kName + " -->\n";
        const std::size_t uiBegin = kText.find(kBegin);
        const std::size_t uiEnd = kText.find(kEnd);
        ASSERT_NE(std::string::npos, uiBegin) << kBegin;
        ASSERT_NE(std::string::npos, uiEnd) << kEnd;
        kText.replace(uiBegin + kBegin.size(), uiEnd - uiBegin - kBegin.size(),
                      "\n" + JoinLines(kLines) + "\n");
    };
    Replace("matrix", RenderMatrix());
    for (eC_UInt uiGroup = 0; uiGroup < cuiNOFHookGroups; ++uiGroup)
    {
        Replace(NameOfGroup(uiGroup), RenderPlaces(uiGroup));
    }
    return kText;
}

/** @return the current lines of a place; cells that may never end are tried in a separate process first */
Lines_t RecordPlace(const HookPlace_t& kPlace)
{
    HookOutcome_t kNothing;
    Lines_t kLines = {PrintHookHeadline(kPlace)};
    for (const InnerAction_t& kInner : GetInnerActions())
    {
        if (!CanHappen(kPlace, kInner))
        {
            continue;
        }
        if (MayNotEnd(kPlace, kInner) && !EndsInTime(kPlace, kInner))
        {
            kLines.push_back(PrintEndlessHookLine(kInner));
            continue;
        }
        const HookOutcome_t kOutcome = PlayHookCell(kPlace, kInner);
        kLines.push_back(PrintHookLine(kInner, kOutcome, kNothing));
        kNothing = kInner.m_eKind == INNER_NOTHING ? kOutcome : kNothing;
    }
    return kLines;
}

std::string RenderOutcomes(eC_UInt uiGroup)
{
    std::string kText;
    for (const HookPlace_t& kPlace : GetHookPlaces())
    {
        if (kPlace.GetGroup() == uiGroup)
        {
            kText += kText.empty() ? "" : "\n";
            kText += JoinLines(IsUpdate() ? RecordPlace(kPlace) : GetExpectedHookLines(kPlace));
        }
    }
    return kText;
}

/** Compares a file with a text, or writes the text to it. */
void CompareOrWrite(const std::string& kPath, const std::string& kText)
{
    if (IsUpdate())
    {
        WriteFile(kPath, kText);
        return;
    }
    std::string kDifferent;
    for (const std::string& kLine : SplitLines(DiffLines(kText, ReadFile(kPath))))
    {
        kDifferent += kLine.rfind("  ", 0) != 0 ? kLine + "\n" : "";
    }
    EXPECT_TRUE(kDifferent.empty()) << kPath << " differs from what is tested (-):\n" << kDifferent;
}

TEST(CHookMatrixHostTest, TheFilesOfOutcomes_AreAsTheyWouldBeWritten)
{
    for (eC_UInt uiGroup = 0; uiGroup < cuiNOFHookGroups; ++uiGroup)
    {
        CompareOrWrite(GetOutcomeFile(NameOfGroup(uiGroup)), RenderOutcomes(uiGroup));
    }
}

TEST(CHookMatrixHostTest, TheDocument_ShowsTheTestedOutcomes)
{
    CompareOrWrite(kDocument, RenderDocument(ReadFile(kDocument)));
}
} // namespace

const char* GetRecordedOutcomes(const std::string& kGroup)
{
    static std::map<std::string, std::string> s_kTexts;
    const bool bIsRead = s_kTexts.count(kGroup) != 0;
    std::string& kText = s_kTexts[kGroup];
    if (!bIsRead)
    {
        std::ifstream kStream(GetOutcomeFile(kGroup));
        kText.assign(std::istreambuf_iterator<char>(kStream), std::istreambuf_iterator<char>());
    }
    return kText.c_str();
}
