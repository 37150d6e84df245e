// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIPOSTQUEUE_H
#define COMPANIONS_GUIPOSTQUEUE_H

/** @file
 *  Lets other tasks and interrupts send calls to the GUI task.
 */

#include "Core/GUIDialogManager.h"
#include "Core/Utils/eC_Types.h"

#include <atomic>
#include <cstdint>

/** A queue of calls for the GUI task: many senders, one receiver, a fixed number of places, no lock and no
 *  heap memory.
 *
 *  Any task and any interrupt may send, at the same time as others and while the GUI task processes. A sender
 *  never waits: it tries again only if another sender was faster, which has then sent. Calls run in the order
 *  in which their senders took places, so the calls of one sender run in order. A sender that is interrupted
 *  while filling its place delays the calls after it until it resumes; none is lost.
 *
 *  Everything else is for the GUI task alone. The queue must outlive its senders' use of it; what a call
 *  points to must live until the call has run.
 *
 *  Its memory is that of CGUIPostQueueOf. Nothing is logged.
 */
class CGUIPostQueue
{
public:
    /** A function that runs in the GUI task, with the three values that were sent. */
    using Function_t = void (*)(void* pContext, eC_Int iFirst, eC_Int iSecond);

    /** One place of the queue. */
    struct Place_t
    {
        std::atomic<std::uint32_t> m_uiTurn; ///< whose turn it is to use the place
        Function_t m_pfnFunction;            ///< what was sent
        void* m_pContext;                    ///< its first value
        eC_Int m_iFirst;                     ///< its second value
        eC_Int m_iSecond;                    ///< its third value
    };

    CGUIPostQueue(const CGUIPostQueue&) = delete;
    CGUIPostQueue& operator=(const CGUIPostQueue&) = delete;

    // --- For any task and any interrupt --------------------------------------------------------

    /** Sends a call. @param pfnFunction runs in the GUI task, not null
     *  @param pContext, iFirst, iSecond passed to the function
     *  @return false if all places are taken: the call is not sent, and counts as refused
     */
    eC_Bool Send(Function_t pfnFunction, void* pContext, eC_Int iFirst = 0, eC_Int iSecond = 0) noexcept;

    /** Sends CGUIDialogManager::CreateDialog. @return as Send */
    eC_Bool SendCreateDialog(CGUIDialogManager& kManager, ObjectHandle_t eID,
                             CGUIDialogManager::EOldDialogAction eAction) noexcept;

    /** Sends CGUIDialogManager::Back. @return as Send */
    eC_Bool SendBack(CGUIDialogManager& kManager, eC_Bool bDeleteObject) noexcept;

    /** Sends CGUIDialogManager::ShowPopup. @return as Send */
    eC_Bool SendShowPopup(CGUIDialogManager& kManager, ObjectHandle_t eID) noexcept;

    /** Sends CGUIDialogManager::ClosePopup. @return as Send */
    eC_Bool SendClosePopup(CGUIDialogManager& kManager, ObjectHandle_t eID) noexcept;

    /** @return how many calls were refused since the start, modulo 2 to the power of 32 */
    std::uint32_t GetNOFRefused() const noexcept { return m_uiNOFRefused.load(std::memory_order_relaxed); }

    // --- For the GUI task ----------------------------------------------------------------------

    /** Runs the calls that were sent, oldest first. A call may send more calls, which count like any other,
     *  and may process the queue itself.
     *
     *  An exception from a call passes through. That call counts as run; the ones after it run the next time.
     *  @param uiMost the most calls to run, so that a flood cannot keep the screen from being drawn
     *  @return how many were run; less than uiMost if there were no more
     */
    eC_UInt Process(eC_UInt uiMost);

    /** @return true if Process would run nothing: the main loop may sleep until an interrupt */
    eC_Bool IsEmpty() const noexcept;

protected:
    /** @param pkPlaces the places, not owned; not touched yet
     *  @param uiNOFPlaces how many; a power of two, at least 2
     */
    CGUIPostQueue(Place_t* pkPlaces, std::uint32_t uiNOFPlaces) noexcept;

    /** Marks every place as free: once, when the places exist. */
    void FreePlaces() noexcept;

    ~CGUIPostQueue() = default;

private:
    static_assert(std::atomic<std::uint32_t>::is_always_lock_free,
                  "the processor needs an atomic compare-and-swap of 32 bits");

    Place_t& GetPlace(std::uint32_t uiPosition) const noexcept
    {
        return m_pkPlaces[uiPosition & m_uiLastPlace];
    }

    Place_t* m_pkPlaces;
    std::uint32_t m_uiLastPlace;         ///< the number of places minus one
    std::uint32_t m_uiReceived;          ///< the position that is processed next
    std::atomic<std::uint32_t> m_uiSent; ///< the position that is taken next
    std::atomic<std::uint32_t> m_uiNOFRefused;
};

/** A CGUIPostQueue with its places.
 *  @tparam uiNOFPlaces how many calls it holds; a power of two, at least 2
 */
template <std::uint32_t uiNOFPlaces>
class CGUIPostQueueOf : public CGUIPostQueue
{
    static_assert(uiNOFPlaces >= 2 && uiNOFPlaces <= 0x40000000U && (uiNOFPlaces & (uiNOFPlaces - 1)) == 0,
                  "a power of two, at least 2");

public:
    /** Creates an empty queue. */
    CGUIPostQueueOf() noexcept : CGUIPostQueue(m_akPlaces, uiNOFPlaces) { FreePlaces(); }

private:
    Place_t m_akPlaces[uiNOFPlaces] = {};
};

#endif
