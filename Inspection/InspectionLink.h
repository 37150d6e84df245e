// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONLINK_H
#define INSPECTION_INSPECTIONLINK_H

/** @file
 *  Connects a dialog manager with a reader that inspects it.
 */

#include "Core/GUITrace.h"
#include "Inspection/GUIInspector.h"
#include "Inspection/HazardWatch.h"
#include "Inspection/InspectionChannel.h"
#include "Inspection/InspectionCommands.h"
#include "Inspection/StateLine.h"

/** Sends the trace and the state of a manager over a channel, and takes commands if the application allows
 *  it. Docs/Inspection.md describes the lines.
 *
 *      static eC_Char s_acLine[256];
 *      CInspectionLink kLink(kManager, kChannel, s_acLine, sizeof(s_acLine));
 *      ...
 *      kLink.Run(); // once in every turn of the main loop
 *
 *  It allocates nothing and never waits. A trace entry or a reply is dropped if the channel has no room for
 *  it or if it is longer than the memory; the next line that goes out says how many were dropped. Parts of
 *  the state are not dropped; they are sent later, with their contents at that time. Only a single item
 *  longer than the memory is dropped.
 *
 *  While it exists, it replaces the trace's sink and passes every entry on to the previous one.
 */
class CInspectionLink : public CGUITraceSink, public CHazardListener
{
public:
    /** The least memory that can hold a state line with an item in it. */
    static constexpr eC_UInt cuiLeastMemory = 192;

    /** @param kManager any manager; not owned, outlives the link, as does the channel
     *  @param pcMemory memory for one outgoing line, not owned
     *  @param uiSize its size in bytes, at least cuiLeastMemory; about 256 hold every message of the library
     */
    CInspectionLink(const CGUIDialogManager& kManager, CInspectionChannel& kChannel, eC_Char* pcMemory,
                    eC_UInt uiSize);

    CInspectionLink(const CInspectionLink&) = delete;
    CInspectionLink& operator=(const CInspectionLink&) = delete;

    /** Restores the trace's previous sink. */
    ~CInspectionLink() override;

    /** @return the inspector, to set the heap figures or to read the state */
    CGUIInspector& GetInspector() { return m_kInspector; }

    /** Allows input lines to be executed. Until then every line is refused.
     *  @param kHandler executes them; not owned
     *  @param pcMemory memory for one input line, not owned
     *  @param uiSize its size in bytes; a line must be shorter than that
     */
    void AllowInput(CInspectionHandler& kHandler, eC_Char* pcMemory, eC_UInt uiSize);

    /** Refuses lines again, as at first. */
    void RefuseInput() { m_pkHandler = nullptr; }

    /** Sends a line of the type start, with which a log that can be replayed begins. */
    void RecordStart();

    /** Sends a line of the type input. Call it before input takes effect that does not arrive as a line, say
     *  the press of a key.
     *  @param pcLine the line of a scenario that has the same effect: "key ok"
     */
    void RecordInput(const eC_Char* pcLine);

    /** Sends a line of the type turn, before a turn of the main loop runs callbacks that are due. */
    void RecordTurn();

    /** Reads input, executes its lines, replies once to each, and sends the parts of the state that differ
     *  from what was sent before. Call it between operations of the manager.
     */
    void Run();

    /** Makes the whole state be sent again. */
    void SendAll();

    /** @return how many lines were dropped that no line has reported yet */
    eC_UInt GetDropped() const { return m_uiDropped; }

    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override;

    /** Sends a line of the trace with the level HAZARD. */
    void OnHazard(const HazardReport_t& kReport) override;

private:
    void BeginLine(const eC_Char* pcType);
    eC_Bool SendLine();
    void DropUnlessSent(eC_Bool bIsSent) { m_uiDropped += bIsSent ? 0U : 1U; }

    void TakeInput();
    void TakeByte(eC_Char cByte);
    void RefuseRest(const eC_Char* pcExpected);
    void ExecuteLine();
    void ExecuteText(eC_Char* pcText, CInspectionReply& kReply);
    void Reply(const CInspectionReply& kReply);
    void WriteReply(const CInspectionReply& kReply, const eC_Char* pcText, eC_Bool bIsCut);

    void SendStates();
    eC_Bool SendPart(eC_UInt uiPart);

    CGUIInspector m_kInspector;
    CInspectionChannel& m_kChannel;
    CInspectionLine m_kLine;
    CGUITraceSink* m_pkNextSink;
    eC_UInt m_uiDropped = 0;
    eC_UInt m_uiReaders;

    CInspectionHandler* m_pkHandler = nullptr;
    eC_Char* m_pcInput = nullptr;
    eC_UInt m_uiInputSize = 0;
    eC_UInt m_uiInput = 0;        ///< bytes of the current input line
    eC_UInt m_uiInputLines = 0;   ///< input lines so far
    eC_Bool m_bIsRefused = false; ///< the current input line has been answered already
    eC_Bool m_bIsExecuting = false;

    std::uint64_t m_auiSent[cuiInspectionParts] = {}; ///< fingerprints of what was sent
    eC_UInt m_uiSent = 0;                             ///< a bit for each part that was sent completely
    eC_UInt m_uiPartly = cuiInspectionParts;          ///< the part that was sent only in part so far
    eC_UInt m_uiNextItem = 0;                         ///< the next item of that part
    std::uint64_t m_uiPartlySent = 0;                 ///< its fingerprint
};

#endif
