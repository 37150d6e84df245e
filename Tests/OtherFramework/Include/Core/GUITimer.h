// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_CORE_GUITIMER_H
#define OTHERFRAMEWORK_CORE_GUITIMER_H

#include "Core/Utils/eC_Types.h"

#include <map>

class CGUIAnimatable;

/** A timer whose time and callbacks are controlled by the test. */
class CGUITimer
{
public:
    virtual eC_UInt GetTime();
    virtual ~CGUITimer() = default;

    static CGUITimer& GetInstance() { return ms_kTimer; }

    void AddAnimationCallback(eC_UInt uiInterval, CGUIAnimatable* pkAnimatable);
    void RemoveAnimationCallback(CGUIAnimatable* pkAnimatable);
    eC_Bool IsAnimating(const CGUIAnimatable* pkAnimatable) const;

    static CGUITimer ms_kTimer;

private:
    friend class COtherFramework;

    std::map<const CGUIAnimatable*, eC_UInt> m_kIntervals;
};

inline CGUITimer CGUITimer::ms_kTimer;

#define GETTIMER CGUITimer::GetInstance()

#endif
