// SPDX-License-Identifier: MIT
#ifndef INSPECTION_VIEWER_PLAINATTACHMENT_H
#define INSPECTION_VIEWER_PLAINATTACHMENT_H

/** @file
 *  A look into a running program, as lines of text.
 */

#include "Inspection/Viewer/Connection.h"

#include <string>

/** Prints on standard output everything that changes in a running program (see CChangePrinter), and sends it
 *  each line of standard input, if it takes commands. Empty lines and comments are not sent.
 *
 *  It ends when the program is gone, or at the end of standard input when each line has its reply and nothing
 *  has come for 300 ms.
 *  @param kConnection open
 *  @param kProgram the name that begins each complaint on standard error
 *  @return false if there was something to complain about: a wrong or incomplete line, a program that cannot
 *          be reached any more, or an output that takes no more
 */
eC_Bool AttachInPlainText(CConnection& kConnection, const std::string& kProgram);

#endif
