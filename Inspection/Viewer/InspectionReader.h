// SPDX-License-Identifier: MIT
#ifndef INSPECTION_VIEWER_INSPECTIONREADER_H
#define INSPECTION_VIEWER_INSPECTIONREADER_H

/** @file
 *  Reads the lines that an inspection sends. Docs/Inspection.md describes them.
 */

#include "Inspection/InspectedState.h"

#include <string>
#include <vector>

/** The type of a line. */
enum EInspectedLine : unsigned char
{
    LINE_TRACE,
    LINE_STATE,
    LINE_REPLY,
    LINE_START,
    LINE_INPUT,
    LINE_TURN
};

/** A line of any type; the members that a type does not have keep these values. */
struct InspectedLine_t
{
    EInspectedLine m_eType = LINE_TRACE;
    eC_UInt m_uiTime = 0;    ///< milliseconds of the program's clock
    eC_UInt m_uiDropped = 0; ///< lines that the program dropped before this one

    std::string m_kLevel; ///< of a trace: "ERROR", "WARNING", "DEBUG", "INFO" or "HAZARD"
    std::string m_kText;  ///< of a trace, of an input, and the result or error of a reply
    std::string m_kFile;
    std::string m_kHazard;
    InspectedHandle_t m_kAbout;
    eC_UInt m_uiLine = 0;   ///< of the source file, or the number of the input line
    eC_UInt m_uiMemory = 0; ///< of a start: the size of the program's memory for a line, in bytes
    eC_Bool m_bIsError = false;
    eC_Bool m_bIsCut = false;

    EInspectedPart m_ePart = PART_CURRENT;
    eC_UInt m_uiFrom = 0;
    eC_Bool m_bMore = false;
    std::vector<InspectedItem_t> m_kItems;
};

/** Reads one line, as strictly as the schema of the lines.
 *  @param kText the line without its line break, any bytes
 *  @param kLineOUT receives it if it is right
 *  @return empty, or what is wrong: "time: expected a number from 0 to 4294967295, found \"x\""
 */
std::string ReadInspectionLine(const std::string& kText, InspectedLine_t& kLineOUT);

/** Receives lines in order. */
class CInspectedLineListener
{
public:
    virtual ~CInspectedLineListener() = default;

    /** Called for each line, after the state has taken it. */
    virtual void OnLine(const InspectedLine_t& kLine) = 0;
};

/** Reads a stream of bytes line by line, and keeps the state that the lines tell. It holds no more than one
 *  line and the state.
 */
class CInspectionReader
{
public:
    /** The longest line that is read, in bytes. */
    static constexpr std::size_t cuiLongestLine = 1U << 20U;
    /** The most items that a part has. */
    static constexpr std::size_t cuiMostItems = 100000;

    /** @param pkListener receives the lines; not owned; null for none */
    explicit CInspectionReader(CInspectedLineListener* pkListener = nullptr) : m_pkListener(pkListener) {}

    /** Sets the listener. @param pkListener not owned; null for none */
    void SetListener(CInspectedLineListener* pkListener) { m_pkListener = pkListener; }

    /** Takes bytes, up to the first wrong line.
     *  @return empty, or what is wrong with which line: "line 12: expected ..., found ...". Another call goes
     *          on after that line with the bytes that were left, and those given to it.
     */
    std::string Take(const std::string& kBytes);

    /** @return true if the bytes so far end in the middle of a line */
    eC_Bool IsInLine() const { return !m_kBytes.empty() || m_bIsTooLong; }

    const CInspectedState& GetState() const { return m_kState; }
    eC_UInt GetTime() const { return m_uiTime; }       ///< of the last line, in milliseconds
    eC_UInt GetLines() const { return m_uiLines; }     ///< lines read so far
    eC_UInt GetDropped() const { return m_uiDropped; } ///< lines that the program says it dropped

private:
    std::string TakeLine(const std::string& kText);
    std::string TakeState(const InspectedLine_t& kLine);

    CInspectedLineListener* m_pkListener;
    CInspectedState m_kState;
    std::string m_kBytes; ///< not read yet
    eC_Bool m_bIsTooLong = false;
    eC_UInt m_uiTime = 0;
    eC_UInt m_uiLines = 0;
    eC_UInt m_uiDropped = 0;
    std::array<std::optional<std::vector<InspectedItem_t>>, cuiInspectionParts> m_akBegun;
    std::array<std::size_t, cuiInspectionParts> m_auiNext = {};
};

#endif
