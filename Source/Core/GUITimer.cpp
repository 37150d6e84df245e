// SPDX-License-Identifier: MIT
#include "Core/GUITimer.h"

#include "Core/GUIAnimatable.h"
#include "Core/Utils/eC_SpareBlocks.h"

#include <chrono>
#include <climits>

namespace
{
constexpr eC_UInt cuiNumberBits = sizeof(std::uintptr_t) * CHAR_BIT;

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

CGUITimer::~CGUITimer()
{
    while (m_pkRoot != nullptr)
    {
        Leave(m_pkRoot);
    }
}

void CGUITimer::AddAnimationCallback(eC_UInt uiInterval, CGUIAnimatable* pkAnimatable)
{
    if (uiInterval == 0 || pkAnimatable == nullptr)
    {
        return;
    }
    AnimationCallback_t* pkCallback = FindCallback(pkAnimatable);
    // A dialog switch registers every displayed popup again. If that restarted the time, frequent switches
    // would keep a timed popup open forever.
    if (pkCallback != nullptr && pkCallback->m_uiInterval == uiInterval)
    {
        return;
    }
    const std::uint64_t uiNow = ReadClock();
    if (pkCallback == nullptr)
    {
        pkCallback = Enter(pkAnimatable);
    }
    pkCallback->m_uiInterval = uiInterval;
    pkCallback->m_uiDue = uiNow + uiInterval;
    pkCallback->m_uiRegistered = ++m_uiRegistrations;
    UpdateFirstDue(pkCallback);
}

void CGUITimer::RemoveAnimationCallback(CGUIAnimatable* pkAnimatable)
{
    // Destructors call this: it must not allocate.
    AnimationCallback_t* pkCallback = FindCallback(pkAnimatable);
    if (pkCallback != nullptr)
    {
        Leave(pkCallback);
    }
}

eC_Bool CGUITimer::IsAnimating(const CGUIAnimatable* pkAnimatable) const
{
    return FindCallback(pkAnimatable) != nullptr;
}

void CGUITimer::ProcessCallbacks()
{
    const std::uint64_t uiNow = ReadClock();
    // A callback may change the tree or run a pass of its own, so nothing is kept across a call. The loop
    // ends because whatever was called or is new is due later than now.
    while (m_pkRoot != nullptr && m_pkRoot->m_pkFirstDue->m_uiDue <= uiNow)
    {
        AnimationCallback_t* pkDue = m_pkRoot->m_pkFirstDue;
        const std::uint64_t uiIntervals = (uiNow - pkDue->m_uiDue) / pkDue->m_uiInterval + 1;
        pkDue->m_uiDue += uiIntervals * pkDue->m_uiInterval;
        UpdateFirstDue(pkDue);
        pkDue->m_pkAnimatable->DoAnimate(static_cast<eC_Value>(uiIntervals));
    }
}

eC_UInt CGUITimer::GetTimeUntilNextCallback()
{
    if (m_pkRoot == nullptr)
    {
        return cuiNoCallback;
    }
    const eC_UInt uiRemaining = GetRemaining(*m_pkRoot->m_pkFirstDue, ReadClock());
    // A longer wait could miss the wrap-around of the clock.
    return uiRemaining < cuiLongestWait ? uiRemaining : cuiLongestWait;
}

eC_UInt CGUITimer::GetTimeUntilCallback(const CGUIAnimatable* pkAnimatable)
{
    const AnimationCallback_t* pkCallback = FindCallback(pkAnimatable);
    return pkCallback != nullptr ? GetRemaining(*pkCallback, ReadClock()) : cuiNoCallback;
}

std::uint64_t CGUITimer::ReadClock()
{
    m_uiTime += static_cast<eC_UInt>(GetTime() - static_cast<eC_UInt>(m_uiTime));
    return m_uiTime;
}

eC_UInt CGUITimer::GetRemaining(const AnimationCallback_t& kCallback, std::uint64_t uiNow)
{
    return kCallback.m_uiDue > uiNow ? static_cast<eC_UInt>(kCallback.m_uiDue - uiNow) : 0;
}

// ---- The tree of registrations -----------------------------------------------------------------------

void* CGUITimer::AnimationCallback_t::operator new(std::size_t uiSize)
{
    return eC_SpareBlocks::Take(uiSize);
}

void CGUITimer::AnimationCallback_t::operator delete(void* pBlock, std::size_t uiSize) noexcept
{
    eC_SpareBlocks::Give(pBlock, uiSize);
}

std::uintptr_t CGUITimer::GetNumber(const CGUIAnimatable* pkAnimatable)
{
    // Multiplying by an odd factor keeps different addresses different. This one, from the golden ratio,
    // spreads equally spaced addresses, such as those of an array, evenly over the first bits.
    constexpr std::uint64_t cuiFactor = 0x9E3779B97F4A7C15U >> (64 - cuiNumberBits);
    return reinterpret_cast<std::uintptr_t>(pkAnimatable) * static_cast<std::uintptr_t>(cuiFactor);
}

eC_UInt CGUITimer::TakeBit(std::uintptr_t& uiNumber)
{
    const auto uiBit = static_cast<eC_UInt>(uiNumber >> (cuiNumberBits - 1));
    uiNumber <<= 1;
    return uiBit;
}

CGUITimer::AnimationCallback_t* CGUITimer::FindCallback(const CGUIAnimatable* pkAnimatable) const
{
    std::uintptr_t uiNumber = GetNumber(pkAnimatable);
    AnimationCallback_t* pkCallback = m_pkRoot;
    while (pkCallback != nullptr && pkCallback->m_pkAnimatable != pkAnimatable)
    {
        pkCallback = pkCallback->m_apkChildren[TakeBit(uiNumber)];
    }
    return pkCallback;
}

CGUITimer::AnimationCallback_t* CGUITimer::Enter(CGUIAnimatable* pkAnimatable)
{
    std::uintptr_t uiNumber = GetNumber(pkAnimatable);
    AnimationCallback_t* pkParent = nullptr;
    AnimationCallback_t** ppkPlace = &m_pkRoot;
    while (*ppkPlace != nullptr)
    {
        pkParent = *ppkPlace;
        ppkPlace = &pkParent->m_apkChildren[TakeBit(uiNumber)];
    }
    auto* pkCallback = new AnimationCallback_t();
    pkCallback->m_pkParent = pkParent;
    pkCallback->m_pkAnimatable = pkAnimatable;
    *ppkPlace = pkCallback;
    return pkCallback;
}

void CGUITimer::Leave(AnimationCallback_t* pkCallback)
{
    AnimationCallback_t* pkLeaf = pkCallback;
    while (pkLeaf->m_apkChildren[0] != nullptr || pkLeaf->m_apkChildren[1] != nullptr)
    {
        pkLeaf = pkLeaf->m_apkChildren[pkLeaf->m_apkChildren[0] == nullptr];
    }
    GetPlace(pkLeaf) = nullptr;
    AnimationCallback_t* pkChanged = pkLeaf->m_pkParent;
    if (pkLeaf != pkCallback)
    {
        // The leaf moves to the free place.
        pkChanged = pkChanged == pkCallback ? pkLeaf : pkChanged;
        GetPlace(pkCallback) = pkLeaf;
        pkLeaf->m_pkParent = pkCallback->m_pkParent;
        for (eC_UInt uiBit = 0; uiBit < 2; ++uiBit)
        {
            AnimationCallback_t* pkChild = pkCallback->m_apkChildren[uiBit];
            pkLeaf->m_apkChildren[uiBit] = pkChild;
            if (pkChild != nullptr)
            {
                pkChild->m_pkParent = pkLeaf;
            }
        }
    }
    UpdateFirstDue(pkChanged);
    delete pkCallback;
}

CGUITimer::AnimationCallback_t*& CGUITimer::GetPlace(const AnimationCallback_t* pkCallback)
{
    AnimationCallback_t* pkParent = pkCallback->m_pkParent;
    return pkParent != nullptr ? pkParent->m_apkChildren[pkParent->m_apkChildren[1] == pkCallback] : m_pkRoot;
}

void CGUITimer::UpdateFirstDue(AnimationCallback_t* pkChanged)
{
    for (AnimationCallback_t* pkTop = pkChanged; pkTop != nullptr; pkTop = pkTop->m_pkParent)
    {
        pkTop->m_pkFirstDue = pkTop;
        for (const AnimationCallback_t* pkChild : pkTop->m_apkChildren)
        {
            if (pkChild != nullptr && IsDueBefore(*pkChild->m_pkFirstDue, *pkTop->m_pkFirstDue))
            {
                pkTop->m_pkFirstDue = pkChild->m_pkFirstDue;
            }
        }
    }
}

eC_Bool CGUITimer::IsDueBefore(const AnimationCallback_t& kOne, const AnimationCallback_t& kOther)
{
    return kOne.m_uiDue != kOther.m_uiDue ? kOne.m_uiDue < kOther.m_uiDue
                                          : kOne.m_uiRegistered < kOther.m_uiRegistered;
}
