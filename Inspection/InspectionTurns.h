// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONTURNS_H
#define INSPECTION_INSPECTIONTURNS_H

/** @file
 *  A main loop whose runs can be replayed.
 */

#include "Inspection/InspectionCommands.h"

class CInspectionLink;

/** Records the lines that another handler executes. */
class CRecordedInput : public CInspectionHandler
{
public:
    /** @param kLink sends the record; @param kHandler executes the lines. Not owned. */
    CRecordedInput(CInspectionLink& kLink, CInspectionHandler& kHandler) : m_kLink(kLink), m_kHandler(kHandler)
    {
    }

    void Execute(eC_Char* pcLine, CInspectionReply& kReply) override { m_kHandler.Execute(pcLine, kReply); }
    void OnLine(const eC_Char* pcLine) override;

private:
    CInspectionLink& m_kLink;
    CInspectionHandler& m_kHandler;
};

/** The clock of the timer, which stands still during each turn of the main loop. What a program does then
 *  depends only on its input and on the times of its turns, and a log of both can be replayed elsewhere.
 *
 *      CInspectionTurns kTurns(GetMilliseconds());
 *      ... // the root, the manager and kLink
 *      kTurns.Record(kLink);
 *      kLink.RecordInput("power-on");
 *      ... // the first dialog
 *      for (;;)
 *      {
 *          kLink.Run();
 *          do
 *          {
 *              Sleep();
 *          } while (!kTurns.Begin(GetMilliseconds()));
 *          ... // input of this turn
 *      }
 *
 *  There is one at a time. The timer has its default clock again when it is destroyed.
 */
class CInspectionTurns
{
public:
    /** Becomes the clock of the timer. @param uiTime now, in milliseconds */
    explicit CInspectionTurns(eC_UInt uiTime);

    CInspectionTurns(const CInspectionTurns&) = delete;
    CInspectionTurns& operator=(const CInspectionTurns&) = delete;
    ~CInspectionTurns();

    /** Records from now on: the start, and turns in which something is due. Input is recorded by
     *  CRecordedInput and CInspectionLink::RecordInput. The log can be replayed if this is called before the application has done
     *  anything, and if no line is dropped.
     *  @param kLink sends the lines; not owned, outlives this
     */
    void Record(CInspectionLink& kLink);

    /** Begins a turn: sets the clock and runs the callbacks that are due.
     *  @param uiTime now, in milliseconds
     *  @return false, with nothing done, if the clock shows this time already. A turn has a millisecond of
     *          its own, so that its lines can be told from those of another one.
     */
    eC_Bool Begin(eC_UInt uiTime);

private:
    CInspectionLink* m_pkLink = nullptr;
};

#endif
