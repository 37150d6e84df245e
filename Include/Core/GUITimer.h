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
 *  The clock counts unsigned 32-bit milliseconds that wrap around after some 49.7 days. The timer goes on
 *  counting where the clock wraps around, so no interval is lost, however late the main loop is: all it
 *  needs is that one of its operations reads the clock at least once in 2 to the power of 32 milliseconds
 *  while anything is registered. A main loop that waits no longer than GetTimeUntilNextCallback tells may be
 *  late by 24.8 days more.
 *
 *  The main loop calls ProcessCallbacks and may sleep for GetTimeUntilNextCallback in between. No callback
 *  runs from anywhere else.
 *
 *  Registering, finding and removing one of n animatables takes a time that grows with the logarithm of n,
 *  and never more steps than an address has bits; running all that is due takes n times as long.
 *
 *  One timer serves a program, GetInstance(): an animatable asks that one when it is destroyed, and the
 *  dialog manager uses no other. It is there before and after every animatable and every dialog manager, also
 *  before and after static ones of any kind: it is never destroyed.
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

    /** Forgets all registrations; calls nobody. */
    virtual ~CGUITimer();

    /** @return the framework's one timer, ms_kTimer */
    static CGUITimer& GetInstance() { return ms_kTimer; }

    /** Sets the clock. Running registrations keep the times that they were given; a new clock should
     *  therefore be set before anything is registered.
     *  @param pfnClock the clock; null for the monotonic system clock (the default). It never runs backwards:
     *         a step back looks like the wrap-around, some 49.7 days later. It is called by the timer's
     *         operations and calls none of them.
     */
    void SetClock(Clock_t pfnClock) { m_pfnClock = pfnClock; }

    /** Registers an animatable for periodic calls of DoAnimate, the first one interval from now.
     *
     *  An animatable that is registered with the same interval keeps its running registration; with
     *  another interval the registration is replaced and counts from now, and it takes the last place
     *  in the order of registration. Only a new registration allocates: one block.
     *  @param uiInterval the interval in milliseconds; with 0 nothing happens, an interval of 0 is never
     *         registered and a running registration is kept
     *  @param pkAnimatable the object to call; null is ignored. Not owned.
     *  @throws std::bad_alloc when there is no memory for a new registration; nothing has changed then
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
     *  next pass. Allocates nothing.
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
     *  from its address: the first bit leads from the top to the left or to the right, the next one from
     *  there, and so on until the animatable is met. So any registration can take the place of one above it.
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
        std::uint64_t m_uiRegistered; ///< orders those that are due at the same time
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
    std::uint64_t m_uiTime;          ///< when the clock was last read; its lower half is what the clock said
    std::uint64_t m_uiRegistrations; ///< how many there have been
    AnimationCallback_t* m_pkRoot;   ///< the top of the tree of registrations
};

inline CGUITimer& CGUITimer::ms_kTimer = CGUITimer::ms_kTimerStorage.m_tObject;

/** The framework's one timer. */
#define GETTIMER CGUITimer::GetInstance()

#endif
