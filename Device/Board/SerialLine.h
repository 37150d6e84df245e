// SPDX-License-Identifier: MIT
#ifndef DEVICE_BOARD_SERIALLINE_H
#define DEVICE_BOARD_SERIALLINE_H

/** @file
 *  The board's serial line.
 */

/** The first serial line. A program that uses it links BoardSerialLine. */
class CSerialLine
{
public:
    /** Called by an interrupt for each byte that arrives. */
    using Receive_t = void (*)(char cByte);

    /** Switches the line on. @param pfnReceive not null */
    static void Start(Receive_t pfnReceive);

    /** Sends a byte. @return false if the one before is still on its way */
    static bool Send(char cByte);
};

#endif
