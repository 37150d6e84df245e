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
        CGUIObject* pkLeading = ppkOld[uiBucket];
        while (pkLeading != nullptr)
        {
            CGUIObject* pkNext = pkLeading->m_pkNextInBucket;
            pkLeading->m_pkNextInBucket = nullptr;
            *FindLeadingBearer(pkLeading->m_eID) = pkLeading;
            pkLeading = pkNext;
        }
    }
    if (ppkOld != m_apkOwnBuckets)
    {
        delete[] ppkOld;
    }
}

void CGUIObjectIndex::Enter(CGUIObject* pkObject)
{
    CGUIObject** ppkPlace = FindLeadingBearer(pkObject->m_eID);
    CGUIObject* pkLeading = *ppkPlace;
    if (pkLeading == nullptr)
    {
        *ppkPlace = pkObject;
        pkObject->m_uiFirstSince = CGUIObject::ms_uiRaises;
    }
    else if (IsKnownAsFirst(pkLeading) && IsBefore(pkObject, pkLeading))
    {
        Lead(ppkPlace, pkObject);
    }
    else
    {
        Follow(pkLeading, pkObject);
    }
}

void CGUIObjectIndex::Leave(CGUIObject* pkObject)
{
    if (pkObject->m_pkPreviousBearer != nullptr)
    {
        LeaveBearers(pkObject);
        return;
    }
    CGUIObject** ppkPlace = FindLeadingBearer(pkObject->m_eID);
    CGUIObject* pkNextBearer = pkObject->m_pkNextBearer;
    if (pkNextBearer == nullptr)
    {
        *ppkPlace = pkObject->m_pkNextInBucket;
    }
    else
    {
        LeaveBearers(pkObject);
        pkNextBearer->m_pkNextInBucket = pkObject->m_pkNextInBucket;
        pkNextBearer->m_uiFirstSince = 0;
        *ppkPlace = pkNextBearer;
    }
    pkObject->m_pkNextInBucket = nullptr;
}

CGUIObject* CGUIObjectIndex::Find(ObjectHandle_t eID, const CGUIObject& kTop, eC_Bool bOnlyVisible)
{
    CGUIObject** ppkPlace = FindLeadingBearer(eID);
    CGUIObject* pkLeading = *ppkPlace;
    if (pkLeading == nullptr)
    {
        return nullptr;
    }
    const eC_Bool bIsWholeTree = kTop.m_pkParent == nullptr && !bOnlyVisible;
    if (pkLeading->m_pkNextBearer == nullptr)
    {
        return bIsWholeTree || IsFoundFrom(kTop, pkLeading, bOnlyVisible) ? pkLeading : nullptr;
    }
    return bIsWholeTree ? EstablishFirst(ppkPlace) : FindAmongSeveral(pkLeading, kTop, bOnlyVisible);
}

// Returns where the leading bearer of an identifier hangs, or would hang: the null at the end of its chain.
CGUIObject** CGUIObjectIndex::FindLeadingBearer(ObjectHandle_t eID) const
{
    // Identifiers in a row get places in a row, up to the next multiple of the number of places. The bits
    // above go in multiplied by the golden ratio, which spreads identifiers that are numbered in steps.
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

void CGUIObjectIndex::Lead(CGUIObject** ppkPlace, CGUIObject* pkObject)
{
    CGUIObject* pkLeading = *ppkPlace;
    pkObject->m_pkNextInBucket = pkLeading->m_pkNextInBucket;
    pkLeading->m_pkNextInBucket = nullptr;
    pkObject->m_pkNextBearer = pkLeading;
    pkLeading->m_pkPreviousBearer = pkObject;
    pkObject->m_uiFirstSince = CGUIObject::ms_uiRaises;
    *ppkPlace = pkObject;
}

void CGUIObjectIndex::Follow(CGUIObject* pkLeading, CGUIObject* pkObject)
{
    pkObject->m_pkPreviousBearer = pkLeading;
    pkObject->m_pkNextBearer = pkLeading->m_pkNextBearer;
    if (pkObject->m_pkNextBearer != nullptr)
    {
        pkObject->m_pkNextBearer->m_pkPreviousBearer = pkObject;
    }
    pkLeading->m_pkNextBearer = pkObject;
}

void CGUIObjectIndex::LeaveBearers(CGUIObject* pkObject)
{
    if (pkObject->m_pkPreviousBearer != nullptr)
    {
        pkObject->m_pkPreviousBearer->m_pkNextBearer = pkObject->m_pkNextBearer;
    }
    if (pkObject->m_pkNextBearer != nullptr)
    {
        pkObject->m_pkNextBearer->m_pkPreviousBearer = pkObject->m_pkPreviousBearer;
    }
    pkObject->m_pkPreviousBearer = nullptr;
    pkObject->m_pkNextBearer = nullptr;
}

eC_Bool CGUIObjectIndex::IsKnownAsFirst(const CGUIObject* pkLeading)
{
    if (pkLeading->m_pkNextBearer == nullptr)
    {
        return true;
    }
    const CGUIObject* pkOnPath = pkLeading;
    while (pkOnPath != nullptr && pkOnPath->m_uiRaised <= pkLeading->m_uiFirstSince)
    {
        pkOnPath = pkOnPath->m_pkParent;
    }
    return pkOnPath == nullptr;
}

CGUIObject* CGUIObjectIndex::EstablishFirst(CGUIObject** ppkPlace)
{
    CGUIObject* pkLeading = *ppkPlace;
    if (IsKnownAsFirst(pkLeading))
    {
        return pkLeading;
    }
    CGUIObject* pkFirst = pkLeading;
    for (CGUIObject* pkBearer = pkLeading->m_pkNextBearer; pkBearer != nullptr;
         pkBearer = pkBearer->m_pkNextBearer)
    {
        if (IsBefore(pkBearer, pkFirst))
        {
            pkFirst = pkBearer;
        }
    }
    if (pkFirst == pkLeading)
    {
        pkLeading->m_uiFirstSince = CGUIObject::ms_uiRaises;
    }
    else
    {
        LeaveBearers(pkFirst);
        Lead(ppkPlace, pkFirst);
    }
    return pkFirst;
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

CGUIObject* CGUIObjectIndex::FindAmongSeveral(CGUIObject* pkLeading, const CGUIObject& kTop,
                                              eC_Bool bOnlyVisible)
{
    // The subtree may be small and the bearers many, or the other way round: walk both side by side and
    // stop at the end of the shorter one.
    const CGUIObject* pkWalked = bOnlyVisible && kTop.m_bIsInvisible ? nullptr : &kTop;
    CGUIObject* pkBearer = pkLeading;
    CGUIObject* pkFirst = nullptr;
    while (pkWalked != nullptr && pkBearer != nullptr)
    {
        if (pkWalked->m_eID == pkLeading->m_eID)
        {
            return const_cast<CGUIObject*>(pkWalked);
        }
        pkWalked = pkWalked->GetNextInPreOrder(&kTop, bOnlyVisible);
        if (IsFoundFrom(kTop, pkBearer, bOnlyVisible) && (pkFirst == nullptr || IsBefore(pkBearer, pkFirst)))
        {
            pkFirst = pkBearer;
        }
        pkBearer = pkBearer->m_pkNextBearer;
    }
    return pkBearer == nullptr ? pkFirst : nullptr;
}
