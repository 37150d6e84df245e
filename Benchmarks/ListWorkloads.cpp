// SPDX-License-Identifier: MIT
// Adding one list element at the front and removing it again, with live safe iterators.

#include "Benchmarks/Workload.h"
#include "Core/Utils/eC_TList_doubleLinked.h"

#include <list>

namespace
{
constexpr int ciElements = 10;

/** The library's list. */
class CFrontOfList
{
public:
    explicit CFrontOfList(unsigned uiSafeIterators)
    {
        for (int i = 0; i < ciElements; ++i)
        {
            m_kList.Add(i);
        }
        for (unsigned uiIterator = 0; uiIterator < uiSafeIterators; ++uiIterator)
        {
            m_kIterators.push_back(std::make_unique<Iterator_t>(
                m_kList.GetAtSafe(uiIterator % static_cast<unsigned>(ciElements))));
        }
    }
    CFrontOfList(const CFrontOfList&) = delete;
    CFrontOfList& operator=(const CFrontOfList&) = delete;
    ~CFrontOfList() { Require(m_kList.GetQuantity() == static_cast<eC_UInt>(ciElements)); }

    void Do()
    {
        m_kList.Add(m_iValue);
        m_kList.RemoveFront(m_iValue);
        Keep(m_iValue);
    }

private:
    using List_t = eC_TListDoubleLinked<int>;
    using Iterator_t = List_t::SafeIterator;

    List_t m_kList;
    std::vector<std::unique_ptr<Iterator_t>> m_kIterators;
    int m_iValue = 0;
};

/** The standard library's list. */
class CFrontOfStandardList
{
public:
    CFrontOfStandardList() : m_kList(ciElements) {}

    void Do()
    {
        m_kList.push_front(m_iValue);
        m_iValue = m_kList.front();
        m_kList.pop_front();
        Keep(m_iValue);
    }

private:
    std::list<int> m_kList;
    int m_iValue = 0;
};

/** A list whose elements contain the links. */
class CFrontOfIntrusiveList
{
public:
    CFrontOfIntrusiveList() { m_kEnds.m_pkNext = m_kEnds.m_pkPrevious = &m_kEnds; }
    CFrontOfIntrusiveList(const CFrontOfIntrusiveList&) = delete;
    CFrontOfIntrusiveList& operator=(const CFrontOfIntrusiveList&) = delete;

    void Do()
    {
        m_kElement.m_pkPrevious = &m_kEnds;
        m_kElement.m_pkNext = m_kEnds.m_pkNext;
        m_kEnds.m_pkNext->m_pkPrevious = &m_kElement;
        m_kEnds.m_pkNext = &m_kElement;
        Keep(m_kEnds);
        m_kElement.m_pkPrevious->m_pkNext = m_kElement.m_pkNext;
        m_kElement.m_pkNext->m_pkPrevious = m_kElement.m_pkPrevious;
        Keep(m_kEnds);
    }

private:
    struct Element_t
    {
        Element_t* m_pkNext = nullptr;
        Element_t* m_pkPrevious = nullptr;
    };

    Element_t m_kEnds;
    Element_t m_kElement;
};
} // namespace

void AddListComparisons(Comparisons_t& kComparisons)
{
    for (const unsigned uiSafeIterators : {0U, 1U, 2U, 10U, 100U})
    {
        kComparisons.push_back({"list/against-std-list/" + std::to_string(uiSafeIterators), LOGS_NOTHING, 1,
                                MakerOf<CFrontOfList>(uiSafeIterators), MakerOf<CFrontOfStandardList>()});
    }
    kComparisons.push_back({"list/against-intrusive-list/0", LOGS_NOTHING, 1, MakerOf<CFrontOfList>(0U),
                            MakerOf<CFrontOfIntrusiveList>()});
}
