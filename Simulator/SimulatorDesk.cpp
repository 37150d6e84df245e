// SPDX-License-Identifier: MIT
#include "Simulator/SimulatorDesk.h"

#include "Core/GUIEventHandler.h"
#include "Core/GUITimer.h"
#include "Scenario/Names.h"
#include "Widgets/GUIWidgetVisitor.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace
{
constexpr eC_UInt cuiAfterCommand = 1500;        ///< milliseconds to see what a line of the tour has done
constexpr eC_UInt cuiLongestAdvance = 3'600'000; ///< of a single line, because callbacks may take their time
constexpr eC_UInt cuiStep = 1000;                ///< milliseconds of a step, if no callback comes before
constexpr eC_UInt cuiQuarters = 4;               ///< speeds are in quarters
constexpr eC_UInt cauiSpeeds[] = {1, 2, 4, 8, 16, 32, 64, 128, 256};
constexpr std::size_t cuiUsualSpeed = 2;
constexpr const eC_Char* cpcWelcome =
    "Left is the screen of the device, right what its dialog manager knows, below "
    "its trace. The tour plays by itself.";
constexpr eC_Int ciPage = 5; ///< lines to scroll

/** Finds out whether it visits a text field. */
class CFieldFinder : public CGUIWidgetVisitor
{
public:
    eC_Bool m_bIsField = false;

    void OnTextField(const CGUITextField&, const GUIArea_t&) override { m_bIsField = true; }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override {}
};

struct KeyOfDevice_t
{
    const eC_Char* m_pcKey;
    const eC_Char* m_pcLine;
};

// For what the device has no key of its own.
constexpr KeyOfDevice_t cakOtherKeys[] = {{"Tab", "press next"},       {"BackTab", "press previous"},
                                          {"ArrowUp", "press up"},     {"ArrowDown", "press down"},
                                          {"ArrowLeft", "press left"}, {"ArrowRight", "press right"},
                                          {"Enter", "press activate"}, {"Backspace", "press backspace"},
                                          {"Delete", "press delete"},  {"Home", "press home"},
                                          {"End", "press end"}};

// Keys that ask for the arguments of an operation.
constexpr KeyOfDevice_t cakShortcuts[] = {
    {"c", "CreateDialog"},       {"a", "AddDialog"}, {"k", "Back"},      {"j", "BackToDialog"},
    {"h", "ClearDialogHistory"}, {"w", "ShowPopup"}, {"x", "ClosePopup"}};

/** Reads "advance 500". @return false if it is another line */
eC_Bool ReadAdvance(const std::string& kLine, eC_UInt& uiMillisecondsOUT)
{
    const std::string kAdvance = "advance ";
    return kLine.compare(0, kAdvance.size(), kAdvance) == 0 &&
           ParseNumber(kLine.c_str() + kAdvance.size(), 0xFFFFFFFFU, uiMillisecondsOUT);
}

std::string GetFirstWord(const std::string& kText)
{
    return kText.substr(0, kText.find(' '));
}
} // namespace

CSimulatorDesk::CSimulatorDesk(CSimulation& kSimulation, const std::string& kTour)
    : m_kSimulation(kSimulation), m_kTour(ReadTour(kTour)), m_uiSpeed(cuiUsualSpeed)
{
}

// ---- Time
// --------------------------------------------------------------------------------------------------

void CSimulatorDesk::PassTime(eC_UInt uiMilliseconds)
{
    if (m_bIsPaused || m_eMode != MODE_DEVICE)
    {
        return;
    }
    const eC_UInt uiQuarters = uiMilliseconds * cauiSpeeds[m_uiSpeed] + m_uiRest;
    m_uiRest = uiQuarters % cuiQuarters;
    const eC_UInt uiTime = uiQuarters / cuiQuarters;
    if (m_bIsTouring)
    {
        PassTimeOfTour(uiTime);
    }
    else if (uiTime > 0)
    {
        m_kSimulation.Advance(uiTime);
    }
}

std::string CSimulatorDesk::GetSpeed() const
{
    const eC_UInt uiSpeed = cauiSpeeds[m_uiSpeed];
    return uiSpeed < cuiQuarters ? "x1/" + std::to_string(cuiQuarters / uiSpeed)
                                 : "x" + std::to_string(uiSpeed / cuiQuarters);
}

void CSimulatorDesk::TogglePause()
{
    m_bIsPaused = !m_bIsPaused;
    Say(m_bIsPaused ? "paused: p goes on, s goes one step, b and f go through time" : "");
}

void CSimulatorDesk::Faster()
{
    m_uiSpeed = std::min(m_uiSpeed + 1, std::size(cauiSpeeds) - 1);
    Say("speed " + GetSpeed());
}

void CSimulatorDesk::Slower()
{
    m_uiSpeed -= m_uiSpeed > 0 ? 1U : 0U;
    Say("speed " + GetSpeed());
}

void CSimulatorDesk::Step()
{
    m_bIsPaused = true;
    if (!m_bIsTouring)
    {
        const eC_UInt uiNext = std::min(GETTIMER.GetTimeUntilNextCallback(), cuiStep);
        Execute("advance " + std::to_string(std::max(uiNext, 1U)));
        return;
    }
    if (!m_bIsStepDone)
    {
        PlayTourLine();
    }
    else if (m_uiLeftToAdvance == 0)
    {
        PrepareTourStep(m_uiStep + 1);
    }
    if (m_uiLeftToAdvance > 0)
    {
        m_kSimulation.Advance(m_uiLeftToAdvance);
        m_uiLeftToAdvance = 0;
    }
}

void CSimulatorDesk::GoBack()
{
    m_bIsPaused = true;
    if (m_bIsTouring)
    {
        GoToTourStep(m_bIsStepDone || m_uiStep == 0 ? m_uiStep : m_uiStep - 1);
    }
    else if (m_kSimulation.GetPosition() > 0)
    {
        m_kSimulation.GoTo(m_kSimulation.GetPosition() - 1);
        SayWhere();
    }
}

void CSimulatorDesk::GoForth()
{
    m_bIsPaused = true;
    if (m_bIsTouring)
    {
        Step();
    }
    else
    {
        m_kSimulation.GoTo(m_kSimulation.GetPosition() + 1);
        SayWhere();
    }
}

void CSimulatorDesk::GoToBeginning()
{
    m_bIsPaused = true;
    if (m_bIsTouring)
    {
        GoToTourStep(0);
    }
    else
    {
        m_kSimulation.GoTo(0);
        SayWhere();
    }
}

void CSimulatorDesk::GoToEnd()
{
    m_bIsPaused = true;
    if (!m_bIsTouring)
    {
        m_kSimulation.GoTo(m_kSimulation.GetLines().size());
        SayWhere();
    }
}

void CSimulatorDesk::SayWhere()
{
    const std::size_t uiPosition = m_kSimulation.GetPosition();
    const std::string kLast = uiPosition > 0 ? ", after > " + m_kSimulation.GetLines()[uiPosition - 1] : "";
    Say("line " + std::to_string(uiPosition) + " of " + std::to_string(m_kSimulation.GetLines().size()) +
        kLast + "; b f go on, p lets time pass from here");
}

// ---- The tour
// ----------------------------------------------------------------------------------------------

void CSimulatorDesk::PlayTour()
{
    if (m_kTour.empty())
    {
        Say("there is no tour");
        return;
    }
    m_kSimulation.Restart();
    m_kStepStarts.clear();
    m_bIsPaused = false;
    m_bIsTouring = true;
    PrepareTourStep(0);
}

std::string CSimulatorDesk::GetTourChapter() const
{
    return m_bIsTouring ? m_kTour[m_uiStep].m_kChapter : std::string();
}

std::string CSimulatorDesk::GetTourCaption() const
{
    if (!m_bIsTouring)
    {
        return std::string();
    }
    if (m_kTour[m_uiStep].m_kCommand.empty())
    {
        // What a scenario says before its first command is about its transcript.
        return cpcWelcome;
    }
    std::size_t uiStep = m_uiStep;
    while (m_kTour[uiStep].m_kCaption.empty() && !m_kTour[uiStep].m_bBeginsChapter && uiStep > 0)
    {
        --uiStep;
    }
    return m_kTour[uiStep].m_kCaption;
}

void CSimulatorDesk::PassTimeOfTour(eC_UInt uiMilliseconds)
{
    while (m_bIsTouring && uiMilliseconds >= m_uiWait)
    {
        uiMilliseconds -= m_uiWait;
        m_uiWait = 0;
        if (m_uiLeftToAdvance > 0)
        {
            const eC_UInt uiNow = std::min(uiMilliseconds, m_uiLeftToAdvance);
            if (uiNow > 0)
            {
                m_kSimulation.Advance(uiNow);
            }
            m_uiLeftToAdvance -= uiNow;
            uiMilliseconds -= uiNow;
            if (m_uiLeftToAdvance > 0)
            {
                return;
            }
            m_uiWait = cuiAfterCommand;
        }
        else if (!m_bIsStepDone)
        {
            PlayTourLine();
        }
        else
        {
            PrepareTourStep(m_uiStep + 1);
        }
    }
    m_uiWait -= std::min(uiMilliseconds, m_uiWait);
}

void CSimulatorDesk::PlayTourLine()
{
    const TourStep_t& kStep = m_kTour[m_uiStep];
    m_bIsStepDone = true;
    m_uiWait = kStep.m_kCommand.empty() ? 0 : cuiAfterCommand;
    for (const std::string& kLine : kStep.m_kLines)
    {
        const eC_Bool bIsCommand = kLine == kStep.m_kCommand;
        if (bIsCommand && ReadAdvance(kLine, m_uiLeftToAdvance) && m_uiLeftToAdvance > 0)
        {
            m_uiWait = 0;
            Say("> " + kLine);
            continue;
        }
        const SimulatedResult_t kResult = m_kSimulation.Run(kLine);
        if (!kResult.m_bIsExecuted)
        {
            m_bIsTouring = false;
            Say("the tour ends at a wrong line: " + kLine + ": " + kResult.m_kText, STYLE_ERROR);
            return;
        }
        if (bIsCommand)
        {
            Say("> " + kLine + (kResult.m_kText.empty() ? "" : " = " + kResult.m_kText));
        }
    }
}

void CSimulatorDesk::PrepareTourStep(std::size_t uiStep)
{
    if (uiStep >= m_kTour.size())
    {
        m_bIsTouring = false;
        Say("The tour is over: the device is yours. T plays it again, ? lists the keys, q leaves.");
        return;
    }
    m_uiStep = uiStep;
    m_kStepStarts.resize(uiStep);
    m_kStepStarts.push_back(m_kSimulation.GetPosition());
    m_bIsStepDone = false;
    m_uiLeftToAdvance = 0;
    const TourStep_t& kStep = m_kTour[uiStep];
    m_uiWait = GetReadingTime(kStep.m_kCommand.empty() ? cpcWelcome : kStep.m_kCaption);
    Say(kStep.m_kCommand.empty() ? "" : "next: " + kStep.m_kCommand);
}

void CSimulatorDesk::GoToTourStep(std::size_t uiStep)
{
    m_kSimulation.GoTo(m_kStepStarts[uiStep]);
    PrepareTourStep(uiStep);
}

void CSimulatorDesk::TakeOver()
{
    if (m_bIsTouring)
    {
        m_bIsTouring = false;
        m_bIsPaused = false;
        m_uiLeftToAdvance = 0;
        Say("the device is yours: T plays the tour again, ? lists the keys");
    }
}

// ---- Changes
// ---------------------------------------------------------------------------------------------------

void CSimulatorDesk::LookForChange(CSimulatedSource& kSource)
{
    std::string kText;
    switch (kSource.Look(m_kSimulation, kText))
    {
    case CSimulatedSource::NEWS_CHANGED:
        m_bIsTouring = false;
        m_kTracePane.ScrollToNewest();
        m_iInspectorScroll = 0;
        m_kMistake.clear();
        Say(kText);
        break;
    case CSimulatedSource::NEWS_MISTAKE:
        m_kMistake = kText;
        break;
    case CSimulatedSource::NEWS_NONE:
        break;
    }
}

// ---- Keys
// --------------------------------------------------------------------------------------------------

void CSimulatorDesk::PressKey(const std::string& kKey)
{
    switch (m_eMode)
    {
    case MODE_HELP:
        m_eMode = MODE_DEVICE;
        return;
    case MODE_MENU:
        PressKeyInMenu(kKey);
        return;
    case MODE_FORM:
        PressKeyInForm(kKey);
        return;
    case MODE_PROMPT:
        PressKeyInPrompt(kKey);
        return;
    case MODE_DEVICE:
        break;
    }
    const eC_Bool bIsCommand = m_bNextIsCommand || (IsCharacter(kKey) && !IsTyping());
    m_bNextIsCommand = false;
    if (bIsCommand || !PressKeyOfDevice(kKey))
    {
        if (!PressCommandKey(kKey) && !PressShortcut(kKey))
        {
            Say(kKey + " does nothing here; ? lists the keys");
        }
    }
}

eC_Bool CSimulatorDesk::PressCommandKey(const std::string& kKey)
{
    static constexpr Command_t s_akCommands[] = {{"?", &CSimulatorDesk::ShowHelp},
                                                 {"F1", &CSimulatorDesk::ShowHelp},
                                                 {"q", &CSimulatorDesk::Quit},
                                                 {"p", &CSimulatorDesk::TogglePause},
                                                 {"s", &CSimulatorDesk::Step},
                                                 {"+", &CSimulatorDesk::Faster},
                                                 {"-", &CSimulatorDesk::Slower},
                                                 {"b", &CSimulatorDesk::GoBack},
                                                 {"f", &CSimulatorDesk::GoForth},
                                                 {"B", &CSimulatorDesk::GoToBeginning},
                                                 {"F", &CSimulatorDesk::GoToEnd},
                                                 {"o", &CSimulatorDesk::OpenMenu},
                                                 {":", &CSimulatorDesk::AskForLine},
                                                 {"/", &CSimulatorDesk::AskForFilter},
                                                 {"e", &CSimulatorDesk::ChangeTraceLevel},
                                                 {"i", &CSimulatorDesk::ScrollInspectorDown},
                                                 {"I", &CSimulatorDesk::ScrollInspectorUp},
                                                 {"r", &CSimulatorDesk::AskForRecord},
                                                 {"v", &CSimulatorDesk::AskForShot},
                                                 {"T", &CSimulatorDesk::PlayTour},
                                                 {"R", &CSimulatorDesk::StartAgain}};
    if (kKey == "PageUp" || kKey == "PageDown")
    {
        ScrollTrace(kKey == "PageUp" ? ciPage : -ciPage);
        return true;
    }
    if (kKey == "Ctrl+T")
    {
        m_bNextIsCommand = true;
        Say("the next key is for the simulator");
        return true;
    }
    const auto* const pkCommand =
        std::find_if(std::begin(s_akCommands), std::end(s_akCommands),
                     [&kKey](const Command_t& kCommand) { return kKey == kCommand.m_pcKey; });
    if (pkCommand == std::end(s_akCommands))
    {
        return false;
    }
    (this->*pkCommand->m_pfnRun)();
    return true;
}

eC_Bool CSimulatorDesk::PressShortcut(const std::string& kKey)
{
    for (const KeyOfDevice_t& kShortcut : cakShortcuts)
    {
        if (kKey != kShortcut.m_pcKey)
        {
            continue;
        }
        for (const std::string& kUsage : m_kSimulation.GetUsages())
        {
            if (GetFirstWord(kUsage) == kShortcut.m_pcLine)
            {
                OpenForm(kUsage);
                return true;
            }
        }
    }
    return false;
}

eC_Bool CSimulatorDesk::PressKeyOfDevice(const std::string& kKey)
{
    for (eC_UInt uiKey = 0; uiKey < GetDevice().m_uiKeys; ++uiKey)
    {
        if (kKey == GetDevice().m_pkKeys[uiKey].m_pcKeyboard)
        {
            PressDeviceKey(uiKey);
            return true;
        }
    }
    if (IsCharacter(kKey))
    {
        TakeOver();
        Execute("type '" + kKey + "'");
        return true;
    }
    const auto* const pkOther =
        std::find_if(std::begin(cakOtherKeys), std::end(cakOtherKeys),
                     [&kKey](const KeyOfDevice_t& kOther) { return kKey == kOther.m_pcKey; });
    if (pkOther == std::end(cakOtherKeys))
    {
        return false;
    }
    TakeOver();
    Execute(pkOther->m_pcLine);
    return true;
}

void CSimulatorDesk::TouchDevice(eC_Int iX, eC_Int iY)
{
    TakeOver();
    m_eMode = MODE_DEVICE;
    Execute("touch-at " + std::to_string(iX) + " " + std::to_string(iY));
}

void CSimulatorDesk::PressDeviceKey(eC_UInt uiKey)
{
    TakeOver();
    m_eMode = MODE_DEVICE;
    Execute(std::string("key ") + GetDevice().m_pkKeys[uiKey].m_pcName);
}

eC_Bool CSimulatorDesk::IsTyping() const
{
    const CGUIWidget* const pkWidget = CGUIWidget::Find(CGUIEventHandler::GetInstance().GetFocussedObject());
    CFieldFinder kFinder;
    if (pkWidget != nullptr)
    {
        pkWidget->Accept(kFinder, GUIArea_t());
    }
    return kFinder.m_bIsField;
}

const std::vector<DeskKey_t>& CSimulatorDesk::GetKeys()
{
    static const std::vector<DeskKey_t> s_kKeys = {{"p", "pause, and go on"},
                                                   {"s", "one step, of the tour or in time"},
                                                   {"+ -", "faster, slower"},
                                                   {"b f", "back and forth in time, line by line"},
                                                   {"B F", "to the beginning, to the end"},
                                                   {"o", "all commands, each with a form"},
                                                   {"c a", "CreateDialog, AddDialog"},
                                                   {"k j h", "Back, BackToDialog, ClearDialogHistory"},
                                                   {"w x", "ShowPopup, ClosePopup"},
                                                   {":", "type any line of a scenario"},
                                                   {"/ e", "filter the trace by text, by level"},
                                                   {"PgUp PgDn", "scroll the trace"},
                                                   {"i I", "scroll the inspector"},
                                                   {"r v", "record the session, write a picture"},
                                                   {"T R", "play the tour, start the device again"},
                                                   {"Ctrl+T", "next key: simulator, not text field"},
                                                   {"q", "leave"}};
    return s_kKeys;
}

// ---- Commands with arguments
// -------------------------------------------------------------------------------

void CSimulatorDesk::OpenMenu()
{
    m_kMenu = m_kSimulation.GetUsages();
    m_eMode = m_kMenu.empty() ? MODE_DEVICE : MODE_MENU;
    m_uiMenuSelected = 0;
}

eC_Char CSimulatorDesk::GetMenuLetter(std::size_t uiEntry)
{
    const std::string kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    return uiEntry < kLetters.size() ? kLetters[uiEntry] : '\0';
}

void CSimulatorDesk::PressKeyInMenu(const std::string& kKey)
{
    const std::size_t uiLast = m_kMenu.size() - 1;
    for (std::size_t uiEntry = 0; uiEntry <= uiLast; ++uiEntry)
    {
        if (kKey == std::string(1, GetMenuLetter(uiEntry)))
        {
            OpenForm(m_kMenu[uiEntry]);
            return;
        }
    }
    if (kKey == "Enter")
    {
        OpenForm(m_kMenu[m_uiMenuSelected]);
    }
    else if (kKey == "Escape")
    {
        m_eMode = MODE_DEVICE;
    }
    else if (kKey == "ArrowDown")
    {
        m_uiMenuSelected = m_uiMenuSelected == uiLast ? 0 : m_uiMenuSelected + 1;
    }
    else if (kKey == "ArrowUp")
    {
        m_uiMenuSelected = m_uiMenuSelected == 0 ? uiLast : m_uiMenuSelected - 1;
    }
}

void CSimulatorDesk::OpenForm(const std::string& kUsage)
{
    Say("");
    m_pkForm = std::make_unique<COperationForm>(kUsage, CollectNames(m_kSimulation.GetInspector()));
    m_eMode = MODE_FORM;
    if (m_pkForm->GetCount() == 0)
    {
        PressKeyInForm("Enter");
    }
}

void CSimulatorDesk::PressKeyInForm(const std::string& kKey)
{
    if (kKey == "Escape")
    {
        m_eMode = MODE_DEVICE;
    }
    else if (m_pkForm->PressKey(kKey))
    {
        TakeOver();
        // A form with a wrong argument stays open.
        m_eMode = Execute(m_pkForm->GetLine()).m_bIsExecuted ? MODE_DEVICE : MODE_FORM;
    }
}

void CSimulatorDesk::Ask(EPrompt ePrompt, const std::string& kText)
{
    Say("");
    m_eMode = MODE_PROMPT;
    m_ePrompt = ePrompt;
    m_kEditor = CLineEditor(kText);
}

void CSimulatorDesk::AskForLine()
{
    Ask(PROMPT_LINE, "");
}

void CSimulatorDesk::AskForFilter()
{
    Ask(PROMPT_FILTER, m_kTracePane.GetFilter());
}

void CSimulatorDesk::AskForRecord()
{
    Ask(PROMPT_RECORD, "Session.scenario");
}

void CSimulatorDesk::AskForShot()
{
    Ask(PROMPT_SHOT, "Simulator.svg");
}

void CSimulatorDesk::PressKeyInPrompt(const std::string& kKey)
{
    if (kKey == "Escape")
    {
        m_eMode = MODE_DEVICE;
    }
    else if (kKey == "Enter")
    {
        m_eMode = MODE_DEVICE;
        FinishPrompt();
    }
    else
    {
        m_kEditor.PressKey(kKey);
    }
}

void CSimulatorDesk::FinishPrompt()
{
    const std::string& kText = m_kEditor.GetText();
    switch (m_ePrompt)
    {
    case PROMPT_FILTER:
        m_kTracePane.SetFilter(kText);
        break;
    case PROMPT_LINE:
        if (kText.find_first_not_of(' ') != std::string::npos)
        {
            TakeOver();
            Execute(kText);
        }
        break;
    case PROMPT_RECORD:
        Record(kText);
        break;
    case PROMPT_SHOT:
        m_kShotFile = kText;
        break;
    }
}

SimulatedResult_t CSimulatorDesk::Execute(const std::string& kLine)
{
    eC_UInt uiMilliseconds = 0;
    SimulatedResult_t kResult{false,
                              "expected at most " + std::to_string(cuiLongestAdvance) + " milliseconds"};
    if (!ReadAdvance(kLine, uiMilliseconds) || uiMilliseconds <= cuiLongestAdvance)
    {
        kResult = m_kSimulation.Run(kLine);
    }
    if (!kResult.m_bIsExecuted)
    {
        Say(kResult.m_kText, STYLE_ERROR);
    }
    else
    {
        Say("> " + kLine + (kResult.m_kText.empty() ? "" : " = " + kResult.m_kText));
    }
    m_kTracePane.ScrollToNewest();
    return kResult;
}

// ---- Trace, inspector, files
// -------------------------------------------------------------------------------

void CSimulatorDesk::ScrollTrace(eC_Int iLines)
{
    m_kTracePane.Scroll(iLines, m_kSimulation.GetTrace().size() + m_kSimulation.GetPosition());
}

void CSimulatorDesk::ScrollInspector(eC_Int iLines)
{
    const std::size_t uiLines = DescribeState(m_kSimulation.GetInspector()).size();
    m_iInspectorScroll = std::clamp(m_iInspectorScroll + iLines, 0, static_cast<eC_Int>(uiLines) - 1);
}

void CSimulatorDesk::ScrollInspectorDown()
{
    ScrollInspector(ciPage);
}

void CSimulatorDesk::ScrollInspectorUp()
{
    ScrollInspector(-ciPage);
}

void CSimulatorDesk::Record(const std::string& kFile)
{
    std::ofstream kStream(kFile, std::ios::binary);
    for (std::size_t uiLine = 0; uiLine < m_kSimulation.GetPosition(); ++uiLine)
    {
        kStream << m_kSimulation.GetLines()[uiLine] << '\n';
    }
    kStream.close();
    if (kStream)
    {
        Say("recorded " + std::to_string(m_kSimulation.GetPosition()) + " lines in " + kFile);
    }
    else
    {
        Say("cannot write " + kFile, STYLE_ERROR);
    }
}

std::string CSimulatorDesk::TakeShotRequest()
{
    std::string kFile;
    kFile.swap(m_kShotFile);
    return kFile;
}

void CSimulatorDesk::Say(const std::string& kText, ETextStyle eStyle)
{
    m_kMessage = kText;
    m_eMessageStyle = eStyle;
}

void CSimulatorDesk::StartAgain()
{
    m_bIsTouring = false;
    m_bIsPaused = false;
    m_kSimulation.Restart();
    Execute("power-on");
}
