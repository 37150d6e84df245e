// SPDX-License-Identifier: MIT
#include "Tests/Model/ModelTree.h"

#include <algorithm>

CModelTree::CModelTree()
{
    Object_t kRoot;
    kRoot.m_bIsComposite = true;
    m_kObjects.push_back(kRoot);
}

bool CModelTree::IsUnder(int iObject, int iAncestor) const
{
    for (int iParent = At(iObject).m_iParent; iParent >= 0; iParent = At(iParent).m_iParent)
    {
        if (iParent == iAncestor)
        {
            return true;
        }
    }
    return false;
}

int CModelTree::Find(int iTop, int iID) const
{
    if (iID == 0)
    {
        return -1;
    }
    if (At(iTop).m_iID == iID)
    {
        return iTop;
    }
    for (const int iChild : At(iTop).m_kChildren)
    {
        const int iFound = Find(iChild, iID);
        if (iFound >= 0)
        {
            return iFound;
        }
    }
    return -1;
}

bool CModelTree::CanHaveFocus(int iObject) const
{
    if (!At(iObject).m_bIsFocusable || !At(iObject).m_bIsAlive || !IsUnder(iObject, 0))
    {
        return false;
    }
    for (int iOne = iObject; iOne >= 0; iOne = At(iOne).m_iParent)
    {
        if (At(iOne).m_bIsInvisible)
        {
            return false;
        }
    }
    return true;
}

bool CModelTree::RequestFocus(int iObject)
{
    if (!CanHaveFocus(iObject))
    {
        return false;
    }
    m_iFocus = iObject;
    return true;
}

bool CModelTree::FocusFirst(int iObject)
{
    if (RequestFocus(iObject))
    {
        return true;
    }
    const std::vector<int>& kChildren = At(iObject).m_kChildren;
    return std::any_of(kChildren.begin(), kChildren.end(), [this](int iChild) { return FocusFirst(iChild); });
}

void CModelTree::CheckFocus()
{
    if (m_iFocus >= 0 && !CanHaveFocus(m_iFocus))
    {
        m_iFocus = -1;
    }
}

void CModelTree::Detach(int iObject)
{
    if (At(iObject).m_iParent >= 0)
    {
        std::vector<int>& kSiblings = At(At(iObject).m_iParent).m_kChildren;
        kSiblings.erase(std::find(kSiblings.begin(), kSiblings.end(), iObject));
        At(iObject).m_iParent = -1;
    }
}

void CModelTree::Attach(int iObject, int iParent)
{
    Detach(iObject);
    if (iParent >= 0)
    {
        At(iParent).m_kChildren.push_back(iObject);
        At(iObject).m_iParent = iParent;
    }
    CheckFocus();
}

void CModelTree::Destroy(int iObject)
{
    Detach(iObject);
    while (!At(iObject).m_kChildren.empty())
    {
        Destroy(At(iObject).m_kChildren.front());
    }
    At(iObject).m_bIsAlive = false;
    CheckFocus();
}

void CModelTree::Hide(int iObject, bool bInvisible)
{
    At(iObject).m_bIsInvisible = bInvisible;
    CheckFocus();
}

int CModelTree::BuildShape(const Shape_t& kShape)
{
    std::vector<int> kPath;
    for (const ShapeNode_t& kNode : kShape)
    {
        const int iObject = static_cast<int>(m_kObjects.size());
        Object_t kObject;
        kObject.m_iID = kNode.m_iID;
        kObject.m_bIsComposite = kNode.m_bIsComposite;
        kObject.m_bIsFocusable = kNode.m_bIsFocusable;
        kObject.m_bIsInvisible = kNode.m_bIsInvisible;
        m_kObjects.push_back(kObject);
        kPath.resize(static_cast<std::size_t>(kNode.m_iDepth));
        if (!kPath.empty())
        {
            Attach(iObject, kPath.back());
        }
        kPath.push_back(iObject);
    }
    return kPath.front();
}

std::vector<int> CModelTree::GetLivingObjects() const
{
    std::vector<int> kObjects;
    for (std::size_t uiObject = 0; uiObject < m_kObjects.size(); ++uiObject)
    {
        if (m_kObjects[uiObject].m_bIsAlive)
        {
            kObjects.push_back(static_cast<int>(uiObject));
        }
    }
    return kObjects;
}
