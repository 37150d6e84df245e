// SPDX-License-Identifier: MIT
#ifndef INSPECTION_STATELINE_H
#define INSPECTION_STATELINE_H

/** @file
 *  The state as lines of JSON, part by part.
 */

#include "Inspection/GUIInspector.h"
#include "Inspection/InspectionLine.h"

/** The parts in the order in which they are sent; a part's number is its index here. */
struct InspectionPart_t
{
    const eC_Char* m_pcName; ///< as the lines show it
    eC_UInt m_uiParts;       ///< an EStatePart; 0 for what the application supplies
};

constexpr eC_UInt cuiInspectionParts = 12;                            ///< how many parts there are
extern const InspectionPart_t cakInspectionParts[cuiInspectionParts]; ///< all parts

/** @return the fingerprint of a part, by its number */
std::uint64_t GetPartFingerprint(const CGUIInspector& kInspector, eC_UInt uiPart);

/** What one line contains of a part. */
struct StateLineResult_t
{
    eC_UInt m_uiItems; ///< how many items are in the line
    eC_Bool m_bMore;   ///< there are more
};

/** Writes the members "part", "from", "items" and "more", with as many items as fit.
 *  @param kLine a line that was begun
 *  @param uiPart the part's number
 *  @param uiFrom how many items to skip at the beginning
 */
StateLineResult_t WriteStatePart(const CGUIInspector& kInspector, CInspectionLine& kLine, eC_UInt uiPart,
                                 eC_UInt uiFrom);

#endif
