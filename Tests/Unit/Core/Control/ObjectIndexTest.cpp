// SPDX-License-Identifier: MIT
#include "Core/Control/GUIObjectIndex.h"

#include "Core/Control/GUI.h"
#include "TestSupport/ObjectCensus.h"
#include "TestSupport/TestAccess.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <random>
#include <vector>

namespace
{
/** Returns what CGUIObject::GetObjectByID must return, by visiting every object. */
const CGUIObject* FindNaively(const CGUIObject* pkTop, ObjectHandle_t eID, bool bOnlyVisible)
{
    if (eID == NO_HANDLE || (bOnlyVisible && pkTop->IsInvisible()))
    {
        return nullptr;
    }
    if (pkTop->GetID() == eID)
    {
        return pkTop;
    }
    const CGUIObject* pkFound = nullptr;
    if (pkTop->IsCompositeObject())
    {
        for (const CGUIObject* pkChild = static_cast<const CGUICompositeObject*>(pkTop)->GetFirstChild();
             pkChild != nullptr && pkFound == nullptr; pkChild = pkChild->GetNextSibling())
        {
            pkFound = FindNaively(pkChild, eID, bOnlyVisible);
        }
    }
    return pkFound;
}

class CObjectIndexTest : public ::testing::Test
{
protected:
    CObjectIndexTest() : m_kBefore(TakeObjectCensus()), m_pkRoot(new CGUI) {}

    ~CObjectIndexTest() override
    {
        m_pkRoot.reset();
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    CGUI& Root() { return *m_pkRoot; }

    CGUIObject* Find(ObjectHandle_t eID, bool bOnlyVisible = false)
    {
        return m_pkRoot->GetObjectByID(eID, bOnlyVisible);
    }

    /** Builds thirteen dialogs of seven objects with one identifier. Raises, adds and deletes some at random
     * until none is left, and compares every search with a walk over all.
     */
    void ExpectTheFirstOfManyIsAlwaysFound()
    {
        std::vector<CGUICompositeObject*> kDialogs;
        for (int iDialog = 0; iDialog < 13; ++iDialog)
        {
            kDialogs.push_back(new CGUICompositeObject(&Root()));
            for (int iObject = 0; iObject < 7; ++iObject)
            {
                new CGUIObject(kDialogs.back(), OBJ_1);
            }
        }
        std::mt19937 kRandom(20260914);
        int iFound = 0;

        for (CGUIObject* pkFound = Find(OBJ_1); pkFound != nullptr; pkFound = Find(OBJ_1))
        {
            ASSERT_EQ(FindNaively(&Root(), OBJ_1, false), pkFound) << "after " << iFound << " were found";
            ASSERT_EQ(FindNaively(&Root(), OBJ_2, false), Find(OBJ_2)) << "after " << iFound << " were found";
            ++iFound;
            CGUICompositeObject* pkDialog = kDialogs[kRandom() % kDialogs.size()];
            switch (kRandom() % 8)
            {
            case 0:
                Root().DrawOnTop(pkDialog);
                break;
            case 1:
                if (pkDialog->GetFirstChild() != nullptr)
                {
                    pkDialog->DrawOnTop(pkDialog->GetFirstChild());
                }
                break;
            case 2:
                if (iFound < 200)
                {
                    new CGUIObject(pkDialog, OBJ_1);
                }
                break;
            case 3:
                pkFound->SetID(OBJ_2);
                break;
            case 4:
                if (Find(OBJ_2) != nullptr)
                {
                    Find(OBJ_2)->SetID(OBJ_1);
                }
                break;
            default:
                delete pkFound;
                break;
            }
        }

        EXPECT_LT(13 * 7, iFound);
    }

private:
    ObjectCensus_t m_kBefore;
    std::unique_ptr<CGUI> m_pkRoot;
};

TEST_F(CObjectIndexTest, InvisibleChild_IsFoundOnlyWhenInvisibleObjectsCount)
{
    auto* pkDialog = new CGUIObject(&Root(), DLG_A);
    pkDialog->SetInvisible(true);

    EXPECT_EQ(pkDialog, Find(DLG_A, false));
    EXPECT_EQ(nullptr, Find(DLG_A, true));

    pkDialog->SetInvisible(false);
    EXPECT_EQ(pkDialog, Find(DLG_A, true));
}

TEST_F(CObjectIndexTest, VisibleObjectUnderAnInvisibleOne_IsSkippedWithIt)
{
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    auto* pkObject = new CGUIObject(pkDialog, OBJ_1);
    pkDialog->SetInvisible(true);

    EXPECT_EQ(pkObject, Find(OBJ_1, false));
    EXPECT_EQ(nullptr, Find(OBJ_1, true));
    EXPECT_EQ(nullptr, pkDialog->GetObjectByID(OBJ_1, true));
    EXPECT_EQ(pkObject, pkObject->GetObjectByID(OBJ_1, true));
}

TEST_F(CObjectIndexTest, NoHandle_NeverMatches)
{
    auto* pkAnonymous = new CGUICompositeObject(&Root());
    CGUICompositeObject kDetached;
    new CGUIObject(&kDetached);

    for (const bool bOnlyVisible : {false, true})
    {
        EXPECT_EQ(nullptr, Find(NO_HANDLE, bOnlyVisible));
        EXPECT_EQ(nullptr, pkAnonymous->GetObjectByID(NO_HANDLE, bOnlyVisible));
        EXPECT_EQ(nullptr, kDetached.GetObjectByID(NO_HANDLE, bOnlyVisible));
    }
}

TEST_F(CObjectIndexTest, Search_CoversTheObjectItselfAndItsDescendantsOnly)
{
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    auto* pkObject = new CGUIObject(pkDialog, OBJ_1);
    auto* pkSibling = new CGUIObject(&Root(), OBJ_2);

    EXPECT_EQ(pkDialog, pkDialog->GetObjectByID(DLG_A, false));
    EXPECT_EQ(pkObject, pkDialog->GetObjectByID(OBJ_1, false));
    EXPECT_EQ(nullptr, pkDialog->GetObjectByID(OBJ_2, false));
    EXPECT_EQ(nullptr, pkObject->GetObjectByID(DLG_A, false));
    EXPECT_EQ(pkSibling, Find(OBJ_2));
    EXPECT_EQ(nullptr, Find(OBJ_3));
}

TEST_F(CObjectIndexTest, DetachedTree_IsSearchedTheSameWay)
{
    CGUICompositeObject kTop(nullptr, DLG_A);
    auto* pkMiddle = new CGUICompositeObject(&kTop, OBJ_1);
    auto* pkFirst = new CGUIObject(pkMiddle, OBJ_2);
    auto* pkSecond = new CGUIObject(&kTop, OBJ_2);

    EXPECT_EQ(&kTop, kTop.GetObjectByID(DLG_A, false));
    EXPECT_EQ(pkFirst, kTop.GetObjectByID(OBJ_2, false));
    EXPECT_EQ(nullptr, pkMiddle->GetObjectByID(DLG_A, false));

    pkMiddle->SetInvisible(true);
    EXPECT_EQ(pkSecond, kTop.GetObjectByID(OBJ_2, true));
    EXPECT_EQ(nullptr, pkMiddle->GetObjectByID(OBJ_1, true));
    EXPECT_EQ(nullptr, Find(OBJ_2));
}

TEST_F(CObjectIndexTest, SetID_MovesTheObjectToItsNewIdentifier)
{
    auto* pkObject = new CGUIObject(&Root(), OBJ_1);

    pkObject->SetID(OBJ_2);
    EXPECT_EQ(nullptr, Find(OBJ_1));
    EXPECT_EQ(pkObject, Find(OBJ_2));

    pkObject->SetID(NO_HANDLE);
    EXPECT_EQ(nullptr, Find(OBJ_2));

    pkObject->SetID(static_cast<ObjectHandle_t>(-2147483647 - 1));
    EXPECT_EQ(pkObject, Find(static_cast<ObjectHandle_t>(-2147483647 - 1)));
}

TEST_F(CObjectIndexTest, SetID_WithAReferenceToTheObjectsOwnIdentifierOrTheSameValue_ChangesNothing)
{
    auto* pkObject = new CGUIObject(&Root(), OBJ_1);

    pkObject->SetID(pkObject->GetID());

    EXPECT_EQ(OBJ_1, pkObject->GetID());
    EXPECT_EQ(pkObject, Find(OBJ_1));
}

TEST_F(CObjectIndexTest, AttachingAndDetachingASubtree_EntersAndLeavesAllOfIt)
{
    auto* pkDialog = new CGUICompositeObject(nullptr, DLG_A);
    auto* pkInner = new CGUICompositeObject(pkDialog, OBJ_1);
    auto* pkObject = new CGUIObject(pkInner, OBJ_2);
    EXPECT_EQ(nullptr, Find(OBJ_2));

    pkDialog->SetParent(&Root());
    EXPECT_EQ(pkDialog, Find(DLG_A));
    EXPECT_EQ(pkInner, Find(OBJ_1));
    EXPECT_EQ(pkObject, Find(OBJ_2));

    pkDialog->SetParent(nullptr);
    EXPECT_EQ(nullptr, Find(DLG_A));
    EXPECT_EQ(nullptr, Find(OBJ_1));
    EXPECT_EQ(nullptr, Find(OBJ_2));
    delete pkDialog;
}

TEST_F(CObjectIndexTest, OfSeveralObjectsWithOneIdentifier_TheFirstInPreOrderIsFound)
{
    auto* pkBelow = new CGUICompositeObject(&Root(), DLG_A);
    auto* pkAbove = new CGUICompositeObject(&Root(), DLG_B);
    auto* pkLate = new CGUIObject(pkAbove, OBJ_1);
    EXPECT_EQ(pkLate, Find(OBJ_1));

    auto* pkEarly = new CGUIObject(pkBelow, OBJ_1);
    EXPECT_EQ(pkEarly, Find(OBJ_1));
    EXPECT_EQ(pkLate, pkAbove->GetObjectByID(OBJ_1, false));

    Root().DrawOnTop(pkBelow);
    EXPECT_EQ(pkLate, Find(OBJ_1));

    Root().DrawOnTop(pkAbove);
    EXPECT_EQ(pkEarly, Find(OBJ_1));

    pkBelow->SetInvisible(true);
    EXPECT_EQ(pkEarly, Find(OBJ_1, false));
    EXPECT_EQ(pkLate, Find(OBJ_1, true));

    delete pkEarly;
    EXPECT_EQ(pkLate, Find(OBJ_1));
    delete pkLate;
    EXPECT_EQ(nullptr, Find(OBJ_1));
}

TEST_F(CObjectIndexTest, OfManyObjectsWithOneIdentifier_TheFirstIsFoundWhateverWasRaisedOrDeleted)
{
    ExpectTheFirstOfManyIsAlwaysFound();
}

TEST_F(CObjectIndexTest, OfManyObjectsWithOneIdentifier_TheFirstIsFoundWhenTheCountOfRaisesRunsOver)
{
    // It runs over while the objects are built, or at one of the raises after that.
    for (const eC_UInt uiLeft : {0U, 1U, 50U, 104U, 110U, 120U})
    {
        CGUITestAccess::SetNOFRaises(0xFFFFFFFFU - uiLeft);
        ExpectTheFirstOfManyIsAlwaysFound();
        EXPECT_GT(1000U, CGUITestAccess::GetNOFRaises()) << uiLeft;
    }
}

TEST_F(CObjectIndexTest, RaisingTheTopmostChild_IsNotCounted)
{
    auto* pkBelow = new CGUIObject(&Root(), OBJ_1);
    auto* pkTopmost = new CGUIObject(&Root(), OBJ_2);
    const eC_UInt uiBefore = CGUITestAccess::GetNOFRaises();

    Root().DrawOnTop(pkTopmost);
    EXPECT_EQ(uiBefore, CGUITestAccess::GetNOFRaises());

    Root().DrawOnTop(pkBelow);
    EXPECT_EQ(uiBefore + 1, CGUITestAccess::GetNOFRaises());
}

TEST_F(CObjectIndexTest, SetParentWithThePresentParent_IsOneRaiseWhateverHangsBelow)
{
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    auto* pkObject = new CGUIObject(pkDialog, OBJ_1);
    new CGUIObject(pkDialog, OBJ_2);
    new CGUIObject(&Root(), OBJ_1);
    const eC_UInt uiBefore = CGUITestAccess::GetNOFRaises();
    EXPECT_EQ(pkObject, Find(OBJ_1));

    pkDialog->SetParent(&Root());

    EXPECT_EQ(uiBefore + 1, CGUITestAccess::GetNOFRaises());
    EXPECT_EQ(Root().GetFirstChild(), Find(OBJ_1));
}

TEST_F(CObjectIndexTest, AnObjectRaisedAfterTheCountOfRaisesRanOver_IsNotFoundAsTheFirstAnyMore)
{
    for (const eC_Bool bInvisible : {false, true})
    {
        CGUITestAccess::SetNOFRaises(1000);
        const CGUIObject kLowest(&Root());
        CGUICompositeObject kDialog(&Root());
        kDialog.SetInvisible(bInvisible);
        auto* pkFirst = new CGUIObject(&kDialog, OBJ_1);
        auto* pkSecond = new CGUIObject(&kDialog, OBJ_1);
        EXPECT_EQ(pkFirst, Find(OBJ_1));
        CGUITestAccess::SetNOFRaises(0xFFFFFFFFU);
        const CGUIObject kLast(&Root());
        EXPECT_EQ(6U, CGUITestAccess::GetNOFRaises());
        EXPECT_EQ(pkFirst, Find(OBJ_1));

        kDialog.DrawOnTop(pkFirst);

        EXPECT_EQ(pkSecond, Find(OBJ_1)) << bInvisible;
    }
}

TEST_F(CObjectIndexTest, TreeBuiltBeforeTheCountOfRaisesRanOver_IsAttachedInItsOrder)
{
    CGUITestAccess::SetNOFRaises(0xFFFFFFFFU - 2);
    auto* pkDialog = new CGUICompositeObject(nullptr, DLG_A);
    auto* pkBelow = new CGUICompositeObject(pkDialog);
    auto* pkAbove = new CGUICompositeObject(pkDialog);
    auto* pkSecond = new CGUIObject(pkAbove, OBJ_1);
    auto* pkFirst = new CGUIObject(pkBelow, OBJ_1);

    pkDialog->SetParent(&Root());
    EXPECT_EQ(pkFirst, Find(OBJ_1));

    pkDialog->DrawOnTop(pkBelow);
    EXPECT_EQ(pkSecond, Find(OBJ_1));
    EXPECT_GT(10U, CGUITestAccess::GetNOFRaises());
}

TEST_F(CObjectIndexTest, OfAnAncestorAndItsDescendantWithOneIdentifier_TheAncestorIsFound)
{
    auto* pkOuter = new CGUICompositeObject(&Root(), DLG_A);
    auto* pkInner = new CGUICompositeObject(pkOuter, OBJ_1);
    new CGUIObject(pkInner, OBJ_1);
    EXPECT_EQ(pkInner, Find(OBJ_1));

    pkOuter->SetID(OBJ_1);
    EXPECT_EQ(pkOuter, Find(OBJ_1));
    EXPECT_EQ(pkInner, pkInner->GetObjectByID(OBJ_1, false));
}

TEST_F(CObjectIndexTest, ARootWithAnIdentifier_IsFoundFirst)
{
    new CGUIObject(&Root(), OBJ_1);

    Root().SetID(OBJ_1);

    EXPECT_EQ(&Root(), Find(OBJ_1));
}

TEST_F(CObjectIndexTest, ARootWithAnIdentifier_IsFoundBeforeItsLowestChildThatGotItLater)
{
    CGUITestAccess::SetNOFRaises(0);
    auto* pkLowest = new CGUIObject(&Root());
    auto* pkRaised = new CGUIObject(&Root(), OBJ_1);
    new CGUIObject(&Root(), OBJ_1);
    Root().DrawOnTop(pkRaised);
    Root().SetID(OBJ_1);
    pkLowest->SetID(OBJ_1);

    pkRaised->SetID(NO_HANDLE);

    EXPECT_EQ(&Root(), Find(OBJ_1));
    EXPECT_EQ(pkLowest, pkLowest->GetObjectByID(OBJ_1, false));
}

TEST_F(CObjectIndexTest, ARootWithAnIdentifier_IsFoundBeforeItsLowestChildWhenTheCountOfRaisesRunsOver)
{
    auto* pkLowest = new CGUIObject(&Root());
    auto* pkRaised = new CGUIObject(&Root(), OBJ_1);
    new CGUIObject(&Root(), OBJ_1);
    Root().DrawOnTop(pkRaised);
    Root().SetID(OBJ_1);
    pkLowest->SetID(OBJ_1);
    pkRaised->SetID(NO_HANDLE);
    CGUITestAccess::SetNOFRaises(0xFFFFFFFFU);

    new CGUIObject(&Root());

    EXPECT_EQ(5U, CGUITestAccess::GetNOFRaises());
    EXPECT_EQ(&Root(), Find(OBJ_1));
}

TEST_F(CObjectIndexTest, ManyMoreObjectsThanTheIndexBeganWith_AreAllFound)
{
    const int iNOFObjects = 1000;
    std::vector<CGUIObject*> kObjects;
    kObjects.reserve(iNOFObjects);
    for (int iObject = 0; iObject < iNOFObjects; ++iObject)
    {
        kObjects.push_back(new CGUIObject(&Root(), static_cast<ObjectHandle_t>(1000 + iObject * 16)));
    }

    for (int iObject = 0; iObject < iNOFObjects; ++iObject)
    {
        const auto eID = static_cast<ObjectHandle_t>(1000 + iObject * 16);
        ASSERT_EQ(kObjects[static_cast<std::size_t>(iObject)], Find(eID));
        ASSERT_EQ(nullptr, Find(static_cast<ObjectHandle_t>(eID + 1)));
    }
}

TEST_F(CObjectIndexTest, AsManyIdentifiersInARowAsPlacesFromAMultipleOfThem_HaveAPlaceEach)
{
    for (int iID = 0; iID < 16; ++iID)
    {
        new CGUIObject(&Root(), static_cast<ObjectHandle_t>(160 + iID));
    }

    const std::vector<const CGUIObject*> kBuckets = CGUITestAccess::GetBuckets(Root());
    EXPECT_EQ(std::size_t{16}, kBuckets.size());
    EXPECT_EQ(0, std::count(kBuckets.begin(), kBuckets.end(), nullptr));
}

TEST_F(CObjectIndexTest, IdentifiersInSteps_ShareTheirPlacesWithFewOthers)
{
    const int iNOFObjects = 1000;
    for (const int iStep : {1, 2, 10, 16, 17, 64, 100, 256, 1000, 1024, 4096, 65536, 1048576})
    {
        std::vector<std::unique_ptr<CGUIObject>> kObjects;
        kObjects.reserve(iNOFObjects);
        for (int iObject = 0; iObject < iNOFObjects; ++iObject)
        {
            const auto eID = static_cast<ObjectHandle_t>(1000 + iObject * iStep);
            kObjects.push_back(std::make_unique<CGUIObject>(&Root(), eID));
        }

        int iStepsToAll = 0;
        for (const CGUIObject* pkObject : CGUITestAccess::GetBuckets(Root()))
        {
            for (int iSteps = 1; pkObject != nullptr; ++iSteps)
            {
                iStepsToAll += iSteps;
                pkObject = CGUITestAccess::GetNextInBucket(*pkObject);
            }
        }
        EXPECT_GE(3 * iNOFObjects, iStepsToAll) << iStep;
    }
}

TEST_F(CObjectIndexTest, Index_GrowsWhenObjectsGetIdentifiersAndNotWhenTheyAreAttached)
{
    std::vector<std::unique_ptr<CGUIObject>> kObjects;
    kObjects.reserve(200);
    for (int iObject = 0; iObject < 200; ++iObject)
    {
        kObjects.push_back(std::make_unique<CGUIObject>());
    }

    const CAllocationCounter kIdentifying;
    for (int iObject = 0; iObject < 200; ++iObject)
    {
        kObjects[static_cast<std::size_t>(iObject)]->SetID(static_cast<ObjectHandle_t>(iObject + 1));
    }
    EXPECT_GE(kIdentifying.GetNumber(), 1U);
    EXPECT_GE(kIdentifying.GetBytes(), 200 * sizeof(void*));

    const CAllocationCounter kAttaching;
    for (const std::unique_ptr<CGUIObject>& pkObject : kObjects)
    {
        pkObject->SetParent(&Root());
    }
    EXPECT_EQ(0U, kAttaching.GetNumber());
}

TEST_F(CObjectIndexTest, Searching_AllocatesNothing)
{
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    new CGUIObject(pkDialog, OBJ_1);
    new CGUIObject(&Root(), OBJ_1);
    Root().DrawOnTop(pkDialog);
    const CAllocationCounter kCounter;

    Find(OBJ_1);
    Find(OBJ_1, true);
    pkDialog->GetObjectByID(OBJ_1, true);

    EXPECT_EQ(0U, kCounter.GetNumber());
}

TEST_F(CObjectIndexTest, WithoutMemoryToGrow_TheIndexStillFindsEverything)
{
    std::vector<std::unique_ptr<CGUIObject>> kObjects;
    kObjects.reserve(200);
    for (int iObject = 0; iObject < 200; ++iObject)
    {
        kObjects.push_back(std::make_unique<CGUIObject>());
    }
    {
        const CAllocationFailure kFailure;
        for (int iObject = 0; iObject < 200; ++iObject)
        {
            kObjects[static_cast<std::size_t>(iObject)]->SetID(static_cast<ObjectHandle_t>(iObject + 1));
            kObjects[static_cast<std::size_t>(iObject)]->SetParent(&Root());
        }
    }

    for (int iObject = 0; iObject < 200; ++iObject)
    {
        EXPECT_EQ(kObjects[static_cast<std::size_t>(iObject)].get(),
                  Find(static_cast<ObjectHandle_t>(iObject + 1)));
    }
}

TEST_F(CObjectIndexTest, Index_GrowsToTheNextPowerOfTwoAndOnlyWhenItIsTooSmall)
{
    struct Step_t
    {
        eC_UInt m_uiObjects;
        std::size_t m_uiBuckets;
        std::size_t m_uiAllocatedBuckets;
    };
    for (const Step_t& kStep : {Step_t{0, 16, 0}, Step_t{16, 16, 0}, Step_t{17, 32, 32}, Step_t{32, 32, 0},
                                Step_t{64, 64, 64}, Step_t{65, 128, 128}, Step_t{20, 128, 0}})
    {
        const CAllocationCounter kCounter;
        CGUITestAccess::GetIndex(Root()).Reserve(kStep.m_uiObjects);
        EXPECT_EQ(kStep.m_uiAllocatedBuckets * sizeof(void*), kCounter.GetBytes()) << kStep.m_uiObjects;
        EXPECT_EQ(kStep.m_uiBuckets, CGUITestAccess::GetBuckets(Root()).size()) << kStep.m_uiObjects;
    }
}

TEST_F(CObjectIndexTest, AFormerHead_KeepsNothingOfItsBucketsChain)
{
    auto* pkEarlier = new CGUICompositeObject(&Root());
    auto* pkHead = new CGUIObject(&Root(), DLG_A);
    // One of these identifiers has the same position in the index as DLG_A.
    std::vector<std::unique_ptr<CGUIObject>> kOthers;
    for (int iID = 100; CGUITestAccess::GetNextInBucket(*pkHead) == nullptr; ++iID)
    {
        ASSERT_GT(200, iID);
        kOthers.clear();
        kOthers.push_back(std::make_unique<CGUIObject>(&Root(), static_cast<ObjectHandle_t>(iID)));
    }

    auto* pkFirst = new CGUIObject(pkEarlier, DLG_A);

    EXPECT_EQ(pkFirst, Find(DLG_A));
    EXPECT_EQ(kOthers.front().get(), CGUITestAccess::GetNextInBucket(*pkFirst));
    EXPECT_EQ(nullptr, CGUITestAccess::GetNextInBucket(*pkHead));

    Root().DrawOnTop(pkEarlier);

    EXPECT_EQ(pkHead, Find(DLG_A));
    EXPECT_EQ(kOthers.front().get(), CGUITestAccess::GetNextInBucket(*pkHead));
    EXPECT_EQ(nullptr, CGUITestAccess::GetNextInBucket(*pkFirst));
}

TEST_F(CObjectIndexTest, RoomForMoreObjectsThanFitIntoMemory_IsAskedForInVain)
{
    auto* pkDialog = new CGUIObject(&Root(), DLG_A);
    {
        const CAllocationFailure kFailure;
        CGUITestAccess::GetIndex(Root()).Reserve(0xFFFFFFFFU);
    }

    EXPECT_EQ(std::size_t{16}, CGUITestAccess::GetBuckets(Root()).size());
    EXPECT_EQ(pkDialog, Find(DLG_A));
}

/** The parameters of a random forest. */
struct ForestParameters_t
{
    unsigned m_uiSeed;
    int m_iNOFIDs;     ///< few: many objects share an identifier; many: identifiers share an index position
    int m_iNOFObjects; ///< about this many exist at a time
};

void PrintTo(const ForestParameters_t& kParameters, std::ostream* pStream)
{
    *pStream << "seed " << kParameters.m_uiSeed << ", " << kParameters.m_iNOFIDs << " identifiers, "
             << kParameters.m_iNOFObjects << " objects";
}

/** Changes a forest at random and compares every search with the naive one. */
class CRandomForestTest : public CObjectIndexTest, public ::testing::WithParamInterface<ForestParameters_t>
{
protected:
    CRandomForestTest() : m_kRandom(GetParam().m_uiSeed) {}

    ~CRandomForestTest() override
    {
        // Destroying an object destroys everything below it.
        while (!m_kObjects.empty())
        {
            Destroy(m_kObjects.front());
        }
    }

    int Random(int iBelow) { return static_cast<int>(m_kRandom() % static_cast<unsigned>(iBelow)); }

    ObjectHandle_t RandomID() { return static_cast<ObjectHandle_t>(Random(GetParam().m_iNOFIDs + 1)); }

    CGUIObject* RandomObject() { return m_kObjects[static_cast<std::size_t>(Random(GetNOFObjects()))]; }

    int GetNOFObjects() const { return static_cast<int>(m_kObjects.size()); }

    /** @return a composite that may take the object as its child, the root, or null */
    CGUICompositeObject* RandomParentFor(const CGUIObject* pkObject)
    {
        const int iKind = Random(6);
        if (iKind == 0)
        {
            return nullptr;
        }
        if (iKind == 1 || m_kObjects.empty())
        {
            return &Root();
        }
        CGUIObject* pkParent = RandomObject();
        const bool bMay = pkParent->IsCompositeObject() && pkParent != pkObject &&
                          (pkObject == nullptr || !pkParent->IsDescendantOf(pkObject));
        return bMay ? static_cast<CGUICompositeObject*>(pkParent) : &Root();
    }

    void Make()
    {
        CGUICompositeObject* pkParent = RandomParentFor(nullptr);
        m_kObjects.push_back(Random(2) == 0 ? new CGUIObject(pkParent, RandomID())
                                            : new CGUICompositeObject(pkParent, RandomID()));
    }

    void Destroy(CGUIObject* pkObject)
    {
        m_kObjects.erase(std::remove_if(m_kObjects.begin(), m_kObjects.end(),
                                        [pkObject](const CGUIObject* pkOther)
                                        { return pkOther == pkObject || pkOther->IsDescendantOf(pkObject); }),
                         m_kObjects.end());
        delete pkObject;
    }

    void ChangeSomething()
    {
        if (GetNOFObjects() < GetParam().m_iNOFObjects / 2)
        {
            Make();
            return;
        }
        CGUIObject* pkObject = RandomObject();
        switch (Random(12))
        {
        case 0:
        case 1:
            Make();
            break;
        case 2:
        case 3:
        case 4:
            pkObject->SetID(RandomID());
            break;
        case 5:
        case 6:
            pkObject->SetParent(RandomParentFor(pkObject));
            break;
        case 7:
        case 8:
        case 9:
            if (pkObject->GetParent() != nullptr)
            {
                pkObject->GetParent()->DrawOnTop(pkObject);
            }
            break;
        case 10:
            pkObject->SetInvisible(!pkObject->IsInvisible());
            break;
        default:
            if (GetNOFObjects() > GetParam().m_iNOFObjects || Random(3) == 0)
            {
                Destroy(pkObject);
            }
            break;
        }
    }

    void ExpectNaiveAnswer(const CGUIObject& kTop)
    {
        for (const bool bOnlyVisible : {false, true})
        {
            const ObjectHandle_t eID = RandomID();
            ASSERT_EQ(FindNaively(&kTop, eID, bOnlyVisible), kTop.GetObjectByID(eID, bOnlyVisible))
                << "identifier " << eID << ", seed " << GetParam().m_uiSeed;
        }
    }

private:
    std::mt19937 m_kRandom;
    std::vector<CGUIObject*> m_kObjects;
};

TEST_P(CRandomForestTest, Search_AnswersAsAWalkInPreOrderWould)
{
    for (int iStep = 0; iStep < 20000; ++iStep)
    {
        ChangeSomething();
        // Not after every change, because the index must also be right after several changes in a row.
        if (Random(3) == 0)
        {
            ASSERT_NO_FATAL_FAILURE(ExpectNaiveAnswer(Root())) << "step " << iStep;
        }
        if (Random(3) == 0 && GetNOFObjects() > 0)
        {
            ASSERT_NO_FATAL_FAILURE(ExpectNaiveAnswer(*RandomObject())) << "step " << iStep;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Forests, CRandomForestTest,
                         ::testing::Values(ForestParameters_t{1, 5, 30}, ForestParameters_t{2, 5, 60},
                                           ForestParameters_t{3, 2, 30}, ForestParameters_t{4, 60, 100},
                                           ForestParameters_t{5, 200, 150}));
} // namespace
