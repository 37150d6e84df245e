// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_INJECTION_H
#define TESTS_TORTURE_INJECTION_H

/** @file
 *  The one failure of a run.
 */

#include "Core/GUIFactoryManager.h"
#include "TestSupport/CodeFactory.h"

#include <string>

/** What goes wrong. */
enum EInjection : unsigned char
{
    INJECTION_ALLOCATION,     ///< one allocation fails
    INJECTION_ALLOCATIONS,    ///< this one and all later ones until the command is over
    INJECTION_LOAD_NULL,      ///< the factory returns null for a dialog
    INJECTION_LOAD_INT,       ///< the factory throws an int
    INJECTION_LOAD_EXCEPTION, ///< the factory throws an std::exception
    INJECTION_HOOK_INT,       ///< a hook throws an int
    INJECTION_HOOK_EXCEPTION  ///< a hook throws an std::exception
};

constexpr eC_UInt cuiNOFInjections = INJECTION_HOOK_EXCEPTION + 1;

/** @return its name in output and on the command line */
const char* NameOfInjection(EInjection eInjection);

/** @return whether memory runs out */
constexpr bool IsAllocation(EInjection eInjection)
{
    return eInjection == INJECTION_ALLOCATION || eInjection == INJECTION_ALLOCATIONS;
}

/** @return whether a hook throws */
constexpr bool IsHook(EInjection eInjection)
{
    return eInjection == INJECTION_HOOK_INT || eInjection == INJECTION_HOOK_EXCEPTION;
}

/** @return how a load or a hook fails */
EFailure GetFailure(EInjection eInjection);

/** @return the exception as the scenario player prints it: "throws int 7"; empty if nothing is thrown */
std::string GetThrownText(EInjection eInjection);

/** What goes wrong and when: at the first, second, third, ... opportunity. */
struct Injection_t
{
    EInjection m_eKind = INJECTION_ALLOCATION;
    eC_UInt m_uiNumber = 1;
};

/** A dialog reader that makes one load of another reader fail. */
class CFaultyReader : public CGUIDialogReader
{
public:
    /** @param kReader the reader to use; not owned
     *  @param bSparesAllocations whether allocations of the other reader belong to the test and do not fail
     */
    CFaultyReader(CGUIDialogReader& kReader, bool bSparesAllocations)
        : m_kReader(kReader), m_bSparesAllocations(bSparesAllocations)
    {
    }

    /** Makes the load with that number, counted from the very first one, fail; 0: none. */
    void FailLoad(eC_UInt uiNumber, EFailure eFailure);

    /** @return whether that load was reached */
    bool HasFailed() const { return m_uiFailing != 0 && m_uiLoads >= m_uiFailing; }

    /** @return whether a load has thrown std::bad_alloc: a parser that was refused memory without an
     *         exception makes its reader throw one
     */
    bool HasRunOutOfMemory() const { return m_bHasRunOutOfMemory; }

    CGUIObject* Read(const eC_String& kPath) override;

private:
    CGUIObject* ReadUnlessMemoryRunsOut(const eC_String& kPath);

    CGUIDialogReader& m_kReader;
    bool m_bSparesAllocations;
    bool m_bHasRunOutOfMemory = false;
    eC_UInt m_uiLoads = 0;
    eC_UInt m_uiFailing = 0;
    EFailure m_eFailure = FAILURE_NULL;
};

#endif
