// SPDX-License-Identifier: MIT
// Plays scenarios on the coffee machine for pictures: what an inspection sends, for dialogtrace, or a film of
// the screen with the history and the popups beside it.

#include "Core/GUITrace.h"
#include "Inspection/InspectionLine.h"
#include "Inspection/Viewer/InspectionReader.h"
#include "Inspection/Viewer/SVG.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Scenario/TextLines.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/Simulation.h"
#include "Simulator/TextPainter.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace
{
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;

int Fail(int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "CoffeeMachinePictures: %s\n", kMessage.c_str());
    return iStatus;
}

bool IsCommand(const std::string& kLine)
{
    return !kLine.empty() && kLine.front() != '#';
}

/** @return the line of an inspection that records an input */
std::string PrintInput(eC_UInt uiTime, const std::string& kInput)
{
    eC_Char acMemory[1000];
    CInspectionLine kLine(acMemory, sizeof(acMemory));
    kLine.Begin();
    kLine.Text("type", "input");
    kLine.Number("time", uiTime);
    kLine.Text("text", kInput.c_str());
    kLine.End();
    return std::string(kLine.GetText(), kLine.GetLength() - 1);
}

// --- Lines ---------------------------------------------------------------------------------------------

void PrintLine(const std::string& kLine)
{
    std::puts(kLine.c_str());
}

/** Executes a line. Time passes in small steps, so that it is seen when something happens. */
SimulatedResult_t RunBitByBit(CSimulation& kSimulation, const std::string& kLine)
{
    constexpr unsigned long cuiStep = 10; // milliseconds
    static const std::string s_kAdvance = "advance ";
    if (kLine.rfind(s_kAdvance, 0) != 0)
    {
        return kSimulation.Run(kLine);
    }
    SimulatedResult_t kResult = {true, std::string()};
    for (unsigned long uiLeft = std::strtoul(kLine.c_str() + s_kAdvance.size(), nullptr, 10); uiLeft > 0;)
    {
        const unsigned long uiNow = std::min(uiLeft, cuiStep);
        kResult = kSimulation.Advance(static_cast<eC_UInt>(uiNow));
        uiLeft -= uiNow;
    }
    return kResult;
}

/** Prints what an inspection sends, and the input. @return what is wrong, or the empty string */
std::string PrintLines(CSimulatedApplication& kApplication, const std::vector<std::string>& kScenario)
{
    CSimulation kSimulation(kApplication, &PrintLine);
    for (const std::string& kLine : kScenario)
    {
        // That time passes is no input.
        if (IsCommand(kLine) && kLine.rfind("advance ", 0) != 0)
        {
            PrintLine(PrintInput(kSimulation.GetTime(), kLine));
        }
        const SimulatedResult_t kResult = RunBitByBit(kSimulation, kLine);
        if (!kResult.m_bIsExecuted)
        {
            return kLine + ": " + kResult.m_kText;
        }
    }
    return std::string();
}

// --- The film ------------------------------------------------------------------------------------------

constexpr std::uint64_t cuiWidth = 760; ///< all measures are pixels
constexpr std::uint64_t cuiHeight = 360;
constexpr std::uint64_t cuiMargin = 20;
constexpr std::uint64_t cuiRow = 18;
constexpr std::uint64_t cuiScreenTop = 52;
constexpr std::uint64_t cuiScreenWidth = 40 * CSVG::cuiCharacterWidth + 2 * cuiMargin;
constexpr std::uint64_t cuiDesk = 400; ///< where the history begins
constexpr std::uint64_t cuiBox = 26;
constexpr std::uint64_t cuiBoxGap = 6;
constexpr std::uint64_t cuiBoxWidth = 170;
constexpr eC_UInt cuiFrameTime = 1600; ///< milliseconds

/** A frame of the film. */
struct Frame_t
{
    std::string m_kChapter;
    std::string m_kCommand;
    std::vector<std::string> m_kScreen;
    std::vector<InspectedItem_t> m_kCurrent;
    std::vector<InspectedItem_t> m_kHistory;
    std::vector<InspectedItem_t> m_kPopups;
    std::vector<InspectedItem_t> m_kTree;
};

/** @return the screen, row by row, as the machine draws it, without the frame around it */
std::vector<std::string> TakeScreen()
{
    std::vector<std::string> kRows = SplitLines(PaintFrame(ckCoffeeMachineDevice));
    kRows.erase(kRows.begin());
    kRows.pop_back();
    for (std::string& kRow : kRows)
    {
        kRow = kRow.substr(1, kRow.size() - 2);
    }
    return kRows;
}

/** @return "3. A POPUP WITH A DISPLAY TIME" of a heading, and its number, 0 if it is no chapter */
unsigned long ReadChapter(const std::string& kLine, std::string& kChapterOUT)
{
    const unsigned long uiNumber = std::strtoul(kLine.c_str() + 2, nullptr, 10);
    const std::size_t uiText = kLine.find(". ");
    kChapterOUT = uiNumber > 0 ? kLine.substr(3, kLine.find_first_of(".,", uiText + 2) - 3) : std::string();
    return uiNumber;
}

class CFilm
{
public:
    /** Plays a scenario to the end of a chapter. @return what is wrong, or the empty string */
    std::string Play(CSimulatedApplication& kApplication, const std::vector<std::string>& kScenario,
                     unsigned long uiFirst, unsigned long uiLast)
    {
        CInspectionReader kReader;
        CSimulation kSimulation(kApplication,
                                [&kReader](const std::string& kLine) { kReader.Take(kLine + "\n"); });
        unsigned long uiChapter = 0;
        std::string kChapter;
        for (const std::string& kLine : kScenario)
        {
            if (kLine.rfind("## ", 0) == 0)
            {
                uiChapter = ReadChapter(kLine, kChapter);
            }
            if (uiChapter > uiLast)
            {
                break;
            }
            const SimulatedResult_t kResult = kSimulation.Run(kLine);
            if (!kResult.m_bIsExecuted)
            {
                return kLine + ": " + kResult.m_kText;
            }
            if (IsCommand(kLine) && uiChapter >= uiFirst)
            {
                AddFrame(kChapter, kLine, kReader.GetState());
            }
        }
        return m_kFrames.empty() ? "no command in these chapters" : "";
    }

    std::string Draw() const
    {
        CSVG kPicture(cuiWidth);
        const std::size_t uiTime = m_kFrames.size() * cuiFrameTime;
        for (std::size_t uiFrame = 0; uiFrame < m_kFrames.size(); ++uiFrame)
        {
            kPicture.Raw("<g class=\"shot\"" + (uiFrame == 0 ? std::string(" id=\"first\"") : "") +
                         " style=\"animation-delay:" + std::to_string(uiFrame * cuiFrameTime) + "ms\">\n");
            DrawFrame(kPicture, m_kFrames[uiFrame]);
            kPicture.Raw("</g>\n");
        }
        // A picture that does not move shows the first frame.
        const std::string kPart = std::to_string(100000 / m_kFrames.size());
        const std::string kPercent = kPart.substr(0, kPart.size() - 3) + "." + kPart.substr(kPart.size() - 3);
        return kPicture.Finish(cuiHeight, "A coffee machine, the history of its dialogs and its popups",
                               ".shot { visibility: hidden }\n#first { visibility: visible }\n"
                               "@media (prefers-reduced-motion: no-preference) {\n"
                               ".shot { animation: show " +
                                   std::to_string(uiTime) + "ms step-end infinite }\n" +
                                   "#first { visibility: hidden }\n"
                                   "@keyframes show { 0% { visibility: visible } " +
                                   kPercent + "% { visibility: hidden } }\n}\n");
    }

private:
    /** Adds what is to be seen now, unless it is what the last frame shows. */
    void AddFrame(const std::string& kChapter, const std::string& kCommand, const CInspectedState& kState)
    {
        Frame_t kFrame = {kChapter,
                          kCommand,
                          TakeScreen(),
                          kState.GetItems(PART_CURRENT),
                          kState.GetItems(PART_HISTORY),
                          kState.GetItems(PART_ACTIVE),
                          kState.GetItems(PART_TREE)};
        std::string kSeen = JoinLines(kFrame.m_kScreen);
        for (const EInspectedPart ePart : {PART_CURRENT, PART_HISTORY, PART_ACTIVE})
        {
            kSeen += kState.PrintWithoutTimes(ePart);
        }
        if (kSeen != m_kLastSeen)
        {
            m_kFrames.push_back(std::move(kFrame));
            m_kLastSeen = kSeen;
        }
    }

    static const char* FindLook(const Frame_t& kFrame, ObjectHandle_t eID)
    {
        for (const InspectedItem_t& kObject : kFrame.m_kTree)
        {
            if (kObject.m_kHandle.m_eID == eID)
            {
                return kObject.m_bIsInvisible ? "weak" : "medium";
            }
        }
        return "outline";
    }

    static void DrawBox(CSVG& kPicture, const char* pcLook, std::uint64_t uiX, std::uint64_t uiY,
                        const std::string& kText)
    {
        const bool bIsFull = std::strcmp(pcLook, "strong") == 0 || std::strcmp(pcLook, "popup") == 0;
        kPicture.Box(pcLook, uiX, uiY, cuiBoxWidth, cuiBox, 4);
        kPicture.Text(bIsFull ? "inverse" : "text", uiX + 10, uiY + cuiRow, kText);
    }

    static void DrawFrame(CSVG& kPicture, const Frame_t& kFrame)
    {
        kPicture.Text("text", cuiMargin, 26, kFrame.m_kChapter);
        std::uint64_t uiY = cuiScreenTop;
        kPicture.Box("row", cuiMargin, uiY, cuiScreenWidth, kFrame.m_kScreen.size() * cuiRow + cuiMargin, 8);
        kPicture.Box("frame", cuiMargin, uiY, cuiScreenWidth, kFrame.m_kScreen.size() * cuiRow + cuiMargin,
                     8);
        uiY += cuiRow + cuiMargin / 4;
        for (const std::string& kRow : kFrame.m_kScreen)
        {
            kPicture.Text("text", 2 * cuiMargin, uiY, kRow);
            uiY += cuiRow;
        }
        kPicture.Text("quiet", cuiMargin, cuiHeight - 18, "> " + kFrame.m_kCommand);
        DrawStacks(kPicture, kFrame);
    }

    static void DrawStacks(CSVG& kPicture, const Frame_t& kFrame)
    {
        const std::uint64_t uiTop = cuiScreenTop + cuiRow;
        std::uint64_t uiY = uiTop;
        kPicture.Text("quiet", cuiDesk, uiTop - 10, "dialog and history");
        for (const InspectedItem_t& kDialog : kFrame.m_kCurrent)
        {
            DrawBox(kPicture, "strong", cuiDesk, uiY, kDialog.m_kHandle.GetText());
        }
        for (const InspectedItem_t& kEntry : kFrame.m_kHistory)
        {
            uiY += cuiBox + cuiBoxGap;
            DrawBox(kPicture, FindLook(kFrame, kEntry.m_kHandle.m_eID), cuiDesk, uiY,
                    kEntry.m_kHandle.GetText());
        }
        const std::uint64_t uiPopups = cuiDesk + cuiBoxWidth + cuiMargin;
        kPicture.Text("quiet", uiPopups, uiTop - 10, "popups");
        uiY = uiTop;
        for (auto kPopup = kFrame.m_kPopups.rbegin(); kPopup != kFrame.m_kPopups.rend(); ++kPopup)
        {
            kPicture.Box(kPopup->m_bIsShown ? "popup" : "waiting", uiPopups, uiY,
                         cuiWidth - uiPopups - cuiMargin, cuiBox, 4);
            kPicture.Text(kPopup->m_bIsShown ? "inverse" : "text", uiPopups + 8, uiY + cuiRow,
                          kPopup->m_kHandle.GetText());
            uiY += cuiBox + cuiBoxGap;
        }
    }

    std::vector<Frame_t> m_kFrames;
    std::string m_kLastSeen;
};

bool ReadFile(const std::string& kName, std::vector<std::string>& kLinesOUT)
{
    const std::ifstream kFile(kName, std::ios::binary);
    std::ostringstream kText;
    if (!kFile || !(kText << kFile.rdbuf()))
    {
        return false;
    }
    kLinesOUT = SplitLines(kText.str());
    return true;
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    const bool bIsFilm = iArguments == 5 && std::strcmp(ppcArguments[1], "film") == 0;
    if (!bIsFilm && (iArguments != 3 || std::strcmp(ppcArguments[1], "lines") != 0))
    {
        return Fail(ciWrongUsage, "expected lines SCENARIO, or film SCENARIO FIRST-CHAPTER LAST-CHAPTER");
    }
    const std::string kName = ppcArguments[2];
    std::vector<std::string> kScenario;
    if (!ReadFile(kName, kScenario))
    {
        return Fail(ciFailure, kName + ": cannot read");
    }
    CGUITrace::GetInstance().SetSink(nullptr);
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    CFilm kFilm;
    const std::string kError =
        bIsFilm ? kFilm.Play(kCoffeeMachine, kScenario, std::strtoul(ppcArguments[3], nullptr, 10),
                             std::strtoul(ppcArguments[4], nullptr, 10))
                : PrintLines(kCoffeeMachine, kScenario);
    if (!kError.empty())
    {
        return Fail(ciFailure, kName + ": " + kError);
    }
    if (bIsFilm)
    {
        std::fputs(kFilm.Draw().c_str(), stdout);
    }
    return std::fflush(stdout) == 0 ? 0 : Fail(ciFailure, "cannot write");
}
