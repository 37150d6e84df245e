// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_ATTACH_ATTACHEDDESK_H
#define SIMULATOR_ATTACH_ATTACHEDDESK_H

/** @file
 *  What a person sees of a running program and does to it, without any terminal.
 */

#include "Inspection/Viewer/InspectionReader.h"
#include "Simulator/LineEditor.h"
#include "Simulator/SimulatorDesk.h"
#include "Simulator/TracePane.h"

#include <deque>
#include <string>
#include <vector>

/** Keeps what a program tells, as the simulator does with its own application: the state and the trace. It
 *  draws nothing: DrawAttached does.
 */
class CAttachedDesk : public CInspectedLineListener
{
public:
    /** What has the keys. */
    enum EMode : unsigned char
    {
        MODE_VIEW,
        MODE_HELP,
        MODE_LINE,  ///< a line for the program is typed
        MODE_FILTER ///< the filter of the trace is typed
    };

    static constexpr std::size_t cuiMostItems = 10000; ///< of the trace; the oldest ones are forgotten

    /** @param kReader reads the lines, with this as its listener; not owned
     *  @param kName what the program is called: ":4000"
     *  @param bTakesInput whether lines can be sent to it
     */
    CAttachedDesk(const CInspectionReader& kReader, const std::string& kName, eC_Bool bTakesInput);

    void OnLine(const InspectedLine_t& kLine) override;

    /** Adds a fault to the trace. */
    void Complain(const std::string& kFault);

    /** The program is gone: what is known of it stays. The message says so unless there was a fault. */
    void SetGone();

    /** Presses a key of the computer, with the names that CSimulatorDesk::PressKey takes. */
    void PressKey(const std::string& kKey);

    void ScrollTrace(eC_Int iLines); ///< @param iLines to older entries; negative: to newer ones
    void ScrollState(eC_Int iLines); ///< @param iLines down; negative: up

    /** @return the lines that were typed since the last call, to be sent */
    std::vector<std::string> TakeLines();

    /** @return whether the user wants to leave */
    eC_Bool IsOver() const { return m_bIsOver; }

    // What there is to see.

    EMode GetMode() const { return m_eMode; }
    const std::string& GetName() const { return m_kName; }
    eC_Bool IsGone() const { return m_bIsGone; }
    const CInspectionReader& GetReader() const { return m_kReader; }
    const CTracePane& GetTracePane() const { return m_kTracePane; }
    const std::deque<TraceItem_t>& GetTrace() const { return m_kTrace; } ///< the oldest one first
    eC_Int GetStateScroll() const { return m_iStateScroll; }
    const CLineEditor& GetEditor() const { return m_kEditor; }
    const std::string& GetMessage() const { return m_kMessage; }
    ETextStyle GetMessageStyle() const { return m_eMessageStyle; }

    /** @return the keys, as the help lists them */
    static const std::vector<DeskKey_t>& GetKeys();

private:
    void Add(const TraceItem_t& kItem);
    void Say(const std::string& kText, ETextStyle eStyle = STYLE_PLAIN);
    void PressKeyInView(const std::string& kKey);
    void PressKeyInPrompt(const std::string& kKey);
    void FinishPrompt();
    void AskForLine();

    const CInspectionReader& m_kReader;
    std::string m_kName;
    eC_Bool m_bTakesInput;
    eC_Bool m_bIsGone = false;
    eC_Bool m_bHasFault = false;
    eC_Bool m_bIsOver = false;
    EMode m_eMode = MODE_VIEW;
    CTracePane m_kTracePane;
    std::deque<TraceItem_t> m_kTrace;
    std::deque<std::string> m_kUnanswered; ///< lines that were sent
    std::vector<std::string> m_kLines;     ///< to be sent
    eC_Int m_iStateScroll = 0;
    CLineEditor m_kEditor;
    std::string m_kMessage;
    ETextStyle m_eMessageStyle = STYLE_PLAIN;
};

#endif
