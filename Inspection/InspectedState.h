// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTEDSTATE_H
#define INSPECTION_INSPECTEDSTATE_H

/** @file
 *  The state of a program as values: read here, or told by an inspection elsewhere.
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
    PART_CURRENT,    ///< "current"
    PART_HISTORY,    ///< "history"
    PART_DIALOGS,    ///< "dialogs"
    PART_POPUPS,     ///< "popups"
    PART_ACTIVE,     ///< "active"
    PART_REMEMBERED, ///< "remembered"
    PART_DYNAMIC,    ///< "dynamic"
    PART_FOCUS,      ///< "focus"
    PART_TREE,       ///< "tree"
    PART_TIMERS,     ///< "timers"
    PART_HOOKS,      ///< "hooks"
    PART_HEAP        ///< "heap"
};

/** An identifier with the name that the program has for it. */
struct InspectedHandle_t
{
    ObjectHandle_t m_eID = NO_HANDLE; ///< its number
    std::string m_kName;              ///< empty if no constant has this number

    /** @return the name, or the number if there is none */
    std::string GetText() const { return m_kName.empty() ? std::to_string(m_eID) : m_kName; }
};

/** An item of any part. Docs/Inspection.md says which members the items of a part have; the others keep these
 *  values.
 */
struct InspectedItem_t
{
    InspectedHandle_t m_kHandle;               ///< what it is about
    std::string m_kAfter;                      ///< a name, or the number of an action without one
    std::string m_kLeft;                       ///< likewise
    std::optional<InspectedHandle_t> m_kFocus; ///< the object that gets the focus again; none
    std::optional<InspectedHandle_t> m_kPopup; ///< the popup whose display time it is; none
    std::string m_kPath;                       ///< of a definition
    std::string m_kHook;                       ///< its name
    std::optional<eC_UInt> m_uiDue;            ///< milliseconds of the program's clock
    eC_UInt m_uiPriority = 0;                  ///< of a popup
    eC_UInt m_uiTime = 0;                      ///< milliseconds; of a hook in the application's unit
    eC_UInt m_uiInterval = 0;                  ///< milliseconds
    eC_UInt m_uiDepth = 0;                     ///< in the tree, 0 below the root
    eC_UInt m_uiCalls = 0;                     ///< of a hook
    eC_UInt m_uiUsed = 0;                      ///< bytes
    eC_UInt m_uiMost = 0;                      ///< bytes; of a hook in the application's unit
    eC_UInt m_uiSize = 0;                      ///< bytes
    eC_Bool m_bDeletion = false;               ///< the object may be deleted
    eC_Bool m_bRecovery = false;               ///< the focus is restored
    eC_Bool m_bDeleteOnClose = false;          ///< closing the popup deletes its object
    eC_Bool m_bIsShown = false;                ///< the popup is visible
    eC_Bool m_bIsDetached = false;             ///< the popup is not under the root
    eC_Bool m_bIsGone = false;                 ///< the object of the popup was destroyed
    eC_Bool m_bIsInvisible = false;            ///< the object is
    eC_Bool m_bIsFocusable = false;            ///< the object is
    eC_Bool m_bHasFocus = false;               ///< the object has it
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

/** Reads the state of this program, as its inspection would tell it.
 *  @return all parts; the times that are left are counted from 0
 */
CInspectedState ReadInspectedState(const CGUIInspector& kInspector);

#endif
