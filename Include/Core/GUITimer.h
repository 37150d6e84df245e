#ifndef CORE_GUITIMER_H
#define CORE_GUITIMER_H

/** @file
 *  The framework's clock and its periodic callbacks.
 */

#include "Core/Utils/eC_NeverDestroyed.h"
#include "Core/Utils/eC_TList_doubleLinked.h"
#include "Core/Utils/eC_Types.h"

#include <cstdint>

class CGUIAnimatable;

/** Clock and animation callbacks of the GUI task.
 *
 *  Time is counted in unsigned 32-bit milliseconds that wrap around after some 49.7 days; intervals are
 *  measured as differences, so the wrap-around is not noticed. The main loop calls ProcessCallbacks and
 *  may sleep for GetTimeUntilNextCallback in between. No callback runs from anywhere else.
 *
 *  The framework's one timer is there before and after every animatable and every dialog manager, also
 *  before and after static ones of any kind: it is never destroyed.
 */
class CGUITimer
{
public:
    /** A clock: returns the current time in milliseconds, modulo 2 to the power of 32. */
    using Clock_t = eC_UInt (*)();

    /** What GetTimeUntilNextCallback returns when nothing is registered. */
    static constexpr eC_UInt cuiNoCallback = 0xFFFFFFFFU;

    /** Makes a timer without callbacks on the monotonic system clock. */
    constexpr CGUITimer() : m_pfnClock(nullptr), m_uiPass(0), m_kCallbacks() {}

    CGUITimer(const CGUITimer&) = delete;
    CGUITimer& operator=(const CGUITimer&) = delete;

    /** @return the current time in milliseconds */
    virtual eC_UInt GetTime();

    /** Forgets all registrations; calls nobody. */
    virtual ~CGUITimer() = default;

    /** @return the framework's one timer, ms_kTimer */
    static CGUITimer& GetInstance() { return ms_kTimer; }

    /** Sets the clock. Running registrations keep the times that they were given; a new clock should
     *  therefore be set before anything is registered.
     *  @param pfnClock the clock; null for the monotonic system clock (the default)
     */
    void SetClock(Clock_t pfnClock) { m_pfnClock = pfnClock; }

    /** Registers an animatable for periodic calls of DoAnimate, the first one interval from now.
     *
     *  An animatable that is registered with the same interval keeps its running registration; with
     *  another interval the registration is replaced and counts from now, and it takes the last place
     *  in the order of registration. Allocates one list node for a new or replaced registration.
     *  @param uiInterval the interval in milliseconds; with 0 nothing happens, an interval of 0 is never
     *         registered and a running registration is kept
     *  @param pkAnimatable the object to call; null is ignored. Not owned.
     */
    void AddAnimationCallback(eC_UInt uiInterval, CGUIAnimatable* pkAnimatable);

    /** Unregisters an animatable: DoAnimate is not called for it again, not even in the pass of
     *  ProcessCallbacks that runs now. Safe from inside any callback. Allocates nothing.
     *  @param pkAnimatable the object; one that is not registered, and null, are ignored
     */
    void RemoveAnimationCallback(CGUIAnimatable* pkAnimatable);

    /** @return true while the animatable is registered */
    eC_Bool IsAnimating(const CGUIAnimatable* pkAnimatable) const;

    /** Runs every callback that is due, in order of due time, ties in order of registration.
     *
     *  The time is read once, at the beginning. Each due animatable gets one call, with the number of
     *  whole intervals that have elapsed as its value, however late the main loop is: never a burst.
     *  Its next due time stays on the grid of its interval. Whatever a callback registers becomes due
     *  in a later pass at the earliest. An exception out of a callback ends the pass and goes to the
     *  caller; the timer stays consistent, the callback counts as run, and those not reached run in the
     *  next pass.
     */
    void ProcessCallbacks();

    /** @return the milliseconds until the next callback is due, 0 when one is due now, or cuiNoCallback
     *          when nothing is registered (or when an interval of that length has just begun)
     */
    eC_UInt GetTimeUntilNextCallback();

    /** @param pkAnimatable an animatable
     *  @return the milliseconds until its next callback is due, 0 when it is due now, or cuiNoCallback
     *          when it is not registered
     */
    eC_UInt GetTimeUntilCallback(const CGUIAnimatable* pkAnimatable);

    static CGUITimer& ms_kTimer; ///< the framework's one timer

private:
    friend class CGUITestAccess;

    /** One registered animatable. */
    struct AnimationCallback_t
    {
        eC_Bool operator==(const AnimationCallback_t& kOther) const
        {
            return m_pkAnimatable == kOther.m_pkAnimatable;
        }

        CGUIAnimatable* m_pkAnimatable = nullptr;
        eC_UInt m_uiInterval = 0;   ///< milliseconds, never 0 once registered
        eC_UInt m_uiStart = 0;      ///< the time from which the current interval counts
        std::uint64_t m_uiPass = 0; ///< the pass in which it was registered or last called
    };

    typedef eC_TListDoubleLinked<AnimationCallback_t> CallbackList_t;

    static eC_UInt GetRemaining(const AnimationCallback_t& kCallback, eC_UInt uiNow);
    AnimationCallback_t* FindCallback(const CGUIAnimatable* pkAnimatable) const;
    AnimationCallback_t* FindMostOverdue(eC_UInt uiNow, std::uint64_t uiPass) const;

    static eC_NeverDestroyed<CGUITimer> ms_kTimerStorage;

    Clock_t m_pfnClock;          ///< null: the monotonic system clock
    std::uint64_t m_uiPass;      ///< counts the passes of ProcessCallbacks
    CallbackList_t m_kCallbacks; ///< in order of registration
};

inline CGUITimer& CGUITimer::ms_kTimer = CGUITimer::ms_kTimerStorage.m_tObject;

/** The framework's one timer. */
#define GETTIMER CGUITimer::GetInstance()

#endif
