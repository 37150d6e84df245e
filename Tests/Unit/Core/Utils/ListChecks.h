// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_CORE_UTILS_LISTCHECKS_H
#define TESTS_UNIT_CORE_UTILS_LISTCHECKS_H

/** @file
 *  Prints lists and iterators as text, so that tests can compare them literally.
 */

#include "Core/Utils/eC_TList_doubleLinked.h"
#include "TestSupport/TestAccess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

/** @return what is wrong with the links and the quantity of a list, or the empty text */
template <typename T>
std::string FindBrokenChain(const eC_TListDoubleLinked<T>& kList)
{
    eC_UInt uiCount = 0;
    const ListNode<T>* pPrevious = nullptr;
    for (const ListNode<T>* pNode = CGUITestAccess::GetFront(kList); pNode != nullptr;
         pNode = CGUITestAccess::GetNext(*pNode))
    {
        if (pNode->m_pkPrevious != pPrevious)
        {
            return "broken: the previous link of node " + std::to_string(uiCount);
        }
        pPrevious = pNode;
        if (++uiCount > kList.GetQuantity())
        {
            return "broken: more nodes than the quantity " + std::to_string(kList.GetQuantity());
        }
    }
    if (CGUITestAccess::GetLast(kList) != pPrevious)
    {
        return "broken: the last node";
    }
    if (uiCount != kList.GetQuantity())
    {
        return "broken: fewer nodes than the quantity " + std::to_string(kList.GetQuantity());
    }
    return "";
}

/** @return what is wrong with the register of safe iterators of a list, or the empty text */
template <typename T>
std::string FindBrokenRegister(const eC_TListDoubleLinked<T>& kList)
{
    const auto kEntries = CGUITestAccess::GetRegister(kList);
    for (const eC_TSafeIterator<T>* pIterator : kEntries)
    {
        if (pIterator == nullptr)
        {
            return "broken: a null entry in the register";
        }
        if (std::count(kEntries.begin(), kEntries.end(), pIterator) != 1)
        {
            return "broken: an iterator registered twice";
        }
        if (CGUITestAccess::GetList(*pIterator) != &kList)
        {
            return "broken: an iterator registered that is attached elsewhere";
        }
    }
    if (kEntries.size() > CGUITestAccess::GetRegisterSize(kList))
    {
        return "broken: the register is too small";
    }
    return "";
}

/** @return the elements of a list from front to end, separated by blanks; "empty"; or what is broken in it */
template <typename T>
std::string Describe(const eC_TListDoubleLinked<T>& kList)
{
    std::string kBroken = FindBrokenChain(kList) + FindBrokenRegister(kList);
    if (!kBroken.empty())
    {
        return kBroken;
    }
    std::string kText;
    for (const ListNode<T>* pNode = CGUITestAccess::GetFront(kList); pNode != nullptr;
         pNode = CGUITestAccess::GetNext(*pNode))
    {
        kText += (kText.empty() ? "" : " ") + ::testing::PrintToString(pNode->m_tValue);
    }
    return kText.empty() ? "empty" : kText;
}

/** @return the element of a node, "-" for no node */
template <typename T>
std::string Describe(const ListNode<T>* pNode)
{
    return pNode != nullptr ? ::testing::PrintToString(pNode->m_tValue) : "-";
}

/** @return the iterator's element, between those that -- and ++ would lead to: "1 [2] 3" */
template <typename T>
std::string Describe(const eC_TSafeIterator<T>& kIterator)
{
    return Describe(CGUITestAccess::GetSavedPrevious(kIterator)) + " [" +
           Describe(CGUITestAccess::GetNode(kIterator)) + "] " +
           Describe(CGUITestAccess::GetSavedNext(kIterator));
}

/** @return the iterator's element: "[2]" */
template <typename T>
std::string Describe(const eC_TIterator<T>& kIterator)
{
    return "[" + Describe(CGUITestAccess::GetNode(kIterator)) + "]";
}

/** Appends values to a list. A list cannot be returned from a function, because its register cannot be
 *  copied.
 */
template <typename T>
void Fill(eC_TListDoubleLinked<T>& kList, std::initializer_list<T> kValues)
{
    for (const T& tValue : kValues)
    {
        kList.AddAtEnd(tValue);
    }
}

/** @return the int that dereferencing throws, or -1 if it throws none */
template <typename TIterator>
int GetThrownByDereferencing(const TIterator& kIterator)
{
    try
    {
        static_cast<void>(*kIterator);
    }
    catch (int iThrown)
    {
        return iThrown;
    }
    return -1;
}

#endif
