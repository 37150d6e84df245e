// SPDX-License-Identifier: MIT
#include "Companions/GUIPostQueue.h"

// Positions count all calls ever sent, modulo 2 to the power of 32. While a place is free, it stores the
// position for which it is free; while it holds a call, the position of that call plus one. When the call has
// been taken out, the place is free for the position one round later. The sender that advances m_uiSent owns
// the place until it stores that value.

namespace
{
CGUIDialogManager& GetDialogManager(void* pContext)
{
    return *static_cast<CGUIDialogManager*>(pContext);
}

void CreateDialog(void* pManager, eC_Int iID, eC_Int iAction)
{
    GetDialogManager(pManager).CreateDialog(static_cast<ObjectHandle_t>(iID),
                                            static_cast<CGUIDialogManager::EOldDialogAction>(iAction));
}

void Back(void* pManager, eC_Int iDeleteObject, eC_Int)
{
    GetDialogManager(pManager).Back(iDeleteObject != 0);
}

void ShowPopup(void* pManager, eC_Int iID, eC_Int)
{
    GetDialogManager(pManager).ShowPopup(static_cast<ObjectHandle_t>(iID));
}

void ClosePopup(void* pManager, eC_Int iID, eC_Int)
{
    GetDialogManager(pManager).ClosePopup(static_cast<ObjectHandle_t>(iID));
}
} // namespace

CGUIPostQueue::CGUIPostQueue(Place_t* pkPlaces, std::uint32_t uiNOFPlaces) noexcept
    : m_pkPlaces(pkPlaces),
      m_uiLastPlace(uiNOFPlaces - 1),
      // Start two rounds before the counters wrap around, so that every program passes that point early.
      m_uiReceived(0U - 2 * uiNOFPlaces),
      m_uiSent(m_uiReceived),
      m_uiNOFRefused(0)
{
}

void CGUIPostQueue::FreePlaces() noexcept
{
    for (std::uint32_t uiPlace = 0; uiPlace <= m_uiLastPlace; ++uiPlace)
    {
        GetPlace(m_uiReceived + uiPlace).m_uiTurn.store(m_uiReceived + uiPlace, std::memory_order_relaxed);
    }
}

eC_Bool CGUIPostQueue::Send(Function_t pfnFunction, void* pContext, eC_Int iFirst, eC_Int iSecond) noexcept
{
    std::uint32_t uiPosition = m_uiSent.load(std::memory_order_relaxed);
    for (;;)
    {
        const std::uint32_t uiTurn = GetPlace(uiPosition).m_uiTurn.load(std::memory_order_acquire);
        if (uiTurn == uiPosition)
        {
            // On failure uiPosition becomes the position that is next now.
            // Not covered: the failure, which takes another sender in between; ./run threads has eight
            if (m_uiSent.compare_exchange_weak(uiPosition, uiPosition + 1, std::memory_order_relaxed))
            {
                break;
            }
        }
        // Not covered: the else, which takes another sender in between; ./run threads has eight
        else if (static_cast<std::int32_t>(uiTurn - uiPosition) < 0)
        {
            // The place still holds the call of the previous round.
            m_uiNOFRefused.fetch_add(1, std::memory_order_relaxed);
            return false;
        }
        else
        {
            // Another sender has taken the position in the meantime.
            // Not covered: that other sender is not in these tests; ./run threads has eight
            uiPosition = m_uiSent.load(std::memory_order_relaxed);
        }
    }
    Place_t& kPlace = GetPlace(uiPosition);
    kPlace.m_pfnFunction = pfnFunction;
    kPlace.m_pContext = pContext;
    kPlace.m_iFirst = iFirst;
    kPlace.m_iSecond = iSecond;
    kPlace.m_uiTurn.store(uiPosition + 1, std::memory_order_release);
    return true;
}

eC_Bool CGUIPostQueue::SendCreateDialog(CGUIDialogManager& kManager, ObjectHandle_t eID,
                                        CGUIDialogManager::EOldDialogAction eAction) noexcept
{
    return Send(&CreateDialog, &kManager, eID, eAction);
}

eC_Bool CGUIPostQueue::SendBack(CGUIDialogManager& kManager, eC_Bool bDeleteObject) noexcept
{
    return Send(&Back, &kManager, bDeleteObject ? 1 : 0);
}

eC_Bool CGUIPostQueue::SendShowPopup(CGUIDialogManager& kManager, ObjectHandle_t eID) noexcept
{
    return Send(&ShowPopup, &kManager, eID);
}

eC_Bool CGUIPostQueue::SendClosePopup(CGUIDialogManager& kManager, ObjectHandle_t eID) noexcept
{
    return Send(&ClosePopup, &kManager, eID);
}

eC_UInt CGUIPostQueue::Process(eC_UInt uiMost)
{
    eC_UInt uiRun = 0;
    while (uiRun < uiMost && !IsEmpty())
    {
        Place_t& kPlace = GetPlace(m_uiReceived);
        const Function_t pfnFunction = kPlace.m_pfnFunction;
        void* const pContext = kPlace.m_pContext;
        const eC_Int iFirst = kPlace.m_iFirst;
        const eC_Int iSecond = kPlace.m_iSecond;
        // Free the place before the call, which may throw or send.
        kPlace.m_uiTurn.store(m_uiReceived + m_uiLastPlace + 1, std::memory_order_release);
        ++m_uiReceived;
        ++uiRun;
        pfnFunction(pContext, iFirst, iSecond);
    }
    return uiRun;
}

eC_Bool CGUIPostQueue::IsEmpty() const noexcept
{
    return GetPlace(m_uiReceived).m_uiTurn.load(std::memory_order_acquire) != m_uiReceived + 1;
}
