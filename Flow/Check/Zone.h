// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_ZONE_H
#define FLOW_CHECK_ZONE_H

/** @file
 *  Which times may have passed, and which timer may run out next.
 */

#include "Core/Utils/eC_Types.h"

#include <cstdint>
#include <string>
#include <vector>

/** The times for which the running timers may have run, as bounds on each and on the differences between
 * them: a zone of a timed automaton (J. Bengtsson and W. Yi: Timed Automata: Semantics, Algorithms and Tools,
 * 2004). How long a user pauses between two keys is open, so a path leads to a whole zone.
 */
class CZone
{
public:
    /** A timer of the application. */
    struct Clock_t
    {
        eC_UInt m_uiID;
        eC_UInt m_uiDuration; ///< milliseconds
    };

    CZone() : m_kBounds(1, 0) {}

    const std::vector<Clock_t>& GetClocks() const { return m_kClocks; }

    /** Starts a timer now, anew if it is running. */
    void Start(const Clock_t& kClock);

    /** Forgets a timer. */
    void Stop(eC_UInt uiID);

    /** Lets time pass until a key is pressed, before any timer has run out. @return false: impossible */
    eC_Bool ElapseUntilKey();

    /** Lets time pass until a timer runs out.
     *  @param bMayTie whether others may run out at the same moment
     *  @return false: others always run out before it
     */
    eC_Bool ElapseUntilExpiry(eC_UInt uiID, eC_Bool bMayTie);

    /** @return whether every time in the other zone, of the same timers, is in this one */
    eC_Bool Includes(const CZone& kOther) const;

    eC_Bool operator==(const CZone& kOther) const;

    /** @return a text that is the same for equal zones of the same timers, and different for others */
    std::string Describe() const;

private:
    std::int64_t& At(std::size_t uiOne, std::size_t uiOther)
    {
        return m_kBounds[uiOne * (m_kClocks.size() + 1) + uiOther];
    }
    std::int64_t Get(std::size_t uiOne, std::size_t uiOther) const
    {
        return m_kBounds[uiOne * (m_kClocks.size() + 1) + uiOther];
    }
    std::size_t Find(eC_UInt uiID) const; ///< its row, 0 if it is not running
    void Elapse();
    void Limit(std::size_t uiOne, std::size_t uiOther, std::int64_t iBound);
    eC_Bool Close();

    std::vector<Clock_t> m_kClocks;
    /** The upper bound of the time of one clock minus that of another; row and column 0 stand for the time 0.
     */
    std::vector<std::int64_t> m_kBounds;
};

#endif
