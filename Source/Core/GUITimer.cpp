#include "Core/GUITimer.h"

#include "Core/GUIAnimatable.h"

#include <chrono>

namespace
{
eC_UInt GetSystemTime()
{
    const auto kNow = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<eC_UInt>(std::chrono::duration_cast<std::chrono::milliseconds>(kNow).count());
}
} // namespace

eC_NeverDestroyed<CGUITimer> CGUITimer::ms_kTimerStorage;

eC_UInt CGUITimer::GetTime()
{
    return m_pfnClock != nullptr ? m_pfnClock() : GetSystemTime();
}

void CGUITimer::AddAnimationCallback(eC_UInt uiInterval, CGUIAnimatable* pkAnimatable)
{
    if (uiInterval == 0 || pkAnimatable == nullptr)
    {
        return;
    }
    const AnimationCallback_t* pkRunning = FindCallback(pkAnimatable);
    // A dialog switch registers every displayed popup again: if that started the time anew, frequent
    // switches would keep a timed popup alive forever.
    if (pkRunning != nullptr && pkRunning->m_uiInterval == uiInterval)
    {
        return;
    }
    AnimationCallback_t kCallback;
    kCallback.m_pkAnimatable = pkAnimatable;
    kCallback.m_uiInterval = uiInterval;
    kCallback.m_uiStart = GetTime();
    kCallback.m_uiPass = m_uiPass;
    m_kCallbacks.AddAtEnd(kCallback);
    if (pkRunning != nullptr)
    {
        // Removes the older one, which comes first; it has run on until the new one was there.
        RemoveAnimationCallback(pkAnimatable);
    }
}

void CGUITimer::RemoveAnimationCallback(CGUIAnimatable* pkAnimatable)
{
    // Called from destructors: nothing here may need memory.
    AnimationCallback_t kSought;
    kSought.m_pkAnimatable = pkAnimatable;
    m_kCallbacks.Remove(kSought);
}

eC_Bool CGUITimer::IsAnimating(const CGUIAnimatable* pkAnimatable) const
{
    return FindCallback(pkAnimatable) != nullptr;
}

void CGUITimer::ProcessCallbacks()
{
    const eC_UInt uiNow = GetTime();
    const std::uint64_t uiPass = ++m_uiPass;
    // A callback may change the list, or run a pass of its own: so the search starts anew each time and
    // holds nothing across a call. It comes to an end, since what was called has had its part in this pass.
    for (AnimationCallback_t* pkDue = FindMostOverdue(uiNow, uiPass); pkDue != nullptr;
         pkDue = FindMostOverdue(uiNow, uiPass))
    {
        const eC_UInt uiIntervals = (uiNow - pkDue->m_uiStart) / pkDue->m_uiInterval;
        pkDue->m_uiStart += uiIntervals * pkDue->m_uiInterval;
        pkDue->m_uiPass = uiPass;
        pkDue->m_pkAnimatable->DoAnimate(static_cast<eC_Value>(uiIntervals));
    }
}

eC_UInt CGUITimer::GetTimeUntilNextCallback()
{
    const eC_UInt uiNow = GetTime();
    eC_UInt uiShortest = cuiNoCallback;
    for (CallbackList_t::Iterator kIterator = m_kCallbacks.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        const eC_UInt uiRemaining = GetRemaining(*kIterator, uiNow);
        if (uiRemaining < uiShortest)
        {
            uiShortest = uiRemaining;
        }
    }
    return uiShortest;
}

eC_UInt CGUITimer::GetTimeUntilCallback(const CGUIAnimatable* pkAnimatable)
{
    const AnimationCallback_t* pkCallback = FindCallback(pkAnimatable);
    return pkCallback != nullptr ? GetRemaining(*pkCallback, GetTime()) : cuiNoCallback;
}

eC_UInt CGUITimer::GetRemaining(const AnimationCallback_t& kCallback, eC_UInt uiNow)
{
    const eC_UInt uiElapsed = uiNow - kCallback.m_uiStart;
    return uiElapsed < kCallback.m_uiInterval ? kCallback.m_uiInterval - uiElapsed : 0;
}

CGUITimer::AnimationCallback_t* CGUITimer::FindCallback(const CGUIAnimatable* pkAnimatable) const
{
    for (CallbackList_t::Iterator kIterator = m_kCallbacks.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        if ((*kIterator).m_pkAnimatable == pkAnimatable)
        {
            return &*kIterator;
        }
    }
    return nullptr;
}

CGUITimer::AnimationCallback_t* CGUITimer::FindMostOverdue(eC_UInt uiNow, std::uint64_t uiPass) const
{
    AnimationCallback_t* pkMostOverdue = nullptr;
    eC_UInt uiLongest = 0;
    for (CallbackList_t::Iterator kIterator = m_kCallbacks.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        AnimationCallback_t& kCallback = *kIterator;
        // What this pass has registered or called may count from a moment behind its own: the difference of
        // the two would wrap around to an enormous delay.
        const eC_Bool bWasCalledOrIsNew = kCallback.m_uiPass >= uiPass;
        const eC_UInt uiElapsed = uiNow - kCallback.m_uiStart;
        if (bWasCalledOrIsNew || uiElapsed < kCallback.m_uiInterval)
        {
            continue;
        }
        const eC_UInt uiOverdue = uiElapsed - kCallback.m_uiInterval;
        if (pkMostOverdue == nullptr || uiOverdue > uiLongest)
        {
            pkMostOverdue = &kCallback;
            uiLongest = uiOverdue;
        }
    }
    return pkMostOverdue;
}
