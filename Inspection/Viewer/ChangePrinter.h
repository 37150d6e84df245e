// SPDX-License-Identifier: MIT
#ifndef INSPECTION_VIEWER_CHANGEPRINTER_H
#define INSPECTION_VIEWER_CHANGEPRINTER_H

/** @file
 *  What an inspection sends, as lines for people: each change once.
 */

#include "Inspection/Viewer/InspectionReader.h"

#include <array>
#include <string>

/** Collects a line for everything that happens, with the program's time before it:
 *
 *      1200 ms > touch BTN_COFFEE
 *      1200 ms INFO: hook OnDialogAdded(DLG_DRINK_DETAIL).
 *      1200 ms = no effect
 *      1200 ms ! expected a command, found 'Toch'
 *      1200 ms - current: DLG_DRINKS after ODA_INVISIBLE
 *      1200 ms + current: DLG_DRINK_DETAIL after ODA_NOTHING
 *
 *  That is input, trace, the result of a command, its refusal, and a line of the state that is no longer true
 * or has become true; CInspectedState prints it. The times that are left are not shown, because they change
 * all the time. A comment (#) tells what the program does besides, such as dropping lines.
 */
class CChangePrinter : public CInspectedLineListener
{
public:
    /** @param kState the state of the reader that calls this; not owned */
    explicit CChangePrinter(const CInspectedState& kState) : m_kState(kState) {}

    void OnLine(const InspectedLine_t& kLine) override;

    /** @return the lines since the last call */
    std::string TakeText();

    /** @return how many replies there were */
    eC_UInt GetReplies() const { return m_uiReplies; }

private:
    void Print(const InspectedLine_t& kLine, const std::string& kSign, const std::string& kText);
    void PrintTrace(const InspectedLine_t& kLine);
    void PrintPart(const InspectedLine_t& kLine);

    const CInspectedState& m_kState;
    std::array<std::string, cuiInspectionParts> m_akPrinted;
    std::string m_kText;
    eC_UInt m_uiReplies = 0;
};

#endif
