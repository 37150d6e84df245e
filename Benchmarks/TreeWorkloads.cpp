// SPDX-License-Identifier: MIT
// Finding, raising, attaching and detaching objects in trees of many sizes.

#include "Benchmarks/Application.h"
#include "Benchmarks/Workload.h"

#include <array>
#include <list>
#include <unordered_map>
#include <vector>

namespace
{
constexpr unsigned cuiChildrenPerComposite = 10;
constexpr unsigned cuiSought = 16; ///< a power of 2

/** The identifiers to find in turn. */
using Sought_t = std::array<ObjectHandle_t, cuiSought>;

/** What to find, and in which tree. */
enum ESearch : unsigned char
{
    HIT,
    MISS,
    HIT_AMONG_ANONYMOUS,  ///< with 1,000 objects without identifier
    HIT_SHARED_IDENTIFIER ///< 1,000 further objects share each of these identifiers
};

ObjectHandle_t GetID(unsigned uiObject)
{
    return static_cast<ObjectHandle_t>(1000 + uiObject);
}

/** @return identifiers spread over a tree, or greater than its last one */
Sought_t ChooseSought(ESearch eSearch, unsigned uiObjects)
{
    Sought_t aeSought;
    for (unsigned i = 0; i < cuiSought; ++i)
    {
        aeSought[i] = GetID(eSearch == MISS ? uiObjects + 1 + i : i * uiObjects / cuiSought);
    }
    return aeSought;
}

/** A tree below a root: composites with up to cuiChildrenPerComposite children. */
class CTree
{
public:
    explicit CTree(unsigned uiObjects)
    {
        std::vector<CGUICompositeObject*> kComposites = {&m_kRoot};
        for (unsigned uiObject = 0; uiObject < uiObjects; ++uiObject)
        {
            CGUICompositeObject* pkParent = kComposites[uiObject / cuiChildrenPerComposite];
            kComposites.push_back(new CGUICompositeObject(pkParent, GetID(uiObject)));
        }
    }

    CGUI m_kRoot;
};

/** Finds objects by identifier. */
class CFind
{
public:
    CFind(ESearch eSearch, unsigned uiObjects)
        : m_kTree(uiObjects), m_aeSought(ChooseSought(eSearch, uiObjects)), m_bIsHit(eSearch != MISS)
    {
        AddOthers(eSearch);
    }

    void Do()
    {
        m_uiNext = (m_uiNext + 1) % cuiSought;
        const CGUIObject* pkFound = m_kTree.m_kRoot.GetObjectByID(m_aeSought[m_uiNext], false);
        Keep(pkFound);
    }

    ~CFind()
    {
        for (const ObjectHandle_t eSought : m_aeSought)
        {
            const CGUIObject* pkFound = m_kTree.m_kRoot.GetObjectByID(eSought, false);
            Require((pkFound != nullptr) == m_bIsHit && (!m_bIsHit || pkFound->GetID() == eSought));
        }
    }
    CFind(const CFind&) = delete;
    CFind& operator=(const CFind&) = delete;

private:
    void AddOthers(ESearch eSearch)
    {
        const unsigned uiOthers = 1000;
        if (eSearch == HIT_AMONG_ANONYMOUS)
        {
            AddObjectsWithID(NO_HANDLE, uiOthers);
        }
        if (eSearch == HIT_SHARED_IDENTIFIER)
        {
            for (const ObjectHandle_t eSought : m_aeSought)
            {
                AddObjectsWithID(eSought, uiOthers);
            }
        }
    }

    void AddObjectsWithID(ObjectHandle_t eID, unsigned uiNOFObjects)
    {
        CGUICompositeObject* pkTop = new CGUICompositeObject(&m_kTree.m_kRoot);
        for (unsigned uiObject = 0; uiObject < uiNOFObjects; ++uiObject)
        {
            new CGUIObject(pkTop, eID);
        }
    }

    CTree m_kTree;
    Sought_t m_aeSought;
    bool m_bIsHit;
    unsigned m_uiNext = 0;
};

/** Finds objects in an index. */
class CFindInIndex
{
public:
    CFindInIndex(ESearch eSearch, unsigned uiObjects)
        : m_kObjects(uiObjects), m_aeSought(ChooseSought(eSearch, uiObjects))
    {
        for (unsigned uiObject = 0; uiObject < uiObjects; ++uiObject)
        {
            m_kIndex.emplace(GetID(uiObject), &m_kObjects[uiObject]);
        }
    }

    void Do()
    {
        m_uiNext = (m_uiNext + 1) % cuiSought;
        const auto kFound = m_kIndex.find(m_aeSought[m_uiNext]);
        Keep(kFound != m_kIndex.end() ? kFound->second : nullptr);
    }

private:
    std::vector<int> m_kObjects;
    std::unordered_map<int, int*> m_kIndex;
    Sought_t m_aeSought;
    unsigned m_uiNext = 0;
};

/** What happens to one of many siblings. */
enum EMove : unsigned char
{
    RAISE,
    DETACH_AND_ATTACH
};

/** Moves many siblings one after the other. */
class CMove
{
public:
    CMove(EMove eMove, unsigned uiSiblings) : m_eMove(eMove)
    {
        for (unsigned uiSibling = 0; uiSibling < uiSiblings; ++uiSibling)
        {
            new CGUIObject(&m_kRoot, GetID(uiSibling));
        }
    }

    void Do()
    {
        CGUIObject* pkBottom = m_kRoot.GetFirstChild();
        if (m_eMove == RAISE)
        {
            m_kRoot.DrawOnTop(pkBottom);
        }
        else
        {
            pkBottom->SetParent(nullptr);
            pkBottom->SetParent(&m_kRoot);
        }
    }

private:
    CGUI m_kRoot;
    EMove m_eMove;
};

/** Makes many objects with one identifier, and deletes each after it has been found by it. */
class CDeleteFound
{
public:
    explicit CDeleteFound(unsigned uiObjects) : m_uiObjects(uiObjects) {}

    void Do()
    {
        for (unsigned uiObject = 0; uiObject < m_uiObjects; ++uiObject)
        {
            new CGUIObject(&m_kRoot, GetID(0));
        }
        for (unsigned uiObject = 0; uiObject < m_uiObjects; ++uiObject)
        {
            delete m_kRoot.GetObjectByID(GetID(0), false);
        }
        Require(m_kRoot.GetFirstChild() == nullptr);
    }

private:
    CGUI m_kRoot;
    unsigned m_uiObjects;
};

/** Does the same with elements of a list. */
class CDeleteFoundInList
{
public:
    explicit CDeleteFoundInList(unsigned uiElements) : m_uiElements(uiElements) {}

    void Do()
    {
        for (unsigned uiElement = 0; uiElement < m_uiElements; ++uiElement)
        {
            m_kLists[0].push_back(uiElement);
        }
        for (unsigned uiElement = 0; uiElement < m_uiElements; ++uiElement)
        {
            m_kLists.find(0)->second.pop_front();
        }
        Keep(m_kLists);
    }

private:
    std::unordered_map<int, std::list<unsigned>> m_kLists;
    unsigned m_uiElements;
};

/** Moves the first element of a list to its end. */
class CMoveInList
{
public:
    explicit CMoveInList(unsigned uiElements) : m_kList(uiElements) {}

    void Do()
    {
        m_kList.splice(m_kList.end(), m_kList, m_kList.begin());
        Keep(m_kList);
    }

private:
    std::list<int> m_kList;
};

void AddFind(Comparisons_t& kComparisons, const char* pcVariant, ESearch eSearch)
{
    for (const unsigned uiObjects : {100U, 1000U, 10000U, 100000U})
    {
        kComparisons.push_back({std::string("find/") + pcVariant + "/" + std::to_string(uiObjects),
                                LOGS_NOTHING, 1, MakerOf<CFind>(eSearch, uiObjects),
                                MakerOf<CFindInIndex>(eSearch, uiObjects)});
    }
}

void AddMove(Comparisons_t& kComparisons, const char* pcVariant, EMove eMove)
{
    for (const unsigned uiObjects : {100U, 1000U, 10000U, 100000U})
    {
        kComparisons.push_back({std::string("move/") + pcVariant + "/" + std::to_string(uiObjects),
                                LOGS_NOTHING, 1, MakerOf<CMove>(eMove, uiObjects),
                                MakerOf<CMoveInList>(uiObjects)});
    }
}

void AddDeleteFound(Comparisons_t& kComparisons)
{
    for (const unsigned uiObjects : {100U, 1000U, 10000U, 40000U})
    {
        kComparisons.push_back({"delete/shared-identifier/" + std::to_string(uiObjects), LOGS_NOTHING,
                                uiObjects, MakerOf<CDeleteFound>(uiObjects),
                                MakerOf<CDeleteFoundInList>(uiObjects), 1});
    }
}
} // namespace

void AddTreeComparisons(Comparisons_t& kComparisons)
{
    AddFind(kComparisons, "hit", HIT);
    AddFind(kComparisons, "miss", MISS);
    AddFind(kComparisons, "among-anonymous", HIT_AMONG_ANONYMOUS);
    AddFind(kComparisons, "shared-identifier", HIT_SHARED_IDENTIFIER);
    AddMove(kComparisons, "raise", RAISE);
    AddMove(kComparisons, "detach-and-attach", DETACH_AND_ATTACH);
    AddDeleteFound(kComparisons);
}
