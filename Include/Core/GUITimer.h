// SPDX-License-Identifier: MIT
#ifndef CORE_GUITIMER_H
#define CORE_GUITIMER_H

/** @file
 *  The framework's clock and its periodic callbacks.
 */

#include "Core/Utils/eC_NeverDestroyed.h"
#include "Core/Utils/eC_Types.h"

#include <cstddef>
#include <cstdint>

class CGUIAnimatable;

/** Clock and animation callbacks of the GUI task.
 *
 *  The clock counts unsigned 32-bit milliseconds that wrap around after some 49.7 days. The timer continues
 *  across the wrap-around, so no interval is lost, however late the main loop is, as long as one of the
 *  timer's operations reads the clock at least once in 2 to the power of 32 milliseconds while anything is
 *  registered. A main loop that waits no longer than GetTimeUntilNextCallback returns may be late by another
 *  24.8 days.
 *
 *  The main loop calls ProcessCallbacks and may sleep for GetTimeUntilNextCallback in between. No other
 *  operation runs callbacks.
 *
 *  Registering, finding and removing one of n animatables takes time proportional to the logarithm
 *  of n, and never more steps than an address has bits; running all that is due takes n times as long.
 *
 *  A program has one timer, GetInstance(): animatables unregister from it when they are destroyed, and the
 *  dialog manager uses it. It exists before and after every animatable and every dialog manager, static ones
 *  of any kind included: it is never destroyed.
 */
class GUI_API CGUITimer
{
public:
    /** A clock: returns the current time in milliseconds, modulo 2 to the power of 32. */
    using Clock_t = eC_UInt (*)();

    /** What GetTimeUntilNextCallback returns when nothing is registered. */
    static constexpr eC_UInt cuiNoCallback = 0xFFFFFFFFU;

    /** The most that GetTimeUntilNextCallback returns when something is registered. */
    static constexpr eC_UInt cuiLongestWait = 0x7FFFFFFFU;

    /** Makes a timer without callbacks on the monotonic system clock. */
    constexpr CGUITimer() : m_pfnClock(nullptr), m_uiTime(0), m_uiRegistrations(0), m_pkRoot(nullptr) {}

    CGUITimer(const CGUITimer&) = delete;
    CGUITimer& operator=(const CGUITimer&) = delete;

    /** @return the current time in milliseconds */
    virtual eC_UInt GetTime();

    /** Drops all registrations without calling anything. */
    virtual ~CGUITimer();

    /** @return the framework's one timer, ms_kTimer */
    static CGUITimer& GetInstance() { return ms_kTimer; }

    /** Sets the clock. Running registrations keep their due times, so set a new clock before anything is
     *  registered.
     *  @param pfnClock the clock; null for the monotonic system clock (the default). It must not run
     *         backwards: a step back looks like the wrap-around, some 49.7 days later. The timer's operations
     *         call it, and it must not call them.
     */
    void SetClock(Clock_t pfnClock) { m_pfnClock = pfnClock; }

    /** Registers an animatable for periodic calls of DoAnimate, the first one interval from now.
     *
     *  An animatable that is registered with the same interval keeps its running registration; with
     *  another interval the registration is replaced and counts from now, and it takes the last place
     *  in the order of registration. Only a new registration allocates: one block.
     *  @param uiInterval the interval in milliseconds; with 0 nothing happens: an interval of 0 is never
     *         registered, and a running registration is kept
     *  @param pkAnimatable the object to call; null is ignored. Not owned.
     *  @throws std::bad_alloc when there is no memory for a new registration; nothing has changed then
     */
    void AddAnimationCallback(eC_UInt uiInterval, CGUIAnimatable* pkAnimatable);

    /** Unregisters an animatable: DoAnimate is not called for it again, not even in the pass of
     *  ProcessCallbacks that is running. Callbacks may call it. Allocates nothing.
     *  @param pkAnimatable the object; one that is not registered, and null, are ignored
     */
    void RemoveAnimationCallback(CGUIAnimatable* pkAnimatable);

    /** @return true while the animatable is registered */
    eC_Bool IsAnimating(const CGUIAnimatable* pkAnimatable) const;

    /** Runs every callback that is due, in order of due time, ties in order of registration.
     *
     *  The time is read once, at the beginning. Each due animatable gets one call, with the number of
     *  whole intervals that have elapsed as its value, however late the main loop is: never a burst.
     *  Its next due time stays on the grid of its interval. What a callback registers becomes due in a later
     *  pass at the earliest. An exception of a callback ends the pass and passes to the caller; the timer
     *  stays consistent, that callback counts as run, and those not reached run in the next pass. Allocates
     *  nothing.
     */
    void ProcessCallbacks();

    /** @return the milliseconds until the next callback is due, 0 when one is due now, or cuiNoCallback
     *          when nothing is registered; cuiLongestWait when it is due later than that
     */
    eC_UInt GetTimeUntilNextCallback();

    /** @param pkAnimatable an animatable
     *  @return the milliseconds until its next callback is due, 0 when it is due now, or cuiNoCallback
     *          when it is not registered (or when an interval of that length has just begun)
     */
    eC_UInt GetTimeUntilCallback(const CGUIAnimatable* pkAnimatable);

    static CGUITimer& ms_kTimer; ///< the framework's one timer

private:
    friend class CGUIStateAccess;
    friend class CGUITestAccess;

    /** One registered animatable.
     *
     *  The registrations form a binary tree in which an animatable is found by the bits of a number made
     *  from its address: the first bit tells whether to go left or right at the top, the second one at the
     *  next level, and so on until the animatable is found. So any registration can replace one above it.
     *  Each also knows which one is due first among itself and those below it.
     */
    struct AnimationCallback_t
    {
        static void* operator new(std::size_t uiSize);
        static void operator delete(void* pBlock, std::size_t uiSize) noexcept;

        AnimationCallback_t* m_pkParent;
        AnimationCallback_t* m_apkChildren[2]; ///< where the next bit is 0, and where it is 1
        AnimationCallback_t* m_pkFirstDue;     ///< of this one and all below it
        CGUIAnimatable* m_pkAnimatable;
        eC_UInt m_uiInterval;         ///< milliseconds, never 0
        std::uint64_t m_uiDue;        ///< when it is to be called next
        std::uint64_t m_uiRegistered; ///< orders callbacks that are due at the same time
    };

    static std::uintptr_t GetNumber(const CGUIAnimatable* pkAnimatable);
    static eC_UInt TakeBit(std::uintptr_t& uiNumber);
    static eC_Bool IsDueBefore(const AnimationCallback_t& kOne, const AnimationCallback_t& kOther);
    static void UpdateFirstDue(AnimationCallback_t* pkChanged);
    static eC_UInt GetRemaining(const AnimationCallback_t& kCallback, std::uint64_t uiNow);

    std::uint64_t ReadClock();
    AnimationCallback_t* FindCallback(const CGUIAnimatable* pkAnimatable) const;
    AnimationCallback_t* Enter(CGUIAnimatable* pkAnimatable);
    void Leave(AnimationCallback_t* pkCallback);
    AnimationCallback_t*& GetPlace(const AnimationCallback_t* pkCallback);

    static eC_NeverDestroyed<CGUITimer> ms_kTimerStorage;

    Clock_t m_pfnClock;              ///< null: the monotonic system clock
    std::uint64_t m_uiTime;          ///< when the clock was last read; its lower half is the clock's value
    std::uint64_t m_uiRegistrations; ///< how many there have been so far
    AnimationCallback_t* m_pkRoot;   ///< the top of the tree of registrations
};

inline CGUITimer& CGUITimer::ms_kTimer = CGUITimer::ms_kTimerStorage.m_tObject;

/** The framework's one timer. */
#define GETTIMER CGUITimer::GetInstance()

#endif
