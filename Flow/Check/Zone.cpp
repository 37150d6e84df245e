// SPDX-License-Identifier: MIT
#include "Flow/Check/Zone.h"

#include <algorithm>

namespace
{
constexpr std::int64_t ciUnbounded = std::int64_t(1) << 60;
} // namespace

std::size_t CZone::Find(eC_UInt uiID) const
{
    for (std::size_t uiClock = 0; uiClock < m_kClocks.size(); ++uiClock)
    {
        if (m_kClocks[uiClock].m_uiID == uiID)
        {
            return uiClock + 1;
        }
    }
    return 0;
}

void CZone::Start(const Clock_t& kClock)
{
    Stop(kClock.m_uiID);
    // Sorted by their numbers, so that equal zones are equal.
    const auto kPlace =
        std::find_if(m_kClocks.begin(), m_kClocks.end(),
                     [&kClock](const Clock_t& kOther) { return kOther.m_uiID > kClock.m_uiID; });
    const std::size_t uiNew = static_cast<std::size_t>(kPlace - m_kClocks.begin()) + 1;
    CZone kOld = *this;
    m_kClocks.insert(kPlace, kClock);
    m_kBounds.assign((m_kClocks.size() + 1) * (m_kClocks.size() + 1), 0);
    const auto OldRow = [uiNew](std::size_t uiRow) {
        return uiRow == uiNew ? 0 : uiRow > uiNew ? uiRow - 1 : uiRow;
    };
    for (std::size_t uiOne = 0; uiOne <= m_kClocks.size(); ++uiOne)
    {
        for (std::size_t uiOther = 0; uiOther <= m_kClocks.size(); ++uiOther)
        {
            // A clock that has just started shows the time 0.
            At(uiOne, uiOther) = kOld.Get(OldRow(uiOne), OldRow(uiOther));
        }
    }
}

void CZone::Stop(eC_UInt uiID)
{
    const std::size_t uiGone = Find(uiID);
    if (uiGone == 0)
    {
        return;
    }
    const CZone kOld = *this;
    m_kClocks.erase(m_kClocks.begin() + static_cast<std::ptrdiff_t>(uiGone - 1));
    m_kBounds.assign((m_kClocks.size() + 1) * (m_kClocks.size() + 1), 0);
    const auto OldRow = [uiGone](std::size_t uiRow) { return uiRow >= uiGone ? uiRow + 1 : uiRow; };
    for (std::size_t uiOne = 0; uiOne <= m_kClocks.size(); ++uiOne)
    {
        for (std::size_t uiOther = 0; uiOther <= m_kClocks.size(); ++uiOther)
        {
            At(uiOne, uiOther) = kOld.Get(OldRow(uiOne), OldRow(uiOther));
        }
    }
}

void CZone::Elapse()
{
    for (std::size_t uiClock = 1; uiClock <= m_kClocks.size(); ++uiClock)
    {
        At(uiClock, 0) = ciUnbounded;
    }
}

void CZone::Limit(std::size_t uiOne, std::size_t uiOther, std::int64_t iBound)
{
    At(uiOne, uiOther) = std::min(At(uiOne, uiOther), iBound);
}

eC_Bool CZone::Close()
{
    const std::size_t uiRows = m_kClocks.size() + 1;
    for (std::size_t uiOver = 0; uiOver < uiRows; ++uiOver)
    {
        for (std::size_t uiOne = 0; uiOne < uiRows; ++uiOne)
        {
            for (std::size_t uiOther = 0; uiOther < uiRows; ++uiOther)
            {
                Limit(uiOne, uiOther, At(uiOne, uiOver) + At(uiOver, uiOther));
            }
        }
    }
    for (std::size_t uiRow = 0; uiRow < uiRows; ++uiRow)
    {
        if (At(uiRow, uiRow) < 0)
        {
            return false;
        }
    }
    return true;
}

eC_Bool CZone::ElapseUntilKey()
{
    Elapse();
    for (std::size_t uiClock = 1; uiClock <= m_kClocks.size(); ++uiClock)
    {
        Limit(uiClock, 0, std::int64_t(m_kClocks[uiClock - 1].m_uiDuration) - 1);
    }
    return Close();
}

eC_Bool CZone::ElapseUntilExpiry(eC_UInt uiID, eC_Bool bMayTie)
{
    Elapse();
    for (std::size_t uiClock = 1; uiClock <= m_kClocks.size(); ++uiClock)
    {
        const std::int64_t iDuration = m_kClocks[uiClock - 1].m_uiDuration;
        const eC_Bool bIsIt = m_kClocks[uiClock - 1].m_uiID == uiID;
        Limit(uiClock, 0, bIsIt || bMayTie ? iDuration : iDuration - 1);
        if (bIsIt)
        {
            Limit(0, uiClock, -iDuration);
        }
    }
    return Close();
}

eC_Bool CZone::Includes(const CZone& kOther) const
{
    for (std::size_t uiBound = 0; uiBound < m_kBounds.size(); ++uiBound)
    {
        if (m_kBounds[uiBound] < kOther.m_kBounds[uiBound])
        {
            return false;
        }
    }
    return true;
}

eC_Bool CZone::operator==(const CZone& kOther) const
{
    return m_kBounds == kOther.m_kBounds;
}

std::string CZone::Describe() const
{
    std::string kText;
    for (const Clock_t& kClock : m_kClocks)
    {
        kText += std::to_string(kClock.m_uiID) + ' ';
    }
    for (const std::int64_t iBound : m_kBounds)
    {
        kText += std::to_string(iBound) + ',';
    }
    return kText;
}
