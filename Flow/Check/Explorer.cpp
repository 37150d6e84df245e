// SPDX-License-Identifier: MIT
#include "Flow/Check/Explorer.h"

#include "Core/GUITrace.h"
#include "Flow/Check/Watchdog.h"
#include "Flow/Check/WaysBack.h"
#include "Scenario/Names.h"
#include "Scenario/ScenarioArguments.h"
#include "Scenario/StateReader.h"

#include <algorithm>
#include <chrono>
#include <cstring>

namespace
{
constexpr eC_UInt cuiLeastPause = 1;
constexpr std::size_t cuiFarAway = 100;    ///< keys, which take longer than to start anew
constexpr std::size_t cuiMostPlaces = 100; ///< that are looked at for a way to a state
constexpr std::size_t cuiMostBits = 64;

/** Collects the identifiers of all definitions. */
class CDefinitions : public CStateVisitor
{
public:
    explicit CDefinitions(StateSpace_t& kSpace) : m_kSpace(kSpace) {}

    void VisitCurrent(const Access::DialogDescription_t& /*kDialog*/) override {}
    void VisitHistoryEntry(const Access::HistoryEntry_t& /*kEntry*/) override {}
    void VisitActivePopup(const ActivePopupState_t& /*kPopup*/) override {}
    void VisitRememberedFocus(const CGUIObject& /*kObject*/) override {}
    void VisitDynamicIdentifier(ObjectHandle_t /*eID*/) override {}
    void VisitFocus(const CGUIObject& /*kObject*/) override {}
    void VisitObject(const ObjectState_t& /*kObject*/) override {}
    void VisitTimer(const TimerState_t& /*kTimer*/) override {}

    void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) override
    {
        m_kSpace.m_kDialogs.push_back(kDefinition.m_eDialogID);
    }

    void VisitPopupDefinition(const Access::RegisteredPopup_t& kDefinition) override
    {
        m_kSpace.m_kPopups.push_back(kDefinition.m_ePopupID);
    }

private:
    StateSpace_t& m_kSpace;
};

/** Adds what is allocated as long as it exists. */
class CHeapDifference
{
public:
    CHeapDifference(CExplorer::Heap_t pfnHeap, std::size_t& uiBytes) : m_pfnHeap(pfnHeap), m_uiBytes(uiBytes)
    {
        m_uiBytes -= Read();
    }
    CHeapDifference(const CHeapDifference&) = delete;
    CHeapDifference& operator=(const CHeapDifference&) = delete;
    ~CHeapDifference() { m_uiBytes += Read(); }

private:
    std::size_t Read() const { return m_pfnHeap != nullptr ? m_pfnHeap() : 0; }

    CExplorer::Heap_t m_pfnHeap;
    std::size_t& m_uiBytes;
};

eC_Bool Contains(const std::vector<ObjectHandle_t>& kHandles, ObjectHandle_t eHandle)
{
    return std::find(kHandles.begin(), kHandles.end(), eHandle) != kHandles.end();
}
} // namespace

/** Keeps the first ERROR since the last step. */
class CExplorer::CErrorSink : public CGUITraceSink
{
public:
    CErrorSink() : m_pkBefore(CGUITrace::GetInstance().GetSink()) { CGUITrace::GetInstance().SetSink(this); }
    CErrorSink(const CErrorSink&) = delete;
    CErrorSink& operator=(const CErrorSink&) = delete;
    ~CErrorSink() override { CGUITrace::GetInstance().SetSink(m_pkBefore); }

    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& /*kFile*/,
               const eC_String& /*kLine*/) override
    {
        if (m_kFirst.empty() && std::strcmp(kPrefix.GetText(), "ERROR: ") == 0)
        {
            m_kFirst = kMessage.GetText();
            std::replace(m_kFirst.begin(), m_kFirst.end(), '\n', ' ');
            m_kFirst.erase(m_kFirst.find_last_not_of(" .") + 1);
        }
    }

    std::string m_kFirst;

private:
    CGUITraceSink* m_pkBefore;
};

/** The commands that the application adds to scenarios. */
class CExplorer::CCommands final : public CSimulatedCommands
{
public:
    void Add(const std::string& kUsage, Handler_t kHandler) override
    {
        m_kHandlers[kUsage.substr(0, kUsage.find(' '))] = std::move(kHandler);
    }

    void Run(const std::string& kLine)
    {
        const CScenarioArguments kArguments(kLine);
        m_kHandlers.at(kArguments.GetCommand())(kArguments);
    }

    std::unordered_map<std::string, Handler_t> m_kHandlers;
};

CExplorer::CExplorer(CCheckSubject& kSubject)
    : m_kSubject(kSubject),
      m_pkErrors(std::make_unique<CErrorSink>()),
      m_pkCommands(std::make_unique<CCommands>())
{
}

CExplorer::~CExplorer()
{
    if (m_bIsStarted)
    {
        m_kSubject.GetApplication().Stop();
    }
}

StateSpace_t CExplorer::Explore(const ExplorerBounds_t& kBounds)
{
    ExploreUpTo(kBounds);
    return std::move(m_kSpace);
}

void CExplorer::ExploreUpTo(const ExplorerBounds_t& kBounds)
{
    const auto kBegin = std::chrono::steady_clock::now();
    Begin();
    eC_Bool bIsBounded = false;
    std::uint32_t uiState = 0;
    for (; uiState < m_kSpace.m_kStates.size(); ++uiState)
    {
        const ReachedState_t& kState = m_kSpace.m_kStates[uiState];
        if (kState.m_uiDepth >= kBounds.m_uiDepth || m_kSpace.m_kStates.size() >= kBounds.m_uiStates)
        {
            bIsBounded = true;
            break;
        }
        m_kSpace.m_uiDepth = kState.m_uiDepth;
        if (!kState.m_bIsHanging && (!kState.m_bIsPumped || kBounds.m_bRepeats))
        {
            Expand(uiState);
        }
        if (m_fnProgress)
        {
            m_fnProgress({m_kSpace.m_kStates.size(), uiState + 1U, m_kSpace.m_uiDepth});
        }
    }
    m_kSpace.m_bIsComplete = !bIsBounded && m_kSpace.m_kPumps.empty();
    if (bIsBounded)
    {
        // The states of this depth may not all be known.
        m_kSpace.m_uiDepth = m_kSpace.m_kStates[uiState].m_uiDepth;
    }
    else
    {
        m_kSpace.m_uiDepth = m_kSpace.m_kStates.back().m_uiDepth;
    }
    const std::chrono::duration<double> kTime = std::chrono::steady_clock::now() - kBegin;
    m_kSpace.m_vSeconds = kTime.count();
}

void CExplorer::Begin()
{
    m_kSpace.m_kTexts.Get("");
    m_kSpace.m_kChanges.emplace_back();
    m_kSpace.m_kBacks.emplace_back();
    FindInputs();
    AddFirstState();
}

// --- Inputs ----------------------------------------------------------------------------------------------

void CExplorer::FindInputs()
{
    const Device_t& kDevice = m_kSubject.GetApplication().GetDevice();
    for (eC_UInt uiKey = 0; uiKey < kDevice.m_uiKeys; ++uiKey)
    {
        const std::string kName = kDevice.m_pkKeys[uiKey].m_pcName;
        const eC_Bool bIsSignal = m_kSubject.IsSignal(uiKey);
        m_kAlways.push_back(static_cast<std::uint16_t>(m_kSpace.m_kInputs.size()));
        AddInput(bIsSignal ? CheckedInput_t::SIGNAL : CheckedInput_t::KEY, uiKey, "key " + kName, kName,
                 m_kSubject.IsActivation(uiKey));
    }
    const std::vector<std::string> kLines = m_kSubject.GetLines();
    m_bHasLines = !kLines.empty();
    for (const std::string& kLine : kLines)
    {
        m_kAlways.push_back(static_cast<std::uint16_t>(m_kSpace.m_kInputs.size()));
        AddInput(CheckedInput_t::SIGNAL, kDevice.m_uiKeys, kLine, kLine, false);
    }
}

void CExplorer::AddInput(CheckedInput_t::EKind eKind, eC_UInt uiNumber, const std::string& kLine,
                         const std::string& kTitle, eC_Bool bIsActivation)
{
    m_kSpace.m_kInputs.push_back({eKind, uiNumber, kLine, kTitle, bIsActivation});
}

std::uint16_t CExplorer::GetTouch(ObjectHandle_t eObject)
{
    const auto kPlace = m_kTouches.emplace(eObject, static_cast<std::uint16_t>(m_kSpace.m_kInputs.size()));
    if (kPlace.second)
    {
        const std::string kName = NameOfHandle(eObject);
        AddInput(CheckedInput_t::TOUCH, static_cast<eC_UInt>(eObject), "touch " + kName, kName, true);
    }
    return kPlace.first->second;
}

std::uint16_t CExplorer::GetExpiry(eC_UInt uiTimer)
{
    const auto kPlace = m_kExpiries.emplace(uiTimer, static_cast<std::uint16_t>(m_kSpace.m_kInputs.size()));
    if (kPlace.second)
    {
        AddInput(CheckedInput_t::EXPIRY, uiTimer, "", m_kTimerNumbers.GetText(uiTimer) + " runs out", false);
    }
    return kPlace.first->second;
}

eC_UInt CExplorer::GetTimer(const std::string& kName)
{
    const eC_UInt uiTimer = m_kTimerNumbers.Get(kName);
    if (uiTimer == m_kSpace.m_kTimers.size())
    {
        m_kSpace.m_kTimers.push_back(kName);
    }
    return uiTimer;
}

std::vector<std::uint16_t> CExplorer::GetInputs(const ReachedState_t& kState)
{
    std::vector<std::uint16_t> kInputs = m_kAlways;
    const std::vector<ObjectHandle_t> kTouchable = m_kSpace.m_kTouchables[kState.m_uiTouchable];
    for (const ObjectHandle_t eObject : kTouchable)
    {
        kInputs.push_back(GetTouch(eObject));
    }
    const std::vector<CZone::Clock_t> kClocks = m_kSpace.m_kZones[kState.m_uiZone].GetClocks();
    for (const CZone::Clock_t& kClock : kClocks)
    {
        kInputs.push_back(GetExpiry(kClock.m_uiID));
    }
    return kInputs;
}

// --- Running the application -----------------------------------------------------------------------------

void CExplorer::Restart()
{
    CSimulatedApplication& kApplication = m_kSubject.GetApplication();
    if (m_bIsStarted)
    {
        kApplication.Stop();
    }
    m_uiBytes = 0;
    m_bIsStraight = true;
    m_bIsStarted = true;
    m_uiAt = cuiNoState;
    {
        const CHeapDifference kDifference(m_pfnHeap, m_uiBytes);
        kApplication.Start();
    }
    m_pkCommands->m_kHandlers.clear();
    if (m_bHasLines)
    {
        kApplication.AddCommands(*m_pkCommands);
    }
    const CHeapDifference kDifference(m_pfnHeap, m_uiBytes);
    const CWatchdog::COperation kOperation("power-on");
    kApplication.PowerOn();
}

void CExplorer::Apply(std::uint16_t uiInput, eC_UInt uiPause)
{
    CSimulatedApplication& kApplication = m_kSubject.GetApplication();
    const CHeapDifference kDifference(m_pfnHeap, m_uiBytes);
    const CheckedInput_t& kInput = m_kSpace.m_kInputs[uiInput];
    try
    {
        {
            const CWatchdog::COperation kOperation(("advance " + std::to_string(uiPause)).c_str());
            m_kClock.Advance(uiPause);
        }
        const CWatchdog::COperation kOperation(kInput.m_kLine.c_str());
        switch (kInput.m_eKind)
        {
        case CheckedInput_t::KEY:
        case CheckedInput_t::SIGNAL:
            if (kInput.m_uiNumber < kApplication.GetDevice().m_uiKeys)
            {
                kApplication.PressKey(kInput.m_uiNumber);
            }
            else
            {
                m_pkCommands->Run(kInput.m_kLine);
            }
            break;
        case CheckedInput_t::TOUCH:
            kApplication.Touch(static_cast<ObjectHandle_t>(kInput.m_uiNumber));
            break;
        case CheckedInput_t::EXPIRY:
            break;
        }
    }
    catch (int iValue)
    {
        GUILOG(GUI_TRACE_ERROR, "throws int " + eC_String(iValue) + "\n");
    }
}

void CExplorer::NoteTimers(const std::vector<RunningTimer_t>& kTimers)
{
    m_kRunning = kTimers;
}

/** Goes to a state, up to the moment before one more step.
 *  @param kExpired the timer that runs out in that step; none: it is a key
 *  @return false: no pauses allow that step
 */
eC_Bool CExplorer::GoTo(std::uint32_t uiState, const std::vector<eC_UInt>& kExpired)
{
    const std::vector<std::uint32_t> kStates = m_kSpace.GetStates(uiState);
    std::vector<eC_UInt> kPauses(kStates.size(), cuiLeastPause);
    eC_Bool bHasTimers = false;
    std::vector<const TimerChanges_t*> kChanges;
    for (const std::uint32_t uiOn : kStates)
    {
        kChanges.push_back(&m_kSpace.m_kChanges[m_kSpace.m_kStates[uiOn].m_uiChanges]);
        bHasTimers = bHasTimers || m_kSpace.m_kStates[uiOn].m_uiChanges != 0;
    }
    eC_Bool bTies = false;
    if (bHasTimers && !FindPauses(kChanges, kExpired, false, cuiLeastPause, kPauses))
    {
        bTies = true;
        if (kExpired.empty() || !FindPauses(kChanges, kExpired, true, cuiLeastPause, kPauses))
        {
            return false;
        }
    }
    if (!bTies && GoOn(kStates, kChanges, kExpired, kPauses))
    {
        return true;
    }
    m_uiPause = kPauses.back();
    Restart();
    for (std::size_t uiStep = 1; uiStep < kStates.size(); ++uiStep)
    {
        Apply(m_kSpace.m_kStates[kStates[uiStep]].m_uiInput, kPauses[uiStep - 1]);
    }
    return true;
}

/** Goes to the last state of a path from where the application is, by keys that are known to lead back to the
 * path, if the timers that run there leave time for it.
 *  @return whether it has
 */
eC_Bool CExplorer::GoOn(const std::vector<std::uint32_t>& kStates,
                        const std::vector<const TimerChanges_t*>& kChanges,
                        const std::vector<eC_UInt>& kExpired, const std::vector<eC_UInt>& kPauses)
{
    std::size_t uiMet = 0;
    const Way_t kWay = FindWayTo(kStates, uiMet);
    if (uiMet == kStates.size())
    {
        return false;
    }
    TimerChanges_t kNow;
    for (const RunningTimer_t& kTimer : m_kNow)
    {
        kNow.m_kStarted.push_back({GetTimer(kTimer.m_kName), kTimer.m_uiTimeLeft});
    }
    std::vector<const TimerChanges_t*> kOfSteps = {&kNow};
    std::vector<std::uint16_t> kInputs;
    for (const std::uint32_t uiStep : kWay)
    {
        kOfSteps.push_back(&m_kSpace.m_kChanges[m_kSpace.m_kSteps[uiStep].m_uiChanges]);
        kInputs.push_back(m_kSpace.m_kSteps[uiStep].m_uiInput);
    }
    for (std::size_t uiStep = uiMet + 1; uiStep < kStates.size(); ++uiStep)
    {
        kOfSteps.push_back(kChanges[uiStep]);
        kInputs.push_back(m_kSpace.m_kStates[kStates[uiStep]].m_uiInput);
    }
    std::vector<eC_UInt> kNewPauses;
    if (!FindPauses(kOfSteps, kExpired, false, cuiLeastPause, kNewPauses))
    {
        return false;
    }
    for (std::size_t uiStep = 0; uiStep < kInputs.size(); ++uiStep)
    {
        Apply(kInputs[uiStep], kNewPauses[uiStep]);
    }
    NoteKeys(kStates, kPauses);
    m_uiPause = kNewPauses.back();
    m_bIsStraight = false;
    return true;
}

/** @param uiMetOUT receives which of the states the way leads to; their number: there is none
 *  @return a short way there from where the application is, by steps that are known and no timer
 */
Way_t CExplorer::FindWayTo(const std::vector<std::uint32_t>& kStates, std::size_t& uiMetOUT)
{
    struct Place_t
    {
        std::uint32_t m_uiState;
        std::uint32_t m_uiStep;
        std::size_t m_uiBefore;
        std::size_t m_uiKeys;
    };
    uiMetOUT = kStates.size();
    if (m_uiAt == cuiNoState)
    {
        return {};
    }
    std::vector<Place_t> kPlaces = {{m_uiAt, 0, 0, 0}};
    std::size_t uiBest = 0;
    std::size_t uiFewest = cuiFarAway;
    for (std::size_t uiPlace = 0; uiPlace < kPlaces.size() && kPlaces[uiPlace].m_uiKeys < uiFewest; ++uiPlace)
    {
        const Place_t kPlace = kPlaces[uiPlace];
        // What the application does next does not depend on its times, but for which timer runs out.
        const ReachedState_t& kState = m_kSpace.m_kStates[kPlace.m_uiState];
        const auto kMet = std::find_if(kStates.rbegin(), kStates.rend(),
                                       [this, &kState](std::uint32_t uiOther)
                                       {
                                           const ReachedState_t& kOther = m_kSpace.m_kStates[uiOther];
                                           return kOther.m_uiControl == kState.m_uiControl &&
                                                  kOther.m_uiHistory == kState.m_uiHistory;
                                       });
        const std::size_t uiKeys = kPlace.m_uiKeys + static_cast<std::size_t>(kMet - kStates.rbegin());
        if (kMet != kStates.rend() && uiKeys < uiFewest)
        {
            uiBest = uiPlace;
            uiFewest = uiKeys;
            uiMetOUT = static_cast<std::size_t>(kStates.rend() - kMet) - 1;
        }
        for (std::uint32_t uiStep = kState.m_uiFirstStep;
             uiStep < kState.m_uiFirstStep + kState.m_uiSteps && kPlaces.size() < cuiMostPlaces; ++uiStep)
        {
            const CheckedStep_t& kStep = m_kSpace.m_kSteps[uiStep];
            if (m_kSpace.m_kInputs[kStep.m_uiInput].m_eKind != CheckedInput_t::EXPIRY &&
                kStep.m_uiTarget != kPlace.m_uiState)
            {
                kPlaces.push_back({kStep.m_uiTarget, uiStep, uiPlace, kPlace.m_uiKeys + 1});
            }
        }
    }
    Way_t kWay;
    for (; uiBest != 0; uiBest = kPlaces[uiBest].m_uiBefore)
    {
        kWay.insert(kWay.begin(), kPlaces[uiBest].m_uiStep);
    }
    return kWay;
}

/** Tells the watchdog the keys of a path, instead of those that have really been pressed. */
void CExplorer::NoteKeys(const std::vector<std::uint32_t>& kStates, const std::vector<eC_UInt>& kPauses) const
{
    const CWatchdog::COperation kBegin("power-on");
    for (std::size_t uiStep = 1; uiStep < kStates.size(); ++uiStep)
    {
        const ReachedState_t& kState = m_kSpace.m_kStates[kStates[uiStep]];
        const CWatchdog::COperation kPause(("advance " + std::to_string(kPauses[uiStep - 1])).c_str());
        const CWatchdog::COperation kKey(m_kSpace.m_kInputs[kState.m_uiInput].m_kLine.c_str());
    }
}

// --- Exploring -------------------------------------------------------------------------------------------

void CExplorer::AddFirstState()
{
    Restart();
    FindDefinitions();
    const CheckedState_t kState = ReadCheckedState(m_kSubject);
    m_kSpace.m_eHome = m_kSubject.GetHome() != NO_HANDLE ? m_kSubject.GetHome() : kState.m_eCurrent;
    CZone kZone;
    TimerChanges_t kChanges;
    for (const RunningTimer_t& kTimer : kState.m_kTimers)
    {
        kChanges.m_kStarted.push_back({GetTimer(kTimer.m_kName), kTimer.m_uiInterval});
        kZone.Start(kChanges.m_kStarted.back());
    }
    AddState(kState, kZone, kChanges, cuiNoState, 0);
}

void CExplorer::FindDefinitions()
{
    CDefinitions kDefinitions(m_kSpace);
    VisitState(m_kSubject.GetApplication().GetManager(), STATE_DEFINITIONS, kDefinitions);
    m_kSpace.m_kPopups.resize(std::min(m_kSpace.m_kPopups.size(), cuiMostBits));
}

void CExplorer::Expand(std::uint32_t uiState)
{
    const std::vector<std::uint16_t> kInputs = GetInputs(m_kSpace.m_kStates[uiState]);
    const auto uiFirst = static_cast<std::uint32_t>(m_kSpace.m_kSteps.size());
    for (const std::uint16_t uiInput : kInputs)
    {
        const CheckedStep_t kStep = Try(uiState, uiInput);
        if (kStep.m_uiTarget != cuiNoState)
        {
            m_kSpace.m_kSteps.push_back(kStep);
        }
    }
    ReachedState_t& kExpanded = m_kSpace.m_kStates[uiState];
    kExpanded.m_bIsExpanded = true;
    kExpanded.m_uiFirstStep = uiFirst;
    kExpanded.m_uiSteps = static_cast<std::uint32_t>(m_kSpace.m_kSteps.size()) - uiFirst;
}

/** Takes one step. @return it; without a target if it is impossible */
CheckedStep_t CExplorer::Try(std::uint32_t uiState, std::uint16_t uiInput)
{
    const CheckedInput_t& kInput = m_kSpace.m_kInputs[uiInput];
    const eC_Bool bIsExpiry = kInput.m_eKind == CheckedInput_t::EXPIRY;
    if (!GoTo(uiState, bIsExpiry ? std::vector<eC_UInt>{kInput.m_uiNumber} : std::vector<eC_UInt>()))
    {
        return {cuiNoState, 0, uiInput, 0};
    }
    const eC_Bool bHasTimers = !m_kSpace.m_kZones[m_kSpace.m_kStates[uiState].m_uiZone].GetClocks().empty();
    NoteTimers(bHasTimers ? ReadCheckedState(m_kSubject).m_kTimers : std::vector<RunningTimer_t>());
    m_pkErrors->m_kFirst.clear();
    m_uiAt = cuiNoState;
    Apply(uiInput, m_uiPause);
    const std::string kError = m_pkErrors->m_kFirst;
    const CheckedState_t kState = ReadCheckedState(m_kSubject);
    const TimerChanges_t kChanges = GetChanges(kState, m_uiPause);
    CZone kZone = m_kSpace.m_kZones[m_kSpace.m_kStates[uiState].m_uiZone];
    if (!TakeStep(kZone, m_kSpace.m_kInputs[uiInput], kChanges))
    {
        return {cuiNoState, 0, uiInput, 0};
    }
    const std::uint32_t uiTarget = AddState(kState, kZone, kChanges, uiState, uiInput);
    const auto uiError = static_cast<std::uint16_t>(m_kSpace.m_kTexts.Get(kError));
    return {uiTarget, AddChanges(kChanges), uiInput, uiError};
}

/** Compares the timers after a step with those before it. */
TimerChanges_t CExplorer::GetChanges(const CheckedState_t& kState, eC_UInt uiPause)
{
    TimerChanges_t kChanges;
    const auto Find = [](const std::vector<RunningTimer_t>& kTimers, const std::string& kName)
    {
        return std::find_if(kTimers.begin(), kTimers.end(),
                            [&kName](const RunningTimer_t& kTimer) { return kTimer.m_kName == kName; });
    };
    for (const RunningTimer_t& kBefore : m_kRunning)
    {
        const eC_UInt uiTimer = GetTimer(kBefore.m_kName);
        if (kBefore.m_uiTimeLeft == uiPause)
        {
            kChanges.m_kExpired.push_back(uiTimer);
        }
        else if (Find(kState.m_kTimers, kBefore.m_kName) == kState.m_kTimers.end())
        {
            kChanges.m_kStopped.push_back(uiTimer);
        }
    }
    for (const RunningTimer_t& kAfter : kState.m_kTimers)
    {
        const auto kBefore = Find(m_kRunning, kAfter.m_kName);
        // One that has just begun has its whole time left.
        if (kBefore == m_kRunning.end() || kAfter.m_uiTimeLeft == kAfter.m_uiInterval)
        {
            kChanges.m_kStarted.push_back({GetTimer(kAfter.m_kName), kAfter.m_uiInterval});
        }
    }
    return kChanges;
}

/** @return a state with these times, otherwise the first one whose times include them */
std::uint32_t CExplorer::FindState(std::uint32_t uiControl, std::uint32_t uiHistory, const CZone& kZone) const
{
    const auto kFound = m_kFirstOfSame.find((std::uint64_t(uiControl) << 32U) | uiHistory);
    std::uint32_t uiCovering = cuiNoState;
    for (std::uint32_t uiState = kFound != m_kFirstOfSame.end() ? kFound->second : cuiNoState;
         uiState != cuiNoState; uiState = m_kSpace.m_kStates[uiState].m_uiNextOfSame)
    {
        const CZone& kOther = m_kSpace.m_kZones[m_kSpace.m_kStates[uiState].m_uiZone];
        if (kOther == kZone)
        {
            return uiState;
        }
        uiCovering = kOther.Includes(kZone) ? uiState : uiCovering;
    }
    return uiCovering;
}

/** @return the state, a new one or one that covers it */
std::uint32_t CExplorer::AddState(CheckedState_t kState, const CZone& kZone, const TimerChanges_t& kChanges,
                                  std::uint32_t uiParent, std::uint16_t uiInput)
{
    const std::uint32_t uiControl = m_kSpace.m_kControls.Get(kState.m_kControl);
    const std::uint32_t uiHistory = GetHistory(kState);
    const std::uint32_t uiKnown = FindState(uiControl, uiHistory, kZone);
    if (uiKnown != cuiNoState)
    {
        m_uiAt = m_kSubject.IsHanging() ? cuiNoState : uiKnown;
        m_kNow = kState.m_kTimers;
        return uiKnown;
    }
    MeasureBytes(uiParent, uiInput, kState);
    const auto uiNew = static_cast<std::uint32_t>(m_kSpace.m_kStates.size());
    ReachedState_t kReached{};
    kReached.m_uiControl = uiControl;
    kReached.m_uiHistory = uiHistory;
    kReached.m_uiParent = uiParent;
    kReached.m_uiInput = uiInput;
    kReached.m_uiDepth = uiParent == cuiNoState
                             ? std::uint16_t(0)
                             : static_cast<std::uint16_t>(m_kSpace.m_kStates[uiParent].m_uiDepth + 1);
    m_kSpace.m_kZones.push_back(kZone);
    kReached.m_uiZone = static_cast<std::uint32_t>(m_kSpace.m_kZones.size() - 1);
    kReached.m_uiChanges = AddChanges(kChanges);
    FillFacts(kState, kReached);
    std::uint32_t& uiFirst =
        m_kFirstOfSame.emplace((std::uint64_t(uiControl) << 32U) | uiHistory, cuiNoState).first->second;
    kReached.m_uiNextOfSame = uiFirst;
    uiFirst = uiNew;
    m_kSpace.m_kStates.push_back(kReached);
    m_uiAt = kReached.m_bIsHanging ? cuiNoState : uiNew;
    m_kNow = kState.m_kTimers;
    if (!kReached.m_bIsHanging && !kState.m_kHistory.empty())
    {
        m_kSpace.m_kStates[uiNew].m_uiBack = GoBack(kState);
        FindPump(uiNew);
    }
    return uiNew;
}

/** Memory that objects have left on a detour may be kept for the next ones. So what seems to be more than
 * ever is measured again, after the keys of the path alone.
 *  @param kState receives the state then, with other times
 */
void CExplorer::MeasureBytes(std::uint32_t uiParent, std::uint16_t uiInput, CheckedState_t& kState)
{
    const CheckedInput_t& kInput = m_kSpace.m_kInputs[uiInput];
    if (!m_bIsStraight && m_uiBytes > m_uiMostBytes)
    {
        const eC_Bool bIsExpiry = kInput.m_eKind == CheckedInput_t::EXPIRY;
        m_uiAt = cuiNoState;
        if (GoTo(uiParent, bIsExpiry ? std::vector<eC_UInt>{kInput.m_uiNumber} : std::vector<eC_UInt>()))
        {
            Apply(uiInput, m_uiPause);
            kState = ReadCheckedState(m_kSubject);
        }
    }
    m_uiMostBytes = std::max(m_uiMostBytes, m_uiBytes);
}

std::uint32_t CExplorer::AddChanges(const TimerChanges_t& kChanges)
{
    if (kChanges.m_kStarted.empty() && kChanges.m_kStopped.empty() && kChanges.m_kExpired.empty())
    {
        return 0;
    }
    m_kSpace.m_kChanges.push_back(kChanges);
    return static_cast<std::uint32_t>(m_kSpace.m_kChanges.size() - 1);
}

void CExplorer::FillFacts(const CheckedState_t& kState, ReachedState_t& kReached)
{
    kReached.m_eCurrent = kState.m_eCurrent;
    kReached.m_eFocus = kState.m_eFocus;
    kReached.m_eFocusFault = kState.m_eFocusFault;
    kReached.m_uiListed = GetPopups(kState.m_kListedPopups);
    kReached.m_uiShown = GetPopups(kState.m_kShownPopups);
    kReached.m_uiVisible = m_kSpace.m_kTexts.Get(NameVisible(kState));
    kReached.m_uiObjects = static_cast<std::uint16_t>(kState.m_uiObjects);
    kReached.m_uiOutcome = m_kOutcomes.Get(kState.m_kOutcome);
    kReached.m_bIsHanging = m_kSubject.IsHanging();
    kReached.m_uiBytes = static_cast<std::uint32_t>(m_uiBytes);
    const std::vector<FlowClaim_t>& kClaims = m_kSubject.GetClaims();
    for (std::size_t uiClaim = 0; uiClaim < kClaims.size(); ++uiClaim)
    {
        kReached.m_uiFrom |= std::uint64_t(m_kSubject.Holds(kClaims[uiClaim].m_kFrom) ? 1 : 0) << uiClaim;
        kReached.m_uiWhen |= std::uint64_t(m_kSubject.Holds(kClaims[uiClaim].m_kWhen) ? 1 : 0) << uiClaim;
    }
    std::string kKey;
    for (const ObjectHandle_t eObject : kState.m_kTouchable)
    {
        kKey += std::to_string(eObject) + ' ';
    }
    const auto kPlace =
        m_kTouchableNumbers.emplace(kKey, static_cast<std::uint32_t>(m_kSpace.m_kTouchables.size()));
    if (kPlace.second)
    {
        m_kSpace.m_kTouchables.push_back(kState.m_kTouchable);
    }
    kReached.m_uiTouchable = kPlace.first->second;
}

std::uint64_t CExplorer::GetPopups(const std::vector<ObjectHandle_t>& kPopups) const
{
    std::uint64_t uiBits = 0;
    for (std::size_t uiPopup = 0; uiPopup < m_kSpace.m_kPopups.size(); ++uiPopup)
    {
        uiBits |= std::uint64_t(Contains(kPopups, m_kSpace.m_kPopups[uiPopup]) ? 1 : 0) << uiPopup;
    }
    return uiBits;
}

// --- Histories -------------------------------------------------------------------------------------------

std::uint32_t CExplorer::GetHistory(const CheckedState_t& kState)
{
    std::uint32_t uiHistory = CStacks::cuiEmpty;
    for (const std::string& kEntry : kState.m_kHistory)
    {
        uiHistory = m_kSpace.m_kHistories.Push(uiHistory, m_kSpace.m_kEntries.Get(kEntry));
    }
    return uiHistory;
}

/** Looks for an earlier state on the path that this one repeats, with a longer history on top of that
 * state's, which stayed untouched on the way: then the way can be repeated for ever.
 */
void CExplorer::FindPump(std::uint32_t uiState)
{
    const CStacks& kHistories = m_kSpace.m_kHistories;
    const ReachedState_t& kState = m_kSpace.m_kStates[uiState];
    eC_UInt uiLowest = kHistories.GetHeight(kState.m_uiHistory);
    for (std::uint32_t uiOn = kState.m_uiParent; uiOn != cuiNoState;
         uiOn = m_kSpace.m_kStates[uiOn].m_uiParent)
    {
        const ReachedState_t& kEarlier = m_kSpace.m_kStates[uiOn];
        const eC_UInt uiHeight = kHistories.GetHeight(kEarlier.m_uiHistory);
        uiLowest = std::min(uiLowest, uiHeight);
        if (kEarlier.m_uiControl == kState.m_uiControl && uiHeight <= uiLowest &&
            uiHeight < kHistories.GetHeight(kState.m_uiHistory) &&
            kHistories.CutTo(kState.m_uiHistory, uiHeight) == kEarlier.m_uiHistory && IsPump(uiOn, uiState))
        {
            m_kSpace.m_kPumps.push_back({uiOn, uiState});
            m_kSpace.m_kStates[uiState].m_bIsPumped = true;
            return;
        }
    }
}

/** Repeats the way three times more. Timers may make the repetition impossible; then what was seen once
 * counts. */
eC_Bool CExplorer::IsPump(std::uint32_t uiFrom, std::uint32_t uiTo)
{
    std::vector<std::uint16_t> kWay;
    for (std::uint32_t uiOn = uiTo; uiOn != uiFrom; uiOn = m_kSpace.m_kStates[uiOn].m_uiParent)
    {
        if (m_kSpace.m_kStates[uiOn].m_uiChanges != 0)
        {
            return true;
        }
        kWay.insert(kWay.begin(), m_kSpace.m_kStates[uiOn].m_uiInput);
    }
    if (!GoTo(uiTo, {}))
    {
        return true;
    }
    eC_Bool bGrows = true;
    for (eC_UInt uiRound = 0; uiRound < 3 && bGrows; ++uiRound)
    {
        const eC_UInt uiBefore = m_kSubject.GetApplication().GetManager().GetHistoryStackSize();
        for (const std::uint16_t uiInput : kWay)
        {
            Apply(uiInput, cuiLeastPause);
        }
        bGrows = m_kSubject.GetApplication().GetManager().GetHistoryStackSize() > uiBefore;
    }
    m_uiAt = cuiNoState;
    return bGrows;
}

/** Goes back to the first dialog, or to a state from which that has been done. @return the first step back */
std::uint32_t CExplorer::GoBack(CheckedState_t kState)
{
    std::uint32_t uiFirst = 0;
    std::uint32_t* puiStep = &uiFirst;
    while (!kState.m_kHistory.empty())
    {
        const std::uint64_t uiPlace =
            (std::uint64_t(m_kSpace.m_kControls.Get(kState.m_kControl)) << 32U) | GetHistory(kState);
        const auto kKnown =
            m_kBackNumbers.emplace(uiPlace, static_cast<std::uint32_t>(m_kSpace.m_kBacks.size()));
        *puiStep = kKnown.first->second;
        if (!kKnown.second)
        {
            break;
        }
        m_kSpace.m_kBacks.push_back(TakeStepBack(kState));
        NotePlace(kState);
        if (!DescribeFault(m_kSpace, m_kSpace.m_kBacks.back(), cuiNoState).empty())
        {
            break;
        }
        puiStep = &m_kSpace.m_kBacks.back().m_uiNext;
    }
    return uiFirst;
}

/** Notes where the application is, in a state that is no step's. */
void CExplorer::NotePlace(const CheckedState_t& kState)
{
    const std::uint64_t uiControl = m_kSpace.m_kControls.Get(kState.m_kControl);
    const auto kFound = m_kFirstOfSame.find(uiControl << 32U | GetHistory(kState));
    m_uiAt = kFound != m_kFirstOfSame.end() && !m_kSubject.IsHanging() ? kFound->second : cuiNoState;
    m_kNow = kState.m_kTimers;
}

/** @param kState before; receives the state afterwards */
Back_t CExplorer::TakeStepBack(CheckedState_t& kState)
{
    m_uiAt = cuiNoState;
    Back_t kBack{};
    kBack.m_eLeft = kState.m_eCurrent;
    kBack.m_eDialog = kState.m_kHistoryDialogs.back();
    kBack.m_eFocus = kState.m_kHistoryFocus.back();
    {
        const CHeapDifference kDifference(m_pfnHeap, m_uiBytes);
        const CWatchdog::COperation kOperation("Back true");
        m_kSubject.GetApplication().GetManager().Back(true);
    }
    kState = ReadCheckedState(m_kSubject);
    kBack.m_eCurrent = kState.m_eCurrent;
    kBack.m_eFocussed = kState.m_eFocus;
    kBack.m_uiControl = m_kSpace.m_kControls.Get(kState.m_kControl);
    kBack.m_uiVisible = m_kSpace.m_kTexts.Get(NameVisible(kState));
    kBack.m_bIsVisible = Contains(kState.m_kVisible, kState.m_eCurrent);
    kBack.m_bHasPopups = !kState.m_kListedPopups.empty();
    return kBack;
}

std::string CExplorer::NameVisible(const CheckedState_t& kState) const
{
    std::string kNames;
    for (const ObjectHandle_t eObject : kState.m_kVisible)
    {
        kNames += (kNames.empty() ? "" : ", ") + NameOfHandle(eObject);
    }
    return kNames.empty() ? "nothing" : kNames;
}
