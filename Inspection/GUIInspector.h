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

    /** Whether a fingerprint depends on when timers are due. */
    enum ETimes : unsigned char
    {
        TIMES_EXACT,  ///< two states differ if a display time was restarted
        TIMES_IGNORED ///< only whether a time is running counts
    };

    /** @param kManager any manager; not owned, outlives the inspector */
    explicit CGUIInspector(const CGUIDialogManager& kManager) : m_kManager(kManager), m_pfnHeap(nullptr) {}

    /** @return the manager that it reads */
    const CGUIDialogManager& GetManager() const { return m_kManager; }

    /** Lets the application supply the figures of its heap. @param pfnHeap null: there are none */
    void SetHeap(HeapFunction_t pfnHeap) { m_pfnHeap = pfnHeap; }

    /** @return true if the application supplies them */
    eC_Bool GetHeap(HeapFigures_t& kFiguresOUT) const;

    /** Visits the items of the state (see VisitState). */
    void Visit(eC_UInt uiParts, CStateVisitor& kVisitor) const { VisitState(m_kManager, uiParts, kVisitor); }

    /** @return a number that is the same for equal states and almost certainly different for others. The
     *         passing of time alone does not change it.
     */
    std::uint64_t GetFingerprint(eC_UInt uiParts, ETimes eTimes = TIMES_EXACT) const;

private:
    const CGUIDialogManager& m_kManager;
    HeapFunction_t m_pfnHeap;
};

#endif
