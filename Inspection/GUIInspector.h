// SPDX-License-Identifier: MIT
#ifndef INSPECTION_GUIINSPECTOR_H
#define INSPECTION_GUIINSPECTOR_H

/** @file
 *  Looks into a dialog manager and the framework around it while they work.
 */

#include "Scenario/StateReader.h"

#include <cstdint>

/** What an application knows of its heap, in bytes. */
struct HeapFigures_t
{
    eC_UInt m_uiUsed = 0; ///< now
    eC_UInt m_uiMost = 0; ///< the most so far
    eC_UInt m_uiSize = 0; ///< what there is
};

/** Reads everything about a manager, and changes nothing:
 *
 *      CGUIInspector kInspector(kManager);
 *
 *  It is the friend that the manager needs, with the operations of CGUIStateAccess. It allocates nothing.
 */
class CGUIInspector : public CGUIStateAccess
{
public:
    /** Tells the figures of a heap. */
    using HeapFunction_t = HeapFigures_t (*)();

    /** Whether a fingerprint depends on when timers are due. */
    enum ETimes : unsigned char
    {
        TIMES_EXACT,  ///< two states differ when a display time was restarted
        TIMES_IGNORED ///< a time runs or it does not
    };

    /** @param kManager any manager; not owned, outlives the inspector */
    explicit CGUIInspector(const CGUIDialogManager& kManager) : m_kManager(kManager), m_pfnHeap(nullptr) {}

    const CGUIDialogManager& GetManager() const { return m_kManager; }

    /** Lets the application tell the figures of its heap. @param pfnHeap null: there are none */
    void SetHeap(HeapFunction_t pfnHeap) { m_pfnHeap = pfnHeap; }

    /** @return true when the application tells them */
    eC_Bool GetHeap(HeapFigures_t& kFiguresOUT) const;

    /** Visits the items of the state (see VisitState). */
    void Visit(eC_UInt uiParts, CStateVisitor& kVisitor) const { VisitState(m_kManager, uiParts, kVisitor); }

    /** @return a number that is the same for equal states and, as good as always, another one for others. The
     *          passing of time alone does not change it.
     */
    std::uint64_t GetFingerprint(eC_UInt uiParts, ETimes eTimes = TIMES_EXACT) const;

private:
    const CGUIDialogManager& m_kManager;
    HeapFunction_t m_pfnHeap;
};

#endif
