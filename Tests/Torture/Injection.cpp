// SPDX-License-Identifier: MIT
#include "Tests/Torture/Injection.h"

#include "Tests/AllocationCounter/AllocationCounter.h"

#include <new>

const char* NameOfInjection(EInjection eInjection)
{
    static const char* const s_apcNames[cuiNOFInjections] = {
        "allocation", "allocations", "load-null", "load-int", "load-exception", "hook-int", "hook-exception"};
    return s_apcNames[eInjection];
}

EFailure GetFailure(EInjection eInjection)
{
    switch (eInjection)
    {
    case INJECTION_LOAD_INT:
    case INJECTION_HOOK_INT:
        return FAILURE_INT;
    case INJECTION_LOAD_EXCEPTION:
    case INJECTION_HOOK_EXCEPTION:
        return FAILURE_EXCEPTION;
    default:
        return FAILURE_NULL;
    }
}

std::string GetThrownText(EInjection eInjection)
{
    if (IsAllocation(eInjection))
    {
        return "throws std::bad_alloc";
    }
    switch (GetFailure(eInjection))
    {
    case FAILURE_INT:
        return "throws int 7";
    case FAILURE_EXCEPTION:
        return "throws deliberate failure";
    default:
        return std::string();
    }
}

void CFaultyReader::FailLoad(eC_UInt uiNumber, EFailure eFailure)
{
    m_uiFailing = uiNumber;
    m_eFailure = eFailure;
}

CGUIObject* CFaultyReader::Read(const eC_String& kPath)
{
    ++m_uiLoads;
    if (m_uiLoads == m_uiFailing)
    {
        ThrowFailure(m_eFailure);
        return nullptr;
    }
    if (m_bSparesAllocations)
    {
        const CAllocationFailureScope kSpared(false);
        return m_kReader.Read(kPath);
    }
    return ReadUnlessMemoryRunsOut(kPath);
}

CGUIObject* CFaultyReader::ReadUnlessMemoryRunsOut(const eC_String& kPath)
{
    try
    {
        return m_kReader.Read(kPath);
    }
    catch (const std::bad_alloc&)
    {
        m_bHasRunOutOfMemory = true;
        throw;
    }
}
