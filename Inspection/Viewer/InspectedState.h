// SPDX-License-Identifier: MIT
#ifndef INSPECTION_VIEWER_INSPECTEDSTATE_H
#define INSPECTION_VIEWER_INSPECTEDSTATE_H

/** @file
 *  What an inspection has told about a program: its state, without the program.
 */

#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"
#include "Inspection/StateLine.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/** The numbers of the parts, which index cakInspectionParts. */
enum EInspectedPart : unsigned char
{
    PART_CURRENT,
    PART_HISTORY,
    PART_DIALOGS,
    PART_POPUPS,
    PART_ACTIVE,
    PART_REMEMBERED,
    PART_DYNAMIC,
    PART_FOCUS,
    PART_TREE,
    PART_TIMERS,
    PART_HOOKS,
    PART_HEAP
};

/** An identifier with the name that the program has for it. */
struct InspectedHandle_t
{
    ObjectHandle_t m_eID = NO_HANDLE;
    std::string m_kName; ///< empty if no constant has this number

    /** @return the name, or the number if there is none */
    std::string GetText() const { return m_kName.empty() ? std::to_string(m_eID) : m_kName; }
};

/** An item of any part. Docs/Inspection.md says which members the items of a part have; the others keep these
 *  values.
 */
struct InspectedItem_t
{
    InspectedHandle_t m_kHandle;
    std::string m_kAfter; ///< a name, or the number of an action without one
    std::string m_kLeft;  ///< likewise
    std::optional<InspectedHandle_t> m_kFocus;
    std::optional<InspectedHandle_t> m_kPopup;
    std::string m_kPath;
    std::string m_kHook;
    std::optional<eC_UInt> m_uiDue; ///< milliseconds of the program's clock
    eC_UInt m_uiPriority = 0;
    eC_UInt m_uiTime = 0;     ///< milliseconds; of a hook in the application's unit
    eC_UInt m_uiInterval = 0; ///< milliseconds
    eC_UInt m_uiDepth = 0;
    eC_UInt m_uiCalls = 0;
    eC_UInt m_uiUsed = 0; ///< bytes
    eC_UInt m_uiMost = 0; ///< bytes; of a hook in the application's unit
    eC_UInt m_uiSize = 0; ///< bytes
    eC_Bool m_bDeletion = false;
    eC_Bool m_bRecovery = false;
    eC_Bool m_bDeleteOnClose = false;
    eC_Bool m_bIsShown = false;
    eC_Bool m_bIsDetached = false;
    eC_Bool m_bIsGone = false;
    eC_Bool m_bIsInvisible = false;
    eC_Bool m_bIsFocusable = false;
    eC_Bool m_bHasFocus = false;
};

/** The parts that are known so far. */
class CInspectedState
{
public:
    /** Replaces a part. */
    void SetItems(EInspectedPart ePart, std::vector<InspectedItem_t> kItems);

    /** @return true if the part was told at least once */
    eC_Bool IsKnown(EInspectedPart ePart) const { return m_akParts[ePart].has_value(); }

    /** @return the items, none if the part is not known; they are those of Docs/Inspection.md, in its order
     */
    const std::vector<InspectedItem_t>& GetItems(EInspectedPart ePart) const;

    /** Prints a part as PrintState does, line by line. What PrintState does not know is printed as
     *
     *      hook: OnDialogActivation DLG_A, 3 calls, 120 in all, at most 50
     *      heap: 100 of 4096 bytes used, at most 200
     *
     *  @param uiTime now, by the program's clock in milliseconds: what is left is counted from it
     */
    std::string Print(EInspectedPart ePart, eC_UInt uiTime) const;

    /** Prints a part without the times that are left, which change without anything happening. */
    std::string PrintWithoutTimes(EInspectedPart ePart) const;

    /** @return all known parts, in the order of the numbers */
    std::string Print(eC_UInt uiTime) const;

private:
    std::array<std::optional<std::vector<InspectedItem_t>>, cuiInspectionParts> m_akParts;
};

#endif
