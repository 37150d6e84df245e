// SPDX-License-Identifier: MIT
// Finding, raising, attaching and detaching objects in trees of many sizes.

#include "Benchmarks/Application.h"
#include "Benchmarks/Workload.h"

#include <list>
#include <random>
#include <unordered_map>
#include <vector>

namespace
{
constexpr unsigned cuiChildrenPerComposite = 10;
constexpr unsigned cuiShared = 16;
constexpr unsigned cuiDrawn = 1U << 17;

/** How often the work is done when its instructions are counted: often enough that the drawn identifiers are
 *  typical.
 */
constexpr unsigned cuiCountedDraws = 4096;

/** Identifiers, drawn at random, to find one after the other. */
using Sought_t = std::vector<ObjectHandle_t>;

/** What to find, and in which tree. */
enum ESearch : unsigned char
{
    HIT,
    MISS,
    HIT_AMONG_ANONYMOUS,  ///< with 1,000 objects without identifier
    HIT_SHARED_IDENTIFIER ///< one of 16 identifiers, each of which 1,000 further objects share
};

ObjectHandle_t GetID(unsigned uiObject)
{
    return static_cast<ObjectHandle_t>(1000 + uiObject);
}

/** @return the identifiers that objects share: 16, spread over a tree */
ObjectHandle_t GetSharedID(unsigned uiShared, unsigned uiObjects)
{
    return GetID(uiShared * uiObjects / cuiShared);
}

/** @return identifiers drawn at random, from all that can be sought, and the same ones in each run. So many
 *          are drawn that those found last tell nothing about the next one, and that not all objects found
 *          are in the caches.
 */
Sought_t DrawSought(ESearch eSearch, unsigned uiObjects)
{
    std::minstd_rand kRandom;
    Sought_t kSought(cuiDrawn);
    for (ObjectHandle_t& eSought : kSought)
    {
        const unsigned uiDrawn = static_cast<unsigned>(kRandom());
        eSought = eSearch == HIT_SHARED_IDENTIFIER ? GetSharedID(uiDrawn % cuiShared, uiObjects)
                                                   : GetID(uiDrawn % uiObjects);
        if (eSearch == MISS)
        {
            eSought = static_cast<ObjectHandle_t>(eSought + static_cast<int>(uiObjects));
        }
    }
    return kSought;
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

/** Finds objects by identifier, and touches each that it finds. */
class CFind
{
public:
    CFind(ESearch eSearch, unsigned uiObjects)
        : m_kTree(uiObjects), m_kSought(DrawSought(eSearch, uiObjects)), m_bIsHit(eSearch != MISS)
    {
        AddOthers(eSearch, uiObjects);
    }

    void Do()
    {
        m_uiNext = (m_uiNext + 1) % cuiDrawn;
        const CGUIObject* pkFound = m_kTree.m_kRoot.GetObjectByID(m_kSought[m_uiNext], false);
        Keep(pkFound != nullptr && pkFound->IsInvisible());
    }

    ~CFind()
    {
        for (const ObjectHandle_t eSought : m_kSought)
        {
            const CGUIObject* pkFound = m_kTree.m_kRoot.GetObjectByID(eSought, false);
            Require((pkFound != nullptr) == m_bIsHit && (!m_bIsHit || pkFound->GetID() == eSought));
        }
    }
    CFind(const CFind&) = delete;
    CFind& operator=(const CFind&) = delete;

private:
    void AddOthers(ESearch eSearch, unsigned uiObjects)
    {
        const unsigned uiOthers = 1000;
        if (eSearch == HIT_AMONG_ANONYMOUS)
        {
            AddObjectsWithID(NO_HANDLE, uiOthers);
        }
        if (eSearch == HIT_SHARED_IDENTIFIER)
        {
            for (unsigned uiShared = 0; uiShared < cuiShared; ++uiShared)
            {
                AddObjectsWithID(GetSharedID(uiShared, uiObjects), uiOthers);
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
    Sought_t m_kSought;
    bool m_bIsHit;
    unsigned m_uiNext = 0;
};

/** Finds objects in an index, and touches each that it finds. */
class CFindInIndex
{
public:
    CFindInIndex(ESearch eSearch, unsigned uiObjects)
        : m_kObjects(uiObjects), m_kSought(DrawSought(eSearch, uiObjects))
    {
        for (unsigned uiObject = 0; uiObject < uiObjects; ++uiObject)
        {
            m_kIndex.emplace(GetID(uiObject), &m_kObjects[uiObject]);
        }
    }

    void Do()
    {
        m_uiNext = (m_uiNext + 1) % cuiDrawn;
        const auto kFound = m_kIndex.find(m_kSought[m_uiNext]);
        Keep(kFound != m_kIndex.end() && *kFound->second != 0);
    }

private:
    std::vector<int> m_kObjects;
    std::unordered_map<int, int*> m_kIndex;
    Sought_t m_kSought;
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
                                MakerOf<CFindInIndex>(eSearch, uiObjects), cuiCountedDraws});
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
