// SPDX-License-Identifier: MIT
#include "Benchmarks/HandWritten.h"

CHandWrittenScreens::~CHandWrittenScreens()
{
    std::vector<HandWrittenObject_t*> kScreens;
    for (const auto& kIndexed : m_kIndex)
    {
        if (kIndexed.second->m_pkParent == nullptr)
        {
            kScreens.push_back(kIndexed.second);
        }
    }
    for (HandWrittenObject_t* pkScreen : kScreens)
    {
        Destroy(pkScreen);
    }
}

void CHandWrittenScreens::SwitchTo(int iID, EOldScreen eOldScreen)
{
    HandWrittenObject_t* pkScreen = Obtain(iID);
    if (m_pkCurrent != nullptr)
    {
        m_kHistory.push_back({m_pkCurrent->m_iID, eOldScreen, GetFocussedID()});
        if (eOldScreen == DESTROY)
        {
            Destroy(m_pkCurrent);
        }
        else if (eOldScreen == HIDE)
        {
            m_pkCurrent->m_bIsInvisible = true;
        }
    }
    pkScreen->m_bIsInvisible = false;
    m_pkCurrent = pkScreen;
    m_pkFocussed = pkScreen->m_pkFirstChild;
}

void CHandWrittenScreens::Back(bool bDestroy)
{
    const Entry_t kEntry = m_kHistory.back();
    m_kHistory.pop_back();
    if (bDestroy)
    {
        Destroy(m_pkCurrent);
    }
    else
    {
        m_pkCurrent->m_bIsInvisible = true;
    }
    m_pkCurrent = Obtain(kEntry.m_iScreenID);
    m_pkCurrent->m_bIsInvisible = false;
    m_pkFocussed = Find(kEntry.m_iFocussedID);
}

void CHandWrittenScreens::HideRecorded()
{
    for (const Entry_t& kEntry : m_kHistory)
    {
        HandWrittenObject_t* pkScreen = Find(kEntry.m_iScreenID);
        if (!pkScreen->m_bIsInvisible)
        {
            pkScreen->m_bIsInvisible = true;
        }
    }
}

HandWrittenObject_t* CHandWrittenScreens::Find(int iID) const
{
    const auto kFound = m_kIndex.find(iID);
    return kFound != m_kIndex.end() ? kFound->second : nullptr;
}

HandWrittenObject_t* CHandWrittenScreens::Obtain(int iID)
{
    HandWrittenObject_t* pkScreen = Find(iID);
    return pkScreen != nullptr ? pkScreen : Build(iID, cuiObjectsPerScreen, cuiButtonsPerScreen);
}

HandWrittenObject_t* CHandWrittenScreens::Build(int iID, unsigned uiObjects, unsigned uiButtons)
{
    HandWrittenObject_t* pkScreen = new HandWrittenObject_t;
    pkScreen->m_iID = iID;
    m_kIndex.emplace(iID, pkScreen);
    for (unsigned uiButton = 0; uiButton < uiButtons; ++uiButton)
    {
        HandWrittenObject_t* pkButton = AddChild(*pkScreen, iID + 1 + static_cast<int>(uiButton));
        pkButton->m_bIsFocusable = true;
        m_kIndex.emplace(pkButton->m_iID, pkButton);
    }
    for (unsigned uiObject = 1 + uiButtons; uiObject < uiObjects; ++uiObject)
    {
        AddChild(*pkScreen, 0);
    }
    return pkScreen;
}

HandWrittenObject_t* CHandWrittenScreens::AddChild(HandWrittenObject_t& kParent, int iID)
{
    HandWrittenObject_t* pkChild = new HandWrittenObject_t;
    pkChild->m_iID = iID;
    pkChild->m_pkParent = &kParent;
    (kParent.m_pkLastChild != nullptr ? kParent.m_pkLastChild->m_pkNextSibling : kParent.m_pkFirstChild) =
        pkChild;
    kParent.m_pkLastChild = pkChild;
    return pkChild;
}

void CHandWrittenScreens::Destroy(HandWrittenObject_t* pkScreen)
{
    HandWrittenObject_t* pkChild = pkScreen->m_pkFirstChild;
    while (pkChild != nullptr)
    {
        HandWrittenObject_t* pkNext = pkChild->m_pkNextSibling;
        if (pkChild->m_iID != 0)
        {
            m_kIndex.erase(pkChild->m_iID);
        }
        delete pkChild;
        pkChild = pkNext;
    }
    m_kIndex.erase(pkScreen->m_iID);
    delete pkScreen;
}
