// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_CHECKSUBJECT_H
#define FLOW_CHECK_CHECKSUBJECT_H

/** @file
 *  An application as the checker sees it.
 */

#include "Flow/FlowModel.h"
#include "Simulator/SimulatedApplication.h"

#include <string>
#include <vector>

/** Something that happens by itself after some time. */
struct RunningTimer_t
{
    std::string m_kName;
    eC_UInt m_uiInterval; ///< milliseconds
    eC_UInt m_uiTimeLeft; ///< milliseconds
};

/** How operations take back several entries of the history at once. */
enum EHistoryCut : unsigned char
{
    HISTORY_CUT_UNKNOWN,   ///< in several ways, or one after the other
    HISTORY_CUT_NONE,      ///< never
    HISTORY_CUT_AT_DIALOG, ///< always up to the topmost entry of a dialog
    HISTORY_CUT_AT_HEIGHT  ///< always until a number of the oldest ones is left
};

/** A sentence about the application itself, before it runs. */
struct BrokenName_t
{
    std::string m_kText;
    eC_UInt m_uiLine; ///< of the flow file; 0: none
};

/** An application that can be checked. Every application of the simulator can; an application that says more
 *  about itself is checked more closely.
 *
 *  What the checker does not see must not decide what the application does next: two states that show the
 * same objects, history, popups, timers and AppendState must go on in the same way.
 */
class CCheckSubject
{
public:
    /** @param kApplication stopped; not owned, outlives the subject */
    explicit CCheckSubject(CSimulatedApplication& kApplication) : m_kApplication(kApplication) {}
    CCheckSubject(const CCheckSubject&) = delete;
    CCheckSubject& operator=(const CCheckSubject&) = delete;
    virtual ~CCheckSubject() = default;

    CSimulatedApplication& GetApplication() const { return m_kApplication; }

    /** @return the file that reports name; empty: none */
    virtual std::string GetFile() const { return {}; }

    /** @return whether this key of the device is a signal, which no user can give */
    virtual eC_Bool IsSignal(eC_UInt /*uiKey*/) const { return false; }

    /** @return whether this key activates what has the focus */
    virtual eC_Bool IsActivation(eC_UInt /*uiKey*/) const { return false; }

    /** @return whether the screen can be touched */
    virtual eC_Bool HasTouch() const { return false; }

    /** @return commands of the application that happen to it like signals: "water 0" */
    virtual std::vector<std::string> GetLines() const { return {}; }

    /** Appends what the application remembers by itself. */
    virtual void AppendState(std::string& /*kState*/) const {}

    /** @return the timers that run, without the display times of popups. Here those that the framework's
     * timer knows, named after their intervals
     */
    virtual std::vector<RunningTimer_t> GetTimers() const;

    /** @return whether an operation of the manager would not have ended */
    virtual eC_Bool IsHanging() const { return false; }

    /** @return how the application takes back several entries at once */
    virtual EHistoryCut GetHistoryCut() const { return HISTORY_CUT_UNKNOWN; }

    /** @return the most entries that a clearing of the history keeps */
    virtual eC_UInt GetMostKept() const { return 0; }

    virtual eC_Bool Holds(const FlowCondition_t& /*kCondition*/) const { return false; }
    virtual const std::vector<FlowClaim_t>& GetClaims() const;
    virtual const std::vector<FlowExpectation_t>& GetExpectations() const;
    virtual ObjectHandle_t GetHome() const { return NO_HANDLE; } ///< NO_HANDLE: the first dialog

    /** @return definitions that cannot be loaded */
    virtual std::vector<BrokenName_t> GetBrokenNames() const { return {}; }

    /** @return the line of the file where a dialog or popup is defined; 0: none */
    virtual eC_UInt GetLine(ObjectHandle_t /*eID*/) const { return 0; }

private:
    CSimulatedApplication& m_kApplication;
};

#endif
