// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONLINK_H
#define INSPECTION_INSPECTIONLINK_H

/** @file
 *  Connects a dialog manager with whoever looks into it.
 */

#include "Core/GUITrace.h"
#include "Inspection/GUIInspector.h"
#include "Inspection/HazardWatch.h"
#include "Inspection/InspectionChannel.h"
#include "Inspection/InspectionCommands.h"
#include "Inspection/StateLine.h"

/** Sends the trace and the state of a manager over a channel, and takes commands if the application allows
 * it. Docs/Inspection.md has the lines.
 *
 *      static eC_Char s_acLine[256];
 *      CInspectionLink kLink(kManager, kChannel, s_acLine, sizeof(s_acLine));
 *      ...
 *      kLink.Run(); // once in every turn of the main loop
 *
 *  It allocates nothing and waits for nothing. A line of the trace or a reply for which the channel has no
 * room, or which is longer than the memory, is dropped; the next line that goes out says how many were. Parts
 * of the state are not dropped but sent later, as they are then; only an item that alone is longer than the
 * memory is.
 *
 *  While it lives it stands in front of the trace's sink and passes every entry on.
 */
class CInspectionLink : public CGUITraceSink, public CHazardListener
{
public:
    /** The least memory that has room for a line of the state with an item in it. */
    static constexpr eC_UInt cuiLeastMemory = 192;

    /** @param kManager any manager; not owned, outlives the link, as does the channel
     *  @param pcMemory memory for a line that goes out, not owned
     *  @param uiSize its size in bytes, at least cuiLeastMemory; some 256 hold every message of the library
     */
    CInspectionLink(const CGUIDialogManager& kManager, CInspectionChannel& kChannel, eC_Char* pcMemory,
                    eC_UInt uiSize);

    CInspectionLink(const CInspectionLink&) = delete;
    CInspectionLink& operator=(const CInspectionLink&) = delete;

    /** Gives the trace the sink back that it had. */
    ~CInspectionLink() override;

    /** @return the inspector, to give it the figures of the heap, or to read */
    CGUIInspector& GetInspector() { return m_kInspector; }

    /** Lets lines that come in be executed. Until then each one is refused.
     *  @param kHandler executes them; not owned
     *  @param pcMemory memory for a line that comes in, not owned
     *  @param uiSize its size in bytes; a line is shorter than that
     */
    void AllowInput(CInspectionHandler& kHandler, eC_Char* pcMemory, eC_UInt uiSize);

    /** Refuses lines again, as at the beginning. */
    void RefuseInput() { m_pkHandler = nullptr; }

    /** Takes what has come in, executes the lines, one reply for each, and sends the parts of the state that
     *  differ from what was sent. To be called between operations of the manager.
     */
    void Run();

    /** Lets the whole state be sent again. */
    void SendAll();

    /** @return how many lines were dropped that no line has told of yet */
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
    eC_UInt m_uiInput = 0;        ///< bytes of the line that is coming in
    eC_UInt m_uiInputLines = 0;   ///< lines that have come in
    eC_Bool m_bIsRefused = false; ///< the line that is coming in has its reply
    eC_Bool m_bIsExecuting = false;

    std::uint64_t m_auiSent[cuiInspectionParts] = {}; ///< fingerprints of what was sent
    eC_UInt m_uiSent = 0;                             ///< a bit for each part that was sent whole
    eC_UInt m_uiPartly = cuiInspectionParts;          ///< the part that was sent in part
    eC_UInt m_uiNextItem = 0;                         ///< of that part
    std::uint64_t m_uiPartlySent = 0;                 ///< its fingerprint
};

#endif
