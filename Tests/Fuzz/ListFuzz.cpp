// SPDX-License-Identifier: MIT
/** @file
 *  Compares the list and its safe iterators with plain vectors, where nodes are numbers and every change
 *  notifies all iterators in a loop.
 */

#include "Core/Utils/eC_TList_doubleLinked.h"
#include "TestSupport/TestAccess.h"
#include "Tests/Fuzz/FuzzTarget.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace
{
constexpr unsigned int cuiLists = 2;
constexpr unsigned int cuiIterators = 7; // more than the register holds before it grows
constexpr unsigned int cuiKeys = 5;
constexpr std::size_t cuiLongestList = 40;
constexpr int ciMostSteps = 200;
constexpr int ciNone = -1;

/** Compared and ordered by the key alone; the serial number distinguishes equal values. */
struct Value_t
{
    int m_iKey = 0;
    int m_iSerial = 0;

    bool operator==(const Value_t& kOther) const { return m_iKey == kOther.m_iKey; }
    bool operator>(const Value_t& kOther) const { return m_iKey > kOther.m_iKey; }
};

using List_t = eC_TListDoubleLinked<Value_t>;

std::string Print(const Value_t& kValue)
{
    return std::to_string(kValue.m_iKey) + "#" + std::to_string(kValue.m_iSerial);
}

std::string PrintFlag(bool bFlag)
{
    return bFlag ? "true" : "false";
}

// --- The model ----------------------------------------------------------------------------------------

class CModelList;

/** Nodes are numbers that are never reused; ciNone means none. */
struct ModelIterator_t
{
    CModelList* m_pkList = nullptr;
    int m_iNode = ciNone;
    int m_iNext = ciNone;
    int m_iPrevious = ciNone;
};

class CModelList
{
public:
    std::size_t GetQuantity() const { return m_kNodes.size(); }
    const Value_t& GetValue(std::size_t uiPlace) const { return m_kNodes[uiPlace].m_kValue; }
    std::vector<Value_t> GetValues() const;
    std::size_t Find(int iKey) const;
    std::size_t FindNode(int iNode) const;
    int GetNodeAt(std::size_t uiPlace) const
    {
        return uiPlace < m_kNodes.size() ? m_kNodes[uiPlace].m_iNumber : ciNone;
    }
    int GetNext(int iNode) const { return GetNodeAt(FindNode(iNode) + 1); }
    int GetPrevious(int iNode) const { return GetNodeAt(FindNode(iNode) - 1); }
    std::size_t FindSortedPlace(const Value_t& kValue) const;

    void Insert(std::size_t uiPlace, const Value_t& kValue);
    void Remove(std::size_t uiPlace);
    void Clear();
    void Swap(std::size_t uiFirst, std::size_t uiSecond);
    void Reverse();

    /** Orders the nodes by the serial numbers of these values. */
    void SetOrder(const std::vector<Value_t>& kValues);

    /** Appends an iterator, or removes it. */
    void Register(ModelIterator_t* pkIterator) { m_kRegister.push_back(pkIterator); }
    void Unregister(ModelIterator_t* pkIterator);
    const std::vector<ModelIterator_t*>& GetRegister() const { return m_kRegister; }

    int m_iCursor = ciNone;       ///< of the list's own iteration
    bool m_bCursorIsLost = false; ///< its node was removed, so it must not be used

private:
    struct Node_t
    {
        int m_iNumber;
        Value_t m_kValue;
    };

    void TellRemoved(const ModelIterator_t& kRemoved);
    void TellAdded(const ModelIterator_t& kAdded);

    std::vector<Node_t> m_kNodes;
    std::vector<ModelIterator_t*> m_kRegister;
    static int ms_iLastNumber;
};

int CModelList::ms_iLastNumber = 0;

std::vector<Value_t> CModelList::GetValues() const
{
    std::vector<Value_t> kValues;
    for (const Node_t& kNode : m_kNodes)
    {
        kValues.push_back(kNode.m_kValue);
    }
    return kValues;
}

std::size_t CModelList::Find(int iKey) const
{
    std::size_t uiPlace = 0;
    while (uiPlace < m_kNodes.size() && m_kNodes[uiPlace].m_kValue.m_iKey != iKey)
    {
        ++uiPlace;
    }
    return uiPlace;
}

std::size_t CModelList::FindNode(int iNode) const
{
    std::size_t uiPlace = 0;
    while (uiPlace < m_kNodes.size() && m_kNodes[uiPlace].m_iNumber != iNode)
    {
        ++uiPlace;
    }
    return uiPlace;
}

/** A value greater than the last one goes after it, any other one before the first that is not less. */
std::size_t CModelList::FindSortedPlace(const Value_t& kValue) const
{
    if (m_kNodes.empty() || kValue.m_iKey > m_kNodes.back().m_kValue.m_iKey)
    {
        return m_kNodes.size();
    }
    std::size_t uiPlace = 0;
    while (kValue.m_iKey > m_kNodes[uiPlace].m_kValue.m_iKey)
    {
        ++uiPlace;
    }
    return uiPlace;
}

void CModelList::Insert(std::size_t uiPlace, const Value_t& kValue)
{
    const int iNumber = ++ms_iLastNumber;
    m_kNodes.insert(m_kNodes.begin() + static_cast<std::ptrdiff_t>(uiPlace), {iNumber, kValue});
    TellAdded({this, iNumber, GetNodeAt(uiPlace + 1), GetNodeAt(uiPlace - 1)});
}

void CModelList::Remove(std::size_t uiPlace)
{
    const ModelIterator_t kRemoved = {this, GetNodeAt(uiPlace), GetNodeAt(uiPlace + 1),
                                      GetNodeAt(uiPlace - 1)};
    m_kNodes.erase(m_kNodes.begin() + static_cast<std::ptrdiff_t>(uiPlace));
    m_bCursorIsLost = m_bCursorIsLost || m_iCursor == kRemoved.m_iNode;
    TellRemoved(kRemoved);
}

void CModelList::TellAdded(const ModelIterator_t& kAdded)
{
    for (ModelIterator_t* pkIterator : m_kRegister)
    {
        if (pkIterator->m_iNode != ciNone && pkIterator->m_iNode == kAdded.m_iNext)
        {
            pkIterator->m_iPrevious = kAdded.m_iNode;
        }
        else if (pkIterator->m_iNode != ciNone && pkIterator->m_iNode == kAdded.m_iPrevious)
        {
            pkIterator->m_iNext = kAdded.m_iNode;
        }
        else if (pkIterator->m_iNode == ciNone && pkIterator->m_iPrevious == kAdded.m_iPrevious &&
                 pkIterator->m_iNext == kAdded.m_iNext)
        {
            pkIterator->m_iNode = kAdded.m_iNode;
        }
    }
}

void CModelList::TellRemoved(const ModelIterator_t& kRemoved)
{
    for (ModelIterator_t* pkIterator : m_kRegister)
    {
        if (pkIterator->m_iNode == kRemoved.m_iNode)
        {
            pkIterator->m_iNode = ciNone;
        }
        else if (pkIterator->m_iNext == kRemoved.m_iNode)
        {
            pkIterator->m_iNext = kRemoved.m_iNext;
        }
        else if (pkIterator->m_iPrevious == kRemoved.m_iNode)
        {
            pkIterator->m_iPrevious = kRemoved.m_iPrevious;
        }
    }
}

void CModelList::Clear()
{
    m_bCursorIsLost = m_bCursorIsLost || m_iCursor != ciNone;
    m_kNodes.clear();
    for (ModelIterator_t* pkIterator : m_kRegister)
    {
        *pkIterator = {this, ciNone, ciNone, ciNone};
    }
}

void CModelList::Swap(std::size_t uiFirst, std::size_t uiSecond)
{
    std::swap(m_kNodes[uiFirst].m_kValue, m_kNodes[uiSecond].m_kValue);
}

void CModelList::Reverse()
{
    std::reverse(m_kNodes.begin(), m_kNodes.end());
    for (ModelIterator_t* pkIterator : m_kRegister)
    {
        std::swap(pkIterator->m_iNext, pkIterator->m_iPrevious);
    }
}

void CModelList::SetOrder(const std::vector<Value_t>& kValues)
{
    std::vector<Node_t> kOrdered;
    for (const Value_t& kValue : kValues)
    {
        for (const Node_t& kNode : m_kNodes)
        {
            if (kNode.m_kValue.m_iSerial == kValue.m_iSerial)
            {
                kOrdered.push_back(kNode);
            }
        }
    }
    m_kNodes.swap(kOrdered);
    for (ModelIterator_t* pkIterator : m_kRegister)
    {
        const bool bStands = pkIterator->m_iNode != ciNone;
        pkIterator->m_iNext = bStands ? GetNext(pkIterator->m_iNode) : ciNone;
        pkIterator->m_iPrevious = bStands ? GetPrevious(pkIterator->m_iNode) : ciNone;
    }
}

void CModelList::Unregister(ModelIterator_t* pkIterator)
{
    m_kRegister.erase(std::remove(m_kRegister.begin(), m_kRegister.end(), pkIterator), m_kRegister.end());
}

void Attach(ModelIterator_t& kIterator, CModelList* pkList)
{
    if (kIterator.m_pkList == pkList)
    {
        return;
    }
    if (kIterator.m_pkList != nullptr)
    {
        kIterator.m_pkList->Unregister(&kIterator);
    }
    kIterator.m_pkList = pkList;
    if (pkList != nullptr)
    {
        pkList->Register(&kIterator);
    }
}

/** Puts an iterator on a position of a list; a position after the last one means no node. */
void Place(ModelIterator_t& kIterator, CModelList& kList, std::size_t uiPlace)
{
    Attach(kIterator, &kList);
    kIterator.m_iNode = kList.GetNodeAt(uiPlace);
    const bool bStands = kIterator.m_iNode != ciNone;
    kIterator.m_iNext = bStands ? kList.GetNext(kIterator.m_iNode) : ciNone;
    kIterator.m_iPrevious = bStands ? kList.GetPrevious(kIterator.m_iNode) : ciNone;
}

void StepForward(ModelIterator_t& kIterator)
{
    kIterator.m_iPrevious = kIterator.m_iNode != ciNone ? kIterator.m_iNode : kIterator.m_iPrevious;
    kIterator.m_iNode = kIterator.m_iNext;
    if (kIterator.m_iNode != ciNone)
    {
        kIterator.m_iNext = kIterator.m_pkList->GetNext(kIterator.m_iNode);
    }
}

void StepBack(ModelIterator_t& kIterator)
{
    kIterator.m_iNext = kIterator.m_iNode != ciNone ? kIterator.m_iNode : kIterator.m_iNext;
    kIterator.m_iNode = kIterator.m_iPrevious;
    if (kIterator.m_iNode != ciNone)
    {
        kIterator.m_iPrevious = kIterator.m_pkList->GetPrevious(kIterator.m_iNode);
    }
}

// --- Both side by side --------------------------------------------------------------------------------

void Expect(const std::string& kWhat, const std::string& kExpected, const std::string& kActual)
{
    if (kExpected != kActual)
    {
        Fail(kWhat + ": expected " + kExpected + " but got " + kActual);
    }
}

/** Lists and safe iterators, each with its model. */
class CStage
{
public:
    CStage();
    CStage(const CStage&) = delete;
    CStage& operator=(const CStage&) = delete;
    ~CStage() = default;

    void DoStep(CDecisions& kDecisions);
    void Check() const;

private:
    struct BothLists_t
    {
        CModelList m_kModel; ///< destroyed last, because the iterators' models are not notified of it
        std::unique_ptr<List_t> m_pkList = std::make_unique<List_t>();
    };

    struct BothIterators_t
    {
        ModelIterator_t m_kModel;
        std::unique_ptr<List_t::SafeIterator> m_pkIterator = std::make_unique<List_t::SafeIterator>();
    };

    void DoInsertion(CDecisions& kDecisions, BothLists_t& kLists);
    void InsertBeside(CDecisions& kDecisions, BothLists_t& kLists, bool bAfter);
    void DoUniqueInsertion(CDecisions& kDecisions, BothLists_t& kLists);
    void DoRemoval(CDecisions& kDecisions, BothLists_t& kLists);
    void RemoveByIterator(BothIterators_t& kIterators);
    void RemoveEvery(BothLists_t& kLists, const Value_t& kValue);
    void TakeEnd(BothLists_t& kLists, bool bFront);
    void DoOnAll(CDecisions& kDecisions, BothLists_t& kLists);
    void Sort(BothLists_t& kLists, bool bStable);
    void Swap(CDecisions& kDecisions, BothLists_t& kLists);
    void Assign(BothLists_t& kTarget, const BothLists_t& kSource);
    void Renew(BothLists_t& kLists);
    void DoWalk(BothLists_t& kLists, bool bFirst);
    void DoOnIterator(CDecisions& kDecisions, BothLists_t& kLists);
    void Copy(BothIterators_t& kTarget, const BothIterators_t& kSource, bool bConstruct);
    void CheckList(const BothLists_t& kLists) const;
    void CheckIterator(const BothIterators_t& kIterators) const;
    BothIterators_t& TakeIterator(CDecisions& kDecisions);
    Value_t MakeValue(CDecisions& kDecisions);

    BothLists_t m_akLists[cuiLists];
    std::vector<BothIterators_t> m_kIterators; ///< destroyed before the lists
    int m_iLastSerial = 0;
};

CStage::CStage() : m_kIterators(cuiIterators) {}

CStage::BothIterators_t& CStage::TakeIterator(CDecisions& kDecisions)
{
    return m_kIterators[kDecisions.TakeBelow(cuiIterators)];
}

Value_t CStage::MakeValue(CDecisions& kDecisions)
{
    return {static_cast<int>(kDecisions.TakeBelow(cuiKeys)), ++m_iLastSerial};
}

void CStage::DoStep(CDecisions& kDecisions)
{
    BothLists_t& kLists = m_akLists[kDecisions.TakeBelow(cuiLists)];
    switch (kDecisions.TakeBelow(8))
    {
    case 0:
        DoInsertion(kDecisions, kLists);
        break;
    case 1:
        DoUniqueInsertion(kDecisions, kLists);
        break;
    case 2:
    case 3:
        DoRemoval(kDecisions, kLists);
        break;
    case 4:
        DoOnAll(kDecisions, kLists);
        break;
    case 5:
        DoWalk(kLists, kDecisions.TakeBelow(3) == 0);
        break;
    default:
        DoOnIterator(kDecisions, kLists);
        break;
    }
}

void CStage::DoInsertion(CDecisions& kDecisions, BothLists_t& kLists)
{
    if (kLists.m_kModel.GetQuantity() >= cuiLongestList)
    {
        return;
    }
    const unsigned int uiKind = kDecisions.TakeBelow(5);
    if (uiKind >= 3)
    {
        InsertBeside(kDecisions, kLists, uiKind == 4);
        return;
    }
    const Value_t kValue = MakeValue(kDecisions);
    switch (uiKind)
    {
    case 0:
        ShowStep("Add " + Print(kValue));
        kLists.m_pkList->Add(kValue);
        kLists.m_kModel.Insert(0, kValue);
        break;
    case 1:
        ShowStep("AddAtEnd " + Print(kValue));
        kLists.m_pkList->AddAtEnd(kValue);
        kLists.m_kModel.Insert(kLists.m_kModel.GetQuantity(), kValue);
        break;
    default:
        ShowStep("AddSorted " + Print(kValue));
        kLists.m_pkList->AddSorted(kValue);
        kLists.m_kModel.Insert(kLists.m_kModel.FindSortedPlace(kValue), kValue);
        break;
    }
}

void CStage::InsertBeside(CDecisions& kDecisions, BothLists_t& kLists, bool bAfter)
{
    const Value_t kValue = MakeValue(kDecisions);
    CModelList& kModel = kLists.m_kModel;
    const std::size_t uiPlace = kDecisions.TakeBelow(static_cast<unsigned int>(kModel.GetQuantity()) + 1);
    List_t::Iterator kIterator = kLists.m_pkList->GetAt(static_cast<eC_UInt>(uiPlace));
    const bool bStands = uiPlace < kModel.GetQuantity();
    ShowStep(std::string(bAfter ? "AddAfter " : "AddBefore ") + std::to_string(uiPlace) + " " +
             Print(kValue));
    if (bAfter)
    {
        kLists.m_pkList->AddAfter(kValue, kIterator);
        kModel.Insert(bStands ? uiPlace + 1 : kModel.GetQuantity(), kValue);
    }
    else
    {
        kLists.m_pkList->AddBefore(kValue, kIterator);
        kModel.Insert(bStands ? uiPlace : 0, kValue);
    }
}

void CStage::DoUniqueInsertion(CDecisions& kDecisions, BothLists_t& kLists)
{
    const unsigned int uiKind = kDecisions.TakeBelow(3);
    const Value_t kValue = MakeValue(kDecisions);
    CModelList& kModel = kLists.m_kModel;
    const bool bIsNew = kModel.Find(kValue.m_iKey) == kModel.GetQuantity();
    ShowStep("AddUnique " + std::to_string(uiKind) + " " + Print(kValue));
    const bool bAdded = uiKind == 0   ? kLists.m_pkList->AddUnique(kValue)
                        : uiKind == 1 ? kLists.m_pkList->AddUniqueAtEnd(kValue)
                                      : kLists.m_pkList->AddUniqueSorted(kValue);
    Expect("AddUnique", PrintFlag(bIsNew), PrintFlag(bAdded));
    if (bIsNew)
    {
        kModel.Insert(uiKind == 0   ? 0
                      : uiKind == 1 ? kModel.GetQuantity()
                                    : kModel.FindSortedPlace(kValue),
                      kValue);
    }
}

void CStage::DoRemoval(CDecisions& kDecisions, BothLists_t& kLists)
{
    const unsigned int uiKind = kDecisions.TakeBelow(6);
    switch (uiKind)
    {
    case 0:
    case 1:
        RemoveByIterator(TakeIterator(kDecisions));
        return;
    case 2:
    case 3:
        TakeEnd(kLists, uiKind == 2);
        return;
    default:
        break;
    }
    const Value_t kValue = MakeValue(kDecisions);
    if (uiKind == 4)
    {
        ShowStep("Remove " + Print(kValue));
        CModelList& kModel = kLists.m_kModel;
        const std::size_t uiPlace = kModel.Find(kValue.m_iKey);
        const bool bIsThere = uiPlace < kModel.GetQuantity();
        Expect("Remove", PrintFlag(bIsThere), PrintFlag(kLists.m_pkList->Remove(kValue)));
        if (bIsThere)
        {
            kModel.Remove(uiPlace);
        }
        return;
    }
    RemoveEvery(kLists, kValue);
}

void CStage::RemoveByIterator(BothIterators_t& kIterators)
{
    List_t kUnattached;
    CModelList* pkModel = kIterators.m_kModel.m_pkList;
    List_t* pkList = &kUnattached;
    for (BothLists_t& kLists : m_akLists)
    {
        pkList = &kLists.m_kModel == pkModel ? kLists.m_pkList.get() : pkList;
    }
    const bool bStands = kIterators.m_kModel.m_iNode != ciNone;
    ShowStep("Remove by iterator");
    Expect("Remove", PrintFlag(bStands), PrintFlag(pkList->Remove(*kIterators.m_pkIterator)));
    if (bStands)
    {
        pkModel->Remove(pkModel->FindNode(kIterators.m_kModel.m_iNode));
    }
}

void CStage::RemoveEvery(BothLists_t& kLists, const Value_t& kValue)
{
    CModelList& kModel = kLists.m_kModel;
    const std::size_t uiFirst = kModel.Find(kValue.m_iKey);
    const bool bIsThere = uiFirst < kModel.GetQuantity();
    ShowStep("RemoveAll " + Print(kValue));
    // The value may be a reference to an element of the list itself.
    const bool bRemoved =
        bIsThere ? kLists.m_pkList->RemoveAll(*kLists.m_pkList->GetAt(static_cast<eC_UInt>(uiFirst)))
                 : kLists.m_pkList->RemoveAll(kValue);
    Expect("RemoveAll", PrintFlag(bIsThere), PrintFlag(bRemoved));
    while (kModel.Find(kValue.m_iKey) < kModel.GetQuantity())
    {
        kModel.Remove(kModel.Find(kValue.m_iKey));
    }
}

void CStage::TakeEnd(BothLists_t& kLists, bool bFront)
{
    CModelList& kModel = kLists.m_kModel;
    const std::size_t uiPlace = bFront ? 0 : kModel.GetQuantity() - 1;
    const bool bIsThere = kModel.GetQuantity() > 0;
    const Value_t kUntouched = {-1, -1};
    Value_t kTaken = kUntouched;
    ShowStep(bFront ? "RemoveFront" : "RemoveEnd");
    const bool bTaken = bFront ? kLists.m_pkList->RemoveFront(kTaken) : kLists.m_pkList->RemoveEnd(kTaken);
    Expect("RemoveFront or RemoveEnd", PrintFlag(bIsThere), PrintFlag(bTaken));
    Expect("what is taken", Print(bIsThere ? kModel.GetValue(uiPlace) : kUntouched), Print(kTaken));
    if (bIsThere)
    {
        kModel.Remove(uiPlace);
    }
}

void CStage::DoOnAll(CDecisions& kDecisions, BothLists_t& kLists)
{
    switch (kDecisions.TakeBelow(7))
    {
    case 0:
        ShowStep("RemoveAll");
        kLists.m_pkList->RemoveAll();
        kLists.m_kModel.Clear();
        break;
    case 1:
        ShowStep("ReverseOrder");
        kLists.m_pkList->ReverseOrder();
        kLists.m_kModel.Reverse();
        break;
    case 2:
        Sort(kLists, true);
        break;
    case 3:
        Sort(kLists, false);
        break;
    case 4:
        Swap(kDecisions, kLists);
        break;
    case 5:
        Assign(kLists, m_akLists[kDecisions.TakeBelow(cuiLists)]);
        break;
    default:
        Renew(kLists);
        break;
    }
}

void CStage::Sort(BothLists_t& kLists, bool bStable)
{
    ShowStep(bStable ? "Sort stable" : "Sort");
    kLists.m_pkList->Sort(bStable);
    if (kLists.m_kModel.GetQuantity() < 2)
    {
        return;
    }
    const auto kIsLess = [](const Value_t& kFirst, const Value_t& kSecond)
    { return kFirst.m_iKey < kSecond.m_iKey; };
    std::vector<Value_t> kOrdered = kLists.m_kModel.GetValues();
    std::stable_sort(kOrdered.begin(), kOrdered.end(), kIsLess);
    if (!bStable)
    {
        // The list may order equal values as it likes.
        const std::vector<Value_t> kExpected = kOrdered;
        kOrdered.clear();
        for (List_t::Iterator kIterator = kLists.m_pkList->GetBegin(); kIterator.IsValid(); ++kIterator)
        {
            kOrdered.push_back(*kIterator);
        }
        Expect("sorted", "true", PrintFlag(kOrdered == kExpected));
    }
    kLists.m_kModel.SetOrder(kOrdered);
}

void CStage::Swap(CDecisions& kDecisions, BothLists_t& kLists)
{
    const unsigned int uiPlaces = static_cast<unsigned int>(kLists.m_kModel.GetQuantity()) + 1;
    const unsigned int uiFirst = kDecisions.TakeBelow(uiPlaces);
    const unsigned int uiSecond = kDecisions.TakeBelow(uiPlaces);
    List_t::Iterator kFirst = kLists.m_pkList->GetAt(uiFirst);
    List_t::Iterator kSecond = kLists.m_pkList->GetAt(uiSecond);
    const bool bBothStand = uiFirst + 1 < uiPlaces && uiSecond + 1 < uiPlaces;
    ShowStep("Swap " + std::to_string(uiFirst) + " " + std::to_string(uiSecond));
    Expect("Swap", PrintFlag(bBothStand), PrintFlag(kLists.m_pkList->Swap(kFirst, kSecond)));
    if (bBothStand)
    {
        kLists.m_kModel.Swap(uiFirst, uiSecond);
    }
}

void CStage::Assign(BothLists_t& kTarget, const BothLists_t& kSource)
{
    ShowStep("copy of a list");
    const List_t kCopy(*kSource.m_pkList);
    *kTarget.m_pkList = kCopy;
    const std::vector<Value_t> kValues = kSource.m_kModel.GetValues();
    kTarget.m_kModel.Clear();
    for (const Value_t& kValue : kValues)
    {
        kTarget.m_kModel.Insert(kTarget.m_kModel.GetQuantity(), kValue);
    }
    const List_t& kSame = *kTarget.m_pkList;
    *kTarget.m_pkList = kSame;
}

/** Destroys a list with one iterator at most: of several, some would keep a pointer to it. */
void CStage::Renew(BothLists_t& kLists)
{
    ShowStep("destruction of a list");
    for (BothIterators_t& kIterators : m_kIterators)
    {
        if (kIterators.m_kModel.m_pkList == &kLists.m_kModel && kLists.m_kModel.GetRegister().size() > 1)
        {
            *kIterators.m_pkIterator = List_t::SafeIterator();
            Attach(kIterators.m_kModel, nullptr);
            kIterators.m_kModel = ModelIterator_t();
        }
    }
    kLists.m_pkList = std::make_unique<List_t>();
    kLists.m_kModel.Clear();
    for (BothIterators_t& kIterators : m_kIterators)
    {
        if (kIterators.m_kModel.m_pkList == &kLists.m_kModel)
        {
            Attach(kIterators.m_kModel, nullptr);
        }
    }
    kLists.m_kModel.m_iCursor = ciNone;
    kLists.m_kModel.m_bCursorIsLost = false;
}

void CStage::DoWalk(BothLists_t& kLists, bool bFirst)
{
    CModelList& kModel = kLists.m_kModel;
    if (!bFirst && kModel.m_bCursorIsLost)
    {
        return;
    }
    if (bFirst)
    {
        kModel.m_iCursor = kModel.GetNodeAt(0);
        kModel.m_bCursorIsLost = false;
    }
    else if (kModel.m_iCursor != ciNone)
    {
        kModel.m_iCursor = kModel.GetNext(kModel.m_iCursor);
    }
    const bool bIsThere = kModel.m_iCursor != ciNone;
    const Value_t kUntouched = {-1, -1};
    const Value_t kExpected = bIsThere ? kModel.GetValue(kModel.FindNode(kModel.m_iCursor)) : kUntouched;
    Value_t kRead = kUntouched;
    ShowStep(bFirst ? "GetFirst" : "GetNext");
    const bool bRead = bFirst ? kLists.m_pkList->GetFirst(kRead) : kLists.m_pkList->GetNext(kRead);
    Expect("GetFirst or GetNext", PrintFlag(bIsThere), PrintFlag(bRead));
    Expect("what is read", Print(kExpected), Print(kRead));
}

void CStage::DoOnIterator(CDecisions& kDecisions, BothLists_t& kLists)
{
    BothIterators_t& kIterators = TakeIterator(kDecisions);
    List_t& kList = *kLists.m_pkList;
    CModelList& kModel = kLists.m_kModel;
    const unsigned int uiKind = kDecisions.TakeBelow(10);
    ShowStep("iterator operation " + std::to_string(uiKind));
    switch (uiKind)
    {
    case 0:
        *kIterators.m_pkIterator = kList.GetBeginSafe();
        Place(kIterators.m_kModel, kModel, 0);
        break;
    case 1:
        *kIterators.m_pkIterator = kList.GetEndSafe();
        Place(kIterators.m_kModel, kModel, kModel.GetQuantity() - 1);
        break;
    case 2:
    {
        const unsigned int uiPlace =
            kDecisions.TakeBelow(static_cast<unsigned int>(kModel.GetQuantity()) + 1);
        *kIterators.m_pkIterator = kList.GetAtSafe(uiPlace);
        Place(kIterators.m_kModel, kModel, uiPlace);
        break;
    }
    case 3:
    {
        const Value_t kValue = MakeValue(kDecisions);
        *kIterators.m_pkIterator = kList.GetFindSafe(kValue);
        Place(kIterators.m_kModel, kModel, kModel.Find(kValue.m_iKey));
        break;
    }
    case 4:
        Copy(kIterators, TakeIterator(kDecisions), true);
        break;
    case 5:
        Copy(kIterators, TakeIterator(kDecisions), false);
        break;
    case 6:
    case 7:
        ++*kIterators.m_pkIterator;
        StepForward(kIterators.m_kModel);
        break;
    default:
        --*kIterators.m_pkIterator;
        StepBack(kIterators.m_kModel);
        break;
    }
}

void CStage::Copy(BothIterators_t& kTarget, const BothIterators_t& kSource, bool bConstruct)
{
    if (bConstruct)
    {
        // The new iterator registers before the old one unregisters.
        kTarget.m_pkIterator = std::make_unique<List_t::SafeIterator>(*kSource.m_pkIterator);
        const ModelIterator_t kModel = kSource.m_kModel;
        Attach(kTarget.m_kModel, nullptr);
        Attach(kTarget.m_kModel, kModel.m_pkList);
        kTarget.m_kModel = kModel;
        return;
    }
    *kTarget.m_pkIterator = *kSource.m_pkIterator;
    const ModelIterator_t kModel = kSource.m_kModel;
    Attach(kTarget.m_kModel, kModel.m_pkList);
    kTarget.m_kModel = kModel;
}

// --- What must be equal -------------------------------------------------------------------------------

std::string PrintModelNode(const ModelIterator_t& kIterator, int iNode)
{
    return iNode == ciNone ? "-" : Print(kIterator.m_pkList->GetValue(kIterator.m_pkList->FindNode(iNode)));
}

std::string PrintNode(const ListNode<Value_t>* pNode)
{
    return pNode == nullptr ? "-" : Print(pNode->m_tValue);
}

bool Throws(const List_t::SafeIterator& kIterator)
{
    try
    {
        static_cast<void>(*kIterator);
    }
    catch (int iThrown)
    {
        return iThrown == 0;
    }
    return false;
}

void CStage::Check() const
{
    for (const BothLists_t& kLists : m_akLists)
    {
        CheckList(kLists);
    }
    for (const BothIterators_t& kIterators : m_kIterators)
    {
        CheckIterator(kIterators);
    }
}

void CStage::CheckList(const BothLists_t& kLists) const
{
    const List_t& kList = *kLists.m_pkList;
    const CModelList& kModel = kLists.m_kModel;
    std::string kExpected;
    std::string kBackwards;
    for (const Value_t& kValue : kModel.GetValues())
    {
        kExpected += Print(kValue) + " ";
        kBackwards.insert(0, Print(kValue) + " ");
    }
    std::string kActual;
    for (List_t::Iterator kIterator = kList.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        kActual += Print(*kIterator) + " ";
    }
    Expect("the list", kExpected, kActual);
    kActual.clear();
    for (List_t::Iterator kIterator = kList.GetEnd(); kIterator.IsValid(); --kIterator)
    {
        kActual += Print(*kIterator) + " ";
    }
    Expect("the list backwards", kBackwards, kActual);
    Expect("the quantity", std::to_string(kModel.GetQuantity()), std::to_string(kList.GetQuantity()));
    Expect("empty", PrintFlag(kModel.GetQuantity() == 0), PrintFlag(kList.IsEmpty() && kList.Empty()));
    for (unsigned int uiKey = 0; uiKey < cuiKeys; ++uiKey)
    {
        const int iKey = static_cast<int>(uiKey);
        const bool bIsThere = kModel.Find(iKey) < kModel.GetQuantity();
        Expect("contained", PrintFlag(bIsThere), PrintFlag(kList.Contains({iKey, 0})));
        const List_t::Iterator kFound = kList.GetFind({iKey, 0});
        Expect("found", bIsThere ? Print(kModel.GetValue(kModel.Find(iKey))) : "-",
               kFound.IsValid() ? Print(*kFound) : "-");
    }
}

void CStage::CheckIterator(const BothIterators_t& kIterators) const
{
    const ModelIterator_t& kModel = kIterators.m_kModel;
    const List_t::SafeIterator& kIterator = *kIterators.m_pkIterator;
    Expect("an iterator",
           PrintModelNode(kModel, kModel.m_iPrevious) + " [" + PrintModelNode(kModel, kModel.m_iNode) + "] " +
               PrintModelNode(kModel, kModel.m_iNext),
           PrintNode(CGUITestAccess::GetSavedPrevious(kIterator)) + " [" +
               PrintNode(CGUITestAccess::GetNode(kIterator)) + "] " +
               PrintNode(CGUITestAccess::GetSavedNext(kIterator)));
    const bool bStands = kModel.m_iNode != ciNone;
    const bool bIsInside = bStands || (kModel.m_iNext != ciNone && kModel.m_iPrevious == ciNone);
    Expect("what an iterator says",
           PrintFlag(bStands) + PrintFlag(!bStands) + PrintFlag(bIsInside) +
               PrintFlag(kModel.m_iNext != ciNone) + PrintFlag(kModel.m_iPrevious != ciNone),
           PrintFlag(kIterator.IsValid()) + PrintFlag(Throws(kIterator)) +
               PrintFlag(kIterator.IsInsideList()) + PrintFlag(kIterator.IsNextValid()) +
               PrintFlag(kIterator.IsPreviousValid()));

    const List_t* pkList = nullptr;
    for (const BothLists_t& kLists : m_akLists)
    {
        const std::vector<const List_t::SafeIterator*> kRegister =
            CGUITestAccess::GetRegister(*kLists.m_pkList);
        const bool bIsHere = kModel.m_pkList == &kLists.m_kModel;
        Expect("registered", std::to_string(bIsHere ? 1 : 0),
               std::to_string(std::count(kRegister.begin(), kRegister.end(), &kIterator)));
        Expect("iterators registered", std::to_string(kLists.m_kModel.GetRegister().size()),
               std::to_string(kRegister.size()));
        pkList = bIsHere ? kLists.m_pkList.get() : pkList;
    }
    Expect("attached to its list", "true", PrintFlag(CGUITestAccess::GetList(kIterator) == pkList));
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize)
{
    CDecisions kDecisions(pcBytes, uiSize);
    CStage kStage;
    for (int iStep = 0; iStep < ciMostSteps && !kDecisions.IsEmpty(); ++iStep)
    {
        kStage.DoStep(kDecisions);
        kStage.Check();
    }
    return 0;
}
