// SPDX-License-Identifier: MIT
#include "Flow/FlowHandles.h"

#include <array>
#include <deque>

namespace
{
// No file can contain this name, so it is never found.
constexpr const eC_Char* cpcUnused = "\x01";

std::array<ObjectHandleName_t, cuiMostFlowHandles> MakeTable()
{
    std::array<ObjectHandleName_t, cuiMostFlowHandles> kTable{};
    for (eC_UInt uiLine = 0; uiLine < cuiMostFlowHandles; ++uiLine)
    {
        kTable[uiLine] = {cpcUnused, static_cast<ObjectHandle_t>(uiLine + 1)};
    }
    return kTable;
}

std::array<ObjectHandleName_t, cuiMostFlowHandles> s_kTable = MakeTable();
eC_UInt s_uiUsed = 0;

/** The names, which never move. */
std::deque<std::string>& GetNames()
{
    static std::deque<std::string> s_kNames;
    return s_kNames;
}
} // namespace

const ObjectHandleName_t* const cpkApplicationHandles = s_kTable.data();
const eC_UInt cuiNOFApplicationHandles = cuiMostFlowHandles;
const eC_UInt cuiNOFObjectHandles = cuiNOFFrameworkHandles + cuiMostFlowHandles;

ObjectHandle_t GetFlowHandle(const std::string& kName)
{
    ObjectHandle_t eHandle = NO_HANDLE;
    if (GetObjectHandleByName(kName.c_str(), eHandle) || s_uiUsed == cuiMostFlowHandles)
    {
        return eHandle;
    }
    GetNames().push_back(kName);
    ObjectHandleName_t& kLine = s_kTable[s_uiUsed++];
    kLine.m_pcName = GetNames().back().c_str();
    return kLine.m_eHandle;
}

eC_Bool IsHandleName(const std::string& kText)
{
    constexpr const eC_Char* cpcFirst = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_";
    const std::string kOthers = std::string(cpcFirst) + "0123456789";
    return !kText.empty() && std::string(cpcFirst).find(kText.front()) != std::string::npos &&
           kText.find_first_not_of(kOthers) == std::string::npos;
}
