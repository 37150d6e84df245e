// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIWATCH_H
#define COMPANIONS_GUIWATCH_H

/** @file
 *  Measures how long the hooks of a dialog manager take.
 */

#include "Core/Control/GUIObject.h"
#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

#include <utility>

/** Says who made the screen stand still: the time that each hook takes, by hook and by dialog or popup, with
 *  a limit. CGUIWatchedManager measures, see there.
 *
 *  The time of a hook is its own. If it calls the manager, the hooks called meanwhile count for themselves,
 *  and what the manager and the loaders do counts for the hook around. A hook that throws is measured too.
 *
 *  It has places for a number of pairs of hook and identifier, see CGUIWatchOf, and keeps those that took
 *  longest: a new pair replaces the one with the shortest longest time if it took longer than that, otherwise
 *  it is not kept. It allocates nothing except for what is logged.
 */
class CGUIWatch
{
public:
    /** A hook of the manager. */
    enum EHook : unsigned char
    {
        CREATE_DIALOG_IMPL,
        ON_DIALOG_ADDED,
        ON_DIALOG_ACTIVATION,
        ON_DIALOG_DEACTIVATION,
        ON_DIALOG_DELETION,
        ON_AFTER_DIALOG_DELETION, ///< by the dialog that was left
        ON_LAST_DIALOG_DELETION,  ///< of no dialog, NO_HANDLE
        ON_POPUP_ACTIVATION,
        ON_POPUP_DEACTIVATION,
        CREATE_POPUP_IMPL
    };

    /** The time of a hook for a dialog or popup, in units of the clock. */
    struct Figures_t
    {
        EHook m_eHook = CREATE_DIALOG_IMPL; ///< the hook
        ObjectHandle_t m_eID = NO_HANDLE;   ///< the dialog or popup
        eC_UInt m_uiCalls = 0;              ///< since the pair is kept; 0 for a free place
        eC_UInt m_uiLongest = 0;            ///< the longest call
        eC_UInt m_uiTotal = 0;              ///< of all calls, at most 0xFFFFFFFF
    };

    /** A clock that counts up and may wrap around. */
    using Clock_t = eC_UInt (*)();

    /** Gets notified of a hook that took longer than the limit.
     *  @param pContext what was given with it
     *  @param uiTime the hook's time, in units of the clock
     */
    using Report_t = void (*)(void* pContext, EHook eHook, ObjectHandle_t eID, eC_UInt uiTime);

    CGUIWatch(const CGUIWatch&) = delete;
    CGUIWatch& operator=(const CGUIWatch&) = delete;

    /** Sets the clock; outside hooks.
     *  @param pfnClock for example a cycle counter; null for the milliseconds of the timer, as at first
     */
    void SetClock(Clock_t pfnClock) { m_pfnClock = pfnClock; }

    /** Sets the limit. A hook that takes longer is logged as a WARNING, then reported. Both happen after the
     *  hook; what they throw is lost, so that a watch never changes what a hook does.
     *  @param uiLimit in units of the clock; 0xFFFFFFFF for none, as at first
     *  @param pfnReport null to log only; it may call the manager as the hook may
     *  @param pContext passed to it
     */
    void SetLimit(eC_UInt uiLimit, Report_t pfnReport = nullptr, void* pContext = nullptr);

    /** Reads the figures.
     *  @param uiPosition from 0; the order has no meaning
     *  @param kFiguresOUT is set, or left as it is
     *  @return false if there are no more
     */
    eC_Bool GetFigures(eC_UInt uiPosition, Figures_t& kFiguresOUT) const;

    /** Forgets all figures. */
    void Clear();

    /** @return the hook's name, for example "OnDialogActivation" */
    static const eC_Char* GetHookName(EHook eHook);

    /** Measures a hook as long as it exists. CGUIWatchedManager uses it; around other code it measures that
     *  as if it were the hook.
     */
    class CMeasurement
    {
    public:
        /** @param pkWatch null: nothing is measured */
        CMeasurement(CGUIWatch* pkWatch, EHook eHook, ObjectHandle_t eID);
        CMeasurement(const CMeasurement&) = delete;
        CMeasurement& operator=(const CMeasurement&) = delete;
        ~CMeasurement();

    private:
        CGUIWatch* m_pkWatch;
        CMeasurement* m_pkOuter = nullptr;
        eC_UInt m_uiStart = 0;
        eC_UInt m_uiNested = 0; ///< the time of the hooks inside
        ObjectHandle_t m_eID;
        EHook m_eHook;
    };

protected:
    /** @param pkPlaces the places, not owned; not touched before the first hook
     *  @param uiNOFPlaces how many, at least 1
     */
    CGUIWatch(Figures_t* pkPlaces, eC_UInt uiNOFPlaces) : m_pkPlaces(pkPlaces), m_uiNOFPlaces(uiNOFPlaces) {}
    ~CGUIWatch() = default;

private:
    eC_UInt ReadClock() const;
    void Note(EHook eHook, ObjectHandle_t eID, eC_UInt uiTime);
    Figures_t* FindPlace(EHook eHook, ObjectHandle_t eID, eC_UInt uiTime);
    void Report(EHook eHook, ObjectHandle_t eID, eC_UInt uiTime) const;

    Figures_t* m_pkPlaces;
    eC_UInt m_uiNOFPlaces;
    Clock_t m_pfnClock = nullptr;
    CMeasurement* m_pkInnermost = nullptr;
    Report_t m_pfnReport = nullptr;
    void* m_pContext = nullptr;
    eC_UInt m_uiLimit = 0xFFFFFFFFU;
};

/** A CGUIWatch with its places.
 *  @tparam uiMost how many pairs of hook and identifier it keeps, at least 1
 */
template <eC_UInt uiMost>
class CGUIWatchOf : public CGUIWatch
{
    static_assert(uiMost > 0, "room for a hook at least");

public:
    CGUIWatchOf() : CGUIWatch(m_akPlaces, uiMost) {}

private:
    Figures_t m_akPlaces[uiMost];
};

/** A manager that behaves as the application's class does, and has its hooks measured:
 *
 *      CGUIWatchedManager<CMyDialogManager> kManager(...); // as CMyDialogManager kManager(...);
 *      kManager.SetWatch(&kWatch);
 *
 *  Without a watch, each hook costs one comparison. TManager is CGUIDialogManager or derived from it, with or
 *  without listeners; it must not hide the hooks or declare them final.
 */
template <typename TManager>
class CGUIWatchedManager : public TManager
{
public:
    /** Takes what TManager takes. */
    template <typename... Arguments_t>
    explicit CGUIWatchedManager(Arguments_t&&... tArguments)
        : TManager(std::forward<Arguments_t>(tArguments)...)
    {
    }

    /** Sets the watch; outside hooks. @param pkWatch not owned; null: none, as at first */
    void SetWatch(CGUIWatch* pkWatch) { m_pkWatch = pkWatch; }

protected:
    /** Calls the hook of TManager and measures how long it takes.
     *  @{
     */
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) const override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::CREATE_DIALOG_IMPL, eID);
        return TManager::CreateDialogImpl(eID, bAllowDeletionOUT, bRecoverFocusOUT);
    }

    void OnDialogAdded(CGUIObject* pDialog) override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::ON_DIALOG_ADDED, pDialog->GetID());
        TManager::OnDialogAdded(pDialog);
    }

    void OnDialogActivation(CGUIObject* pDialog) override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::ON_DIALOG_ACTIVATION,
                                                   pDialog->GetID());
        TManager::OnDialogActivation(pDialog);
    }

    void OnDialogDeactivation(CGUIObject* pDialog) override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::ON_DIALOG_DEACTIVATION,
                                                   pDialog->GetID());
        TManager::OnDialogDeactivation(pDialog);
    }

    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::ON_DIALOG_DELETION,
                                                   pDialog->GetID());
        return TManager::OnDialogDeletion(pDialog);
    }

    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::ON_AFTER_DIALOG_DELETION,
                                                   eDeletedDialogID);
        TManager::OnAfterDialogDeletion(eDeletedDialogID, eNewDialogID);
    }

    void OnLastDialogDeletion() override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::ON_LAST_DIALOG_DELETION, NO_HANDLE);
        TManager::OnLastDialogDeletion();
    }

    void OnPopupActivation(CGUIObject* pPopup) override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::ON_POPUP_ACTIVATION,
                                                   pPopup->GetID());
        TManager::OnPopupActivation(pPopup);
    }

    void OnPopupDeactivation(CGUIObject* pPopup) override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::ON_POPUP_DEACTIVATION,
                                                   pPopup->GetID());
        TManager::OnPopupDeactivation(pPopup);
    }

    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override
    {
        const CGUIWatch::CMeasurement kMeasurement(m_pkWatch, CGUIWatch::CREATE_POPUP_IMPL, eID);
        return TManager::CreatePopupImpl(eID);
    }
    /** @} */

private:
    CGUIWatch* m_pkWatch = nullptr;
};

#endif
