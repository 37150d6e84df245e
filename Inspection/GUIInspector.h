// SPDX-License-Identifier: MIT
#ifndef INSPECTION_GUIINSPECTOR_H
#define INSPECTION_GUIINSPECTOR_H

/** @file
 *  Reads the state of a dialog manager and its framework while they run.
 */

#include "Scenario/StateReader.h"

#include <cstdint>

/** Heap figures supplied by the application, in bytes. */
struct HeapFigures_t
{
    eC_UInt m_uiUsed = 0; ///< in use now
    eC_UInt m_uiMost = 0; ///< the most in use so far
    eC_UInt m_uiSize = 0; ///< the size of the heap
};

/** How long a hook took for a dialog or popup, supplied by the application. */
struct HookTime_t
{
    const eC_Char* m_pcHook = nullptr; ///< the hook's name, for example "OnDialogActivation"
    ObjectHandle_t m_eID = NO_HANDLE;  ///< the dialog or popup
    eC_UInt m_uiCalls = 0;             ///< how often it was called
    eC_UInt m_uiLongest = 0;           ///< the longest call, in a unit of the application's choice
    eC_UInt m_uiTotal = 0;             ///< all calls, in the same unit
};

/** Reads everything about a manager, and changes nothing:
 *
 *      CGUIInspector kInspector(kManager);
 *
 *  It reads private state through CGUIStateAccess, a friend of the manager. It allocates nothing.
 */
class CGUIInspector : public CGUIStateAccess
{
public:
    /** Returns the figures of a heap. */
    using HeapFunction_t = HeapFigures_t (*)();

    /** Sets the time at a position, counted from 0, and returns true; returns false if there are no more. */
    using HookTimeFunction_t = eC_Bool (*)(eC_UInt uiPosition, HookTime_t& kTimeOUT);

    /** Whether a fingerprint depends on when timers are due. */
    enum ETimes : unsigned char
    {
        TIMES_EXACT,  ///< two states differ if a display time was restarted
        TIMES_IGNORED ///< only whether a time is running counts
    };

    /** @param kManager any manager; not owned, outlives the inspector */
    explicit CGUIInspector(const CGUIDialogManager& kManager)
        : m_kManager(kManager), m_pfnHeap(nullptr), m_pfnHookTimes(nullptr)
    {
    }

    /** @return the manager that it reads */
    const CGUIDialogManager& GetManager() const { return m_kManager; }

    /** Lets the application supply the figures of its heap. @param pfnHeap null: there are none */
    void SetHeap(HeapFunction_t pfnHeap) { m_pfnHeap = pfnHeap; }

    /** @return true if the application supplies them */
    eC_Bool GetHeap(HeapFigures_t& kFiguresOUT) const;

    /** Lets the application supply how long its hooks took. @param pfnHookTimes null: there are none */
    void SetHookTimes(HookTimeFunction_t pfnHookTimes) { m_pfnHookTimes = pfnHookTimes; }

    /** @return true if the application supplies a time at that position */
    eC_Bool GetHookTime(eC_UInt uiPosition, HookTime_t& kTimeOUT) const
    {
        return m_pfnHookTimes != nullptr && m_pfnHookTimes(uiPosition, kTimeOUT);
    }

    /** Visits the items of the state (see VisitState). */
    void Visit(eC_UInt uiParts, CStateVisitor& kVisitor) const { VisitState(m_kManager, uiParts, kVisitor); }

    /** @return a number that is the same for equal states and almost certainly different for others. The
     *         passing of time alone does not change it.
     */
    std::uint64_t GetFingerprint(eC_UInt uiParts, ETimes eTimes = TIMES_EXACT) const;

private:
    const CGUIDialogManager& m_kManager;
    HeapFunction_t m_pfnHeap;
    HookTimeFunction_t m_pfnHookTimes;
};

#endif
