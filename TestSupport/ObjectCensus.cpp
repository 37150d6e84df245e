// SPDX-License-Identifier: MIT
#include "TestSupport/ObjectCensus.h"

#include "Core/Control/GUIObject.h"
#include "Core/GUITimer.h"
#include "TestSupport/TestAccess.h"

namespace
{
std::string CompareCounts(const char* pcWhat, eC_UInt uiBefore, eC_UInt uiAfter)
{
    if (uiAfter == uiBefore)
    {
        return std::string();
    }
    // Signed, so that a count below the earlier one is negative instead of four billion too many.
    const eC_Int iTooMany = static_cast<eC_Int>(uiAfter - uiBefore);
    return iTooMany > 0 ? std::to_string(iTooMany) + " " + pcWhat + " left over\n"
                        : std::to_string(-iTooMany) + " " + pcWhat + " destroyed too many\n";
}
} // namespace

ObjectCensus_t TakeObjectCensus()
{
    ObjectCensus_t kCensus;
    kCensus.m_uiObjects = CGUIObject::GetNOFObjects();
    kCensus.m_uiSafePointers = static_cast<eC_UInt>(CGUITestAccess::GetSafePointers().size());
    kCensus.m_bTimerCallbacks = GETTIMER.GetTimeUntilNextCallback() != CGUITimer::cuiNoCallback;
    return kCensus;
}

std::string CompareObjectCensus(const ObjectCensus_t& kBefore, const ObjectCensus_t& kAfter)
{
    std::string kText = CompareCounts("GUI objects", kBefore.m_uiObjects, kAfter.m_uiObjects);
    kText += CompareCounts("safe pointers", kBefore.m_uiSafePointers, kAfter.m_uiSafePointers);
    if (kBefore.m_bTimerCallbacks != kAfter.m_bTimerCallbacks)
    {
        kText += kAfter.m_bTimerCallbacks ? "timer callbacks left over\n" : "timer callbacks lost\n";
    }
    return kText;
}
