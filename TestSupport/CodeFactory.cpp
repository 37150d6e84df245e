// SPDX-License-Identifier: MIT
#include "TestSupport/CodeFactory.h"

#include "Core/Control/GUIObject.h"
#include "Core/GUITrace.h"
#include "Scenario/ObjectTree.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace
{
constexpr int ciDeliberateInt = 7;
}

void ThrowFailure(EFailure eFailure)
{
    if (eFailure == FAILURE_INT)
    {
        throw ciDeliberateInt;
    }
    if (eFailure == FAILURE_EXCEPTION)
    {
        throw std::runtime_error("deliberate failure");
    }
}

void CCodeFactory::RegisterBuilder(const std::string& kPath, Builder_t kBuilder)
{
    Unregister(kPath);
    m_kBuilders.push_back({kPath, std::move(kBuilder)});
}

void CCodeFactory::RegisterTree(const std::string& kPath, const std::string& kTree)
{
    const CObjectTree kObjectTree(kTree);
    // Build it once now: a wrong class or attribute should fail here, not in the middle of a test.
    delete kObjectTree.Build();
    RegisterBuilder(kPath, [kObjectTree] { return kObjectTree.Build(); });
}

void CCodeFactory::Unregister(const std::string& kPath)
{
    m_kBuilders.erase(std::remove_if(m_kBuilders.begin(), m_kBuilders.end(),
                                     [&kPath](const NamedBuilder_t& kBuilder)
                                     { return kBuilder.m_kPath == kPath; }),
                      m_kBuilders.end());
}

void CCodeFactory::FailLoad(eC_UInt uiLoad, EFailure eFailure)
{
    m_kFailures.push_back({GetLoads() + uiLoad, eFailure});
}

CGUIObject* CCodeFactory::Read(const eC_String& kPath)
{
    const std::string kSought = kPath.GetText();
    m_kLoads.push_back(kSought);
    for (const Failure_t& kFailure : m_kFailures)
    {
        if (kFailure.m_uiLoad == GetLoads())
        {
            ThrowFailure(kFailure.m_eFailure);
            return nullptr;
        }
    }
    const Builder_t* pkBuilder = FindBuilder(kSought);
    if (pkBuilder == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR, "CCodeFactory::Read: There is no builder for " + kPath + ".\n");
        return nullptr;
    }
    const Builder_t kBuilder = *pkBuilder; // the builder may register others
    return kBuilder();
}

eC_UInt CCodeFactory::GetLoads(const std::string& kPath) const
{
    return static_cast<eC_UInt>(std::count(m_kLoads.begin(), m_kLoads.end(), kPath));
}

const CCodeFactory::Builder_t* CCodeFactory::FindBuilder(const std::string& kPath) const
{
    for (const NamedBuilder_t& kBuilder : m_kBuilders)
    {
        if (kBuilder.m_kPath == kPath)
        {
            return &kBuilder.m_kBuilder;
        }
    }
    return nullptr;
}
