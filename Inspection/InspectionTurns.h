// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONTURNS_H
#define INSPECTION_INSPECTIONTURNS_H

/** @file
 *  A main loop whose runs can be replayed.
 */

#include "Inspection/InspectionChannel.h"

class CInspectionLink;

/** A channel whose input lines are recorded, each before it is executed. Use it only if the program takes
 *  commands: a line that it refuses must not take effect in the replay.
 *
 *      CRecordedInput kInput(kChannel, s_acRecord, sizeof(s_acRecord));
 *      CInspectionLink kLink(kManager, kInput, s_acLine, sizeof(s_acLine));
 *      kInput.Record(kLink);
 */
class CRecordedInput : public CInspectionChannel
{
public:
    /** @param kChannel transports the lines; not owned
     *  @param pcMemory, uiSize memory for a line, not owned; as large as that of CInspectionLink::AllowInput
     */
    CRecordedInput(CInspectionChannel& kChannel, eC_Char* pcMemory, eC_UInt uiSize)
        : m_kChannel(kChannel), m_pcMemory(pcMemory), m_uiSize(uiSize)
    {
    }

    /** Records from now on. @param kLink sends the record; not owned */
    void Record(CInspectionLink& kLink) { m_pkLink = &kLink; }

    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override
    {
        return m_kChannel.WriteLine(pcLine, uiLength);
    }

    eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) override;
    void Flush() override { m_kChannel.Flush(); }
    eC_UInt GetReaders() const override { return m_kChannel.GetReaders(); }

private:
    void RecordLine();

    CInspectionChannel& m_kChannel;
    CInspectionLink* m_pkLink = nullptr;
    eC_Char* m_pcMemory;
    eC_UInt m_uiSize;
    eC_UInt m_uiLength = 0; ///< of the line so far; m_uiSize if it is too long
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
     *  CRecordedInput and CInspectionLink::RecordInput. The log can be replayed if this is called before the
     * application has done anything, and if no line is dropped.
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
