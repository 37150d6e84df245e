// SPDX-License-Identifier: MIT
#ifndef INSPECTION_VIEWER_CONNECTION_H
#define INSPECTION_VIEWER_CONNECTION_H

/** @file
 *  The way to a running program.
 */

#include "Core/Utils/eC_Types.h"

#include <string>

/** A program's inspection, at the other end of a socket, a serial line or a pipe. */
class CConnection
{
public:
    CConnection() = default;
    CConnection(const CConnection&) = delete;
    CConnection& operator=(const CConnection&) = delete;
    ~CConnection();

    /** Connects.
     *  @param kTarget host:port, where the host is an IPv4 address, localhost or nothing for this machine;
     * the path of a serial device; or - for standard input
     *  @param uiBaud of a serial device
     *  @return what is wrong, or the empty string
     */
    std::string Open(const std::string& kTarget, eC_UInt uiBaud);

    /** Makes standard input the terminal again, from which keys come, while lines go on to arrive from where
     *  it was redirected.
     *  @return false, with nothing changed, if lines do not arrive on a redirected standard input or there is
     *          no terminal
     */
    eC_Bool LeaveStandardInput();

    /** @return what can be polled for reading, -1 if it is not open */
    int GetFile() const { return m_iFile; }

    /** @return true if commands can be sent */
    eC_Bool TakesInput() const { return m_bTakesInput; }

    /** @return true if the program does not notice that somebody has begun to listen, and must be asked for
     * its state
     */
    eC_Bool MustAsk() const { return m_bMustAsk; }

    /** Reads what has arrived, and waits if there is nothing.
     *  @return false at the end: the program has gone, and kErrorOUT is empty or says why
     */
    eC_Bool Read(std::string& kBytesOUT, std::string& kErrorOUT);

    /** Sends bytes, and waits for room. @return what is wrong, or the empty string */
    std::string Write(const std::string& kBytes);

private:
    int m_iFile = -1;
    eC_Bool m_bIsOwned = false;
    eC_Bool m_bTakesInput = false;
    eC_Bool m_bMustAsk = false;
};

#endif
