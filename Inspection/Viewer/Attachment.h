// SPDX-License-Identifier: MIT
#ifndef INSPECTION_VIEWER_ATTACHMENT_H
#define INSPECTION_VIEWER_ATTACHMENT_H

/** @file
 *  A running program that somebody looks into.
 */

#include "Inspection/Viewer/Connection.h"
#include "Inspection/Viewer/InspectionReader.h"

#include <string>
#include <vector>

/** Passes lines in both directions, and keeps the state that they tell. */
class CAttachment
{
public:
    /** @param kConnection open; not owned */
    explicit CAttachment(CConnection& kConnection) : m_kConnection(kConnection) {}

    /** @return what reads the lines; set its listener before Begin */
    CInspectionReader& GetReader() { return m_kReader; }

    /** Asks a program for its state that does not notice that somebody has begun to listen. What arrives
     *  before the first line may be the end of another one, and is left out.
     *  @return what is wrong, or the empty string
     */
    std::string Begin();

    /** Reads what has arrived, and waits if there is nothing.
     *  @param kFaultsOUT receives what is wrong with it; the last line is wrong if it is not complete when
     *         the program goes
     *  @return false if the program is gone
     */
    eC_Bool Receive(std::vector<std::string>& kFaultsOUT);

    /** Sends a line, and waits for room. Empty lines and comments get no reply and are not sent.
     *  @param kLine without a line break
     *  @return what is wrong, or the empty string
     */
    std::string Send(const std::string& kLine);

    /** @return how many lines were sent, which get a reply each */
    eC_UInt GetSent() const { return m_uiSent; }

private:
    CConnection& m_kConnection;
    CInspectionReader m_kReader;
    eC_UInt m_uiSent = 0;
    eC_Bool m_bIsFirstLine = false;
};

#endif
