// SPDX-License-Identifier: MIT
#include "Core/Control/GUIObjectIndex.h"

#include "Core/Control/GUI.h"

#include <new>

CGUIObjectIndex::CGUIObjectIndex()
    : m_ppkBuckets(m_apkOwnBuckets), m_uiBucketBits(cuiOwnBucketBits), m_apkOwnBuckets()
{
}

CGUIObjectIndex::~CGUIObjectIndex()
{
    if (m_ppkBuckets != m_apkOwnBuckets)
    {
        delete[] m_ppkBuckets;
    }
}

// Returns the pointer to the head of an identifier, or the null at the end of its bucket's chain.
[[gnu::always_inline]] inline CGUIObject** CGUIObjectIndex::FindHead(ObjectHandle_t eID) const
{
    // Consecutive identifiers get consecutive buckets, up to the next multiple of the number of buckets. The
    // higher bits are multiplied by the golden ratio, which spreads identifiers that are numbered in steps.
    const eC_UInt uiID = static_cast<eC_UInt>(eID);
    const eC_UInt uiUnusedBits = 32U - m_uiBucketBits;
    const eC_UInt uiHash = (uiID << uiUnusedBits) + (uiID >> m_uiBucketBits) * 0x9E3779B9U;
    CGUIObject** ppkPlace = &m_ppkBuckets[uiHash >> uiUnusedBits];
    while (*ppkPlace != nullptr && (*ppkPlace)->m_eID != eID)
    {
        ppkPlace = &(*ppkPlace)->m_pkNextInBucket;
    }
    return ppkPlace;
}

CGUIObject** CGUIObjectIndex::FindPlace(ObjectHandle_t eID) const
{
    return FindHead(eID);
}

void CGUIObjectIndex::Reserve(eC_UInt uiNOFObjects)
{
    const eC_UInt uiNOFOldBuckets = 1U << m_uiBucketBits;
    if (uiNOFObjects <= uiNOFOldBuckets)
    {
        return;
    }
    eC_UInt uiBits = m_uiBucketBits;
    while (uiBits < cuiMaxBucketBits && (1U << uiBits) < uiNOFObjects)
    {
        ++uiBits;
    }
    CGUIObject** ppkGrown = new (std::nothrow) CGUIObject*[std::size_t{1} << uiBits]();
    if (ppkGrown == nullptr)
    {
        return;
    }
    CGUIObject** ppkOld = m_ppkBuckets;
    m_ppkBuckets = ppkGrown;
    m_uiBucketBits = uiBits;
    for (eC_UInt uiBucket = 0; uiBucket < uiNOFOldBuckets; ++uiBucket)
    {
        CGUIObject* pkHead = ppkOld[uiBucket];
        while (pkHead != nullptr)
        {
            CGUIObject* pkNext = pkHead->m_pkNextInBucket;
            pkHead->m_pkNextInBucket = nullptr;
            *FindPlace(pkHead->m_eID) = pkHead;
            pkHead = pkNext;
        }
    }
    if (ppkOld != m_apkOwnBuckets)
    {
        delete[] ppkOld;
    }
}

void CGUIObjectIndex::Enter(CGUIObject* pkObject)
{
    CGUIObject** ppkPlace = FindPlace(pkObject->m_eID);
    CGUIObject* pkHead = *ppkPlace;
    if (pkHead == nullptr)
    {
        *ppkPlace = pkObject;
        pkObject->m_uiFirstSince = CGUIObject::ms_uiRaises;
    }
    else if (IsKnownAsFirst(pkHead) && IsBefore(pkObject, pkHead))
    {
        MakeHead(ppkPlace, pkObject);
    }
    else
    {
        InsertAfterHead(pkHead, pkObject);
    }
}

void CGUIObjectIndex::Leave(CGUIObject* pkObject)
{
    if (pkObject->m_pkPreviousWithSameID != nullptr)
    {
        UnlinkFromSameID(pkObject);
        return;
    }
    CGUIObject** ppkPlace = FindPlace(pkObject->m_eID);
    CGUIObject* pkNextWithSameID = pkObject->m_pkNextWithSameID;
    if (pkNextWithSameID == nullptr)
    {
        *ppkPlace = pkObject->m_pkNextInBucket;
    }
    else
    {
        UnlinkFromSameID(pkObject);
        pkNextWithSameID->m_pkNextInBucket = pkObject->m_pkNextInBucket;
        *ppkPlace = pkNextWithSameID;
    }
    pkObject->m_pkNextInBucket = nullptr;
}

CGUIObject* CGUIObjectIndex::Find(ObjectHandle_t eID)
{
    CGUIObject** ppkPlace = FindHead(eID);
    CGUIObject* pkHead = *ppkPlace;
    return pkHead != nullptr && pkHead->m_pkNextWithSameID != nullptr ? MakeFirstTheHead(ppkPlace) : pkHead;
}

CGUIObject* CGUIObjectIndex::FindBelow(const CGUIObject& kTop, ObjectHandle_t eID, eC_Bool bOnlyVisible)
{
    CGUIObject* pkHead = *FindPlace(eID);
    if (pkHead != nullptr && pkHead->m_pkNextWithSameID != nullptr)
    {
        return FindAmongSeveral(pkHead, kTop, bOnlyVisible);
    }
    return IsFoundFrom(kTop, pkHead, bOnlyVisible) ? pkHead : nullptr;
}

void CGUIObjectIndex::MakeHead(CGUIObject** ppkPlace, CGUIObject* pkObject)
{
    CGUIObject* pkHead = *ppkPlace;
    pkObject->m_pkNextInBucket = pkHead->m_pkNextInBucket;
    pkHead->m_pkNextInBucket = nullptr;
    pkObject->m_pkNextWithSameID = pkHead;
    pkHead->m_pkPreviousWithSameID = pkObject;
    pkObject->m_uiFirstSince = CGUIObject::ms_uiRaises;
    *ppkPlace = pkObject;
}

void CGUIObjectIndex::InsertAfterHead(CGUIObject* pkHead, CGUIObject* pkObject)
{
    pkObject->m_uiFirstSince = 0; // it may be anywhere among those after it in the list
    pkObject->m_pkPreviousWithSameID = pkHead;
    pkObject->m_pkNextWithSameID = pkHead->m_pkNextWithSameID;
    if (pkObject->m_pkNextWithSameID != nullptr)
    {
        pkObject->m_pkNextWithSameID->m_pkPreviousWithSameID = pkObject;
    }
    pkHead->m_pkNextWithSameID = pkObject;
}

void CGUIObjectIndex::UnlinkFromSameID(CGUIObject* pkObject)
{
    if (pkObject->m_pkPreviousWithSameID != nullptr)
    {
        pkObject->m_pkPreviousWithSameID->m_pkNextWithSameID = pkObject->m_pkNextWithSameID;
    }
    if (pkObject->m_pkNextWithSameID != nullptr)
    {
        pkObject->m_pkNextWithSameID->m_pkPreviousWithSameID = pkObject->m_pkPreviousWithSameID;
    }
    pkObject->m_pkPreviousWithSameID = nullptr;
    pkObject->m_pkNextWithSameID = nullptr;
}

eC_Bool CGUIObjectIndex::IsKnownAsFirst(const CGUIObject* pkHead)
{
    if (pkHead->m_pkNextWithSameID == nullptr)
    {
        return true;
    }
    const CGUIObject* pkOnPath = pkHead;
    while (pkOnPath != nullptr && pkOnPath->m_uiRaised <= pkHead->m_uiFirstSince)
    {
        pkOnPath = pkOnPath->m_pkParent;
    }
    return pkOnPath == nullptr;
}

CGUIObject* CGUIObjectIndex::MakeFirstTheHead(CGUIObject** ppkPlace)
{
    CGUIObject* pkHead = *ppkPlace;
    if (IsKnownAsFirst(pkHead))
    {
        return pkHead;
    }
    CGUIObject* pkNextInBucket = pkHead->m_pkNextInBucket;
    pkHead->m_pkNextInBucket = nullptr;
    CGUIObject* pkFirst = SortInPreOrder(pkHead);
    CGUIObject* pkPrevious = nullptr;
    for (CGUIObject* pkObject = pkFirst; pkObject != nullptr; pkObject = pkObject->m_pkNextWithSameID)
    {
        pkObject->m_pkPreviousWithSameID = pkPrevious;
        pkObject->m_uiFirstSince = CGUIObject::ms_uiRaises;
        pkPrevious = pkObject;
    }
    // NOLINTNEXTLINE(clang-analyzer-core.NullDereference): the head is in the list, so there is a first one
    pkFirst->m_pkNextInBucket = pkNextInBucket;
    *ppkPlace = pkFirst;
    return pkFirst;
}

// Sorts a list by merging two and two of its runs until there is one; after a raise there are two. Only the
// pointers to the next objects are valid afterwards.
CGUIObject* CGUIObjectIndex::SortInPreOrder(CGUIObject* pkFirst)
{
    eC_Bool bIsOneRun = false;
    while (!bIsOneRun)
    {
        bIsOneRun = true;
        CGUIObject* pkRest = pkFirst;
        CGUIObject** ppkEnd = &pkFirst;
        while (pkRest != nullptr)
        {
            CGUIObject* pkOne = TakeRun(pkRest);
            CGUIObject* pkOther = TakeRun(pkRest);
            bIsOneRun = bIsOneRun && pkOther == nullptr;
            while (pkOne != nullptr || pkOther != nullptr)
            {
                const eC_Bool bIsOne = pkOther == nullptr || (pkOne != nullptr && IsBefore(pkOne, pkOther));
                CGUIObject*& pkNext = bIsOne ? pkOne : pkOther;
                *ppkEnd = pkNext;
                ppkEnd = &pkNext->m_pkNextWithSameID;
                pkNext = *ppkEnd;
            }
        }
    }
    return pkFirst;
}

// Takes as many objects from the beginning of a list as are in pre-order; none from an empty one.
CGUIObject* CGUIObjectIndex::TakeRun(CGUIObject*& pkRest)
{
    CGUIObject* const pkRun = pkRest;
    if (pkRun != nullptr)
    {
        CGUIObject* pkLast = pkRun;
        while (pkLast->m_pkNextWithSameID != nullptr && IsBefore(pkLast, pkLast->m_pkNextWithSameID))
        {
            pkLast = pkLast->m_pkNextWithSameID;
        }
        pkRest = pkLast->m_pkNextWithSameID;
        pkLast->m_pkNextWithSameID = nullptr;
    }
    return pkRun;
}

eC_Bool CGUIObjectIndex::IsBefore(const CGUIObject* pkOne, const CGUIObject* pkOther)
{
    eC_Int iDepthDifference = 0;
    for (const CGUIObject* pkObject = pkOne; pkObject != nullptr; pkObject = pkObject->m_pkParent)
    {
        ++iDepthDifference;
    }
    for (const CGUIObject* pkObject = pkOther; pkObject != nullptr; pkObject = pkObject->m_pkParent)
    {
        --iDepthDifference;
    }
    const eC_Bool bOneIsHigher = iDepthDifference < 0;
    for (; iDepthDifference > 0; --iDepthDifference)
    {
        pkOne = pkOne->m_pkParent;
    }
    for (; iDepthDifference < 0; ++iDepthDifference)
    {
        pkOther = pkOther->m_pkParent;
    }
    if (pkOne == pkOther)
    {
        return bOneIsHigher;
    }
    while (pkOne->m_pkParent != pkOther->m_pkParent)
    {
        pkOne = pkOne->m_pkParent;
        pkOther = pkOther->m_pkParent;
    }
    return pkOne->m_uiRaised < pkOther->m_uiRaised;
}

eC_Bool CGUIObjectIndex::IsFoundFrom(const CGUIObject& kTop, const CGUIObject* pkObject, eC_Bool bOnlyVisible)
{
    while (pkObject != nullptr && !(bOnlyVisible && pkObject->m_bIsInvisible))
    {
        if (pkObject == &kTop)
        {
            return true;
        }
        pkObject = pkObject->m_pkParent;
    }
    return false;
}

CGUIObject* CGUIObjectIndex::FindAmongSeveral(CGUIObject* pkHead, const CGUIObject& kTop,
                                              eC_Bool bOnlyVisible)
{
    // Either the subtree or the list of objects with the identifier may be much shorter than the other: walk
    // both in step and stop at the end of the shorter one.
    const CGUIObject* pkWalked = bOnlyVisible && kTop.m_bIsInvisible ? nullptr : &kTop;
    CGUIObject* pkCandidate = pkHead;
    CGUIObject* pkFirst = nullptr;
    while (pkWalked != nullptr && pkCandidate != nullptr)
    {
        if (pkWalked->m_eID == pkHead->m_eID)
        {
            return const_cast<CGUIObject*>(pkWalked);
        }
        pkWalked = pkWalked->GetNextInPreOrder(&kTop, bOnlyVisible);
        if (IsFoundFrom(kTop, pkCandidate, bOnlyVisible) &&
            (pkFirst == nullptr || IsBefore(pkCandidate, pkFirst)))
        {
            pkFirst = pkCandidate;
        }
        pkCandidate = pkCandidate->m_pkNextWithSameID;
    }
    return pkCandidate == nullptr ? pkFirst : nullptr;
}
