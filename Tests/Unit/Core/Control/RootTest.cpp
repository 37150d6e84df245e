// SPDX-License-Identifier: MIT
#include "Core/Control/GUI.h"

#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "TestSupport/ObjectCensus.h"
#include "TestSupport/TestAccess.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/AssertionDeath.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
/** Begins without a root and a factory, and checks at the end that nothing is left over. */
class CRootTest : public ::testing::Test
{
protected:
    CRootTest() : m_kBefore(TakeObjectCensus())
    {
        EXPECT_EQ(nullptr, CGUIFactoryManager::ms_pInstance);
        EXPECT_EQ(0U, CGUIObject::GetNOFObjects());
    }

    ~CRootTest() override
    {
        EXPECT_EQ(nullptr, CGUIFactoryManager::ms_pInstance);
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    /** Registers another object class, to tell this factory from others. */
    static void Mark(CGUIFactoryManager& kFactory)
    {
        EXPECT_TRUE(kFactory.RegisterObjectClass<CGUIObject>("Marked"));
    }

    static eC_Bool IsMarked(const CGUIFactoryManager& kFactory)
    {
        return kFactory.FindCreator("Marked") != nullptr;
    }

private:
    ObjectCensus_t m_kBefore;
};

TEST_F(CRootTest, Root_IsTheInstanceWhileItLives)
{
    EXPECT_EQ(nullptr, CGUI::ms_pInstance);
    {
        CGUI kRoot;
        EXPECT_EQ(&kRoot, CGUI::ms_pInstance);
        EXPECT_EQ(&kRoot, &CGUI::GetInstance());
    }
    EXPECT_EQ(nullptr, CGUI::ms_pInstance);
}

TEST_F(CRootTest, Root_IsAnonymousVisibleAndWithoutParent)
{
    const CGUI kRoot;

    EXPECT_EQ(NO_HANDLE, kRoot.GetID());
    EXPECT_EQ(nullptr, kRoot.GetParent());
    EXPECT_EQ(nullptr, kRoot.GetFirstChild());
    EXPECT_FALSE(kRoot.IsInvisible());
    EXPECT_TRUE(kRoot.IsCompositeObject());
}

TEST_F(CRootTest, Destruction_DestroysEverythingBelow)
{
    auto pkRoot = std::make_unique<CGUI>();
    auto* pkDialog = new CGUICompositeObject(pkRoot.get(), DLG_A);
    const CSafeGUIObjectPtr pkObject = new CGUIObject(pkDialog, OBJ_1);
    pkObject->SetFocusable(true);
    EXPECT_TRUE(pkObject->RequestFocus());

    pkRoot.reset();

    EXPECT_EQ(nullptr, pkObject.get());
    EXPECT_EQ(nullptr, CGUIEventHandler::GetInstance().GetFocussedObject());
}

TEST_F(CRootTest, Destruction_ClearsTheInstanceOnlyWhenEverythingBelowIsGone)
{
    class CWitness : public CGUIObject
    {
    public:
        CWitness(CGUICompositeObject* pkParent, CGUI*& pkSeen) : CGUIObject(pkParent), m_pkSeen(pkSeen) {}
        ~CWitness() override { m_pkSeen = CGUI::ms_pInstance; }

    private:
        CGUI*& m_pkSeen;
    };
    CGUI* pkSeen = nullptr;
    auto pkRoot = std::make_unique<CGUI>();
    const CGUI* pkExpected = pkRoot.get();
    new CWitness(pkRoot.get(), pkSeen);

    pkRoot.reset();

    EXPECT_EQ(pkExpected, pkSeen);
}

TEST_F(CRootTest, Destruction_LeavesTheRootAsItWasUntilEverythingBelowIsGone)
{
    class CWitness : public CGUIObject
    {
    public:
        using CGUIObject::CGUIObject;
        ~CWitness() override
        {
            CGUI& kRoot = CGUI::GetInstance();
            EXPECT_EQ(&kRoot, kRoot.GetObjectByID(DLG_A, false));
            const CGUIObject* const pkLate = AddLateObject(kRoot);
            EXPECT_EQ(pkLate, kRoot.GetObjectByID(OBJ_1, false));
        }

    private:
        // It goes with the root, too.
        static CGUIObject* AddLateObject(CGUI& kRoot) { return new CGUIObject(&kRoot, OBJ_1); }
    };
    auto pkRoot = std::make_unique<CGUI>();
    pkRoot->SetID(DLG_A);
    new CWitness(pkRoot.get());

    pkRoot.reset();

    EXPECT_EQ(0U, CGUIObject::GetNOFObjects());
}

TEST_F(CRootTest, ANewRoot_CanFollowTheOldOne)
{
    std::make_unique<CGUI>().reset();
    CGUI kRoot;
    auto* pkObject = new CGUIObject(&kRoot, OBJ_1);

    EXPECT_EQ(pkObject, kRoot.GetObjectByID(OBJ_1, false));
}

TEST_F(CRootTest, Root_CreatesTheFactoryAndDestroysIt)
{
    {
        const CGUI kRoot;
        ASSERT_NE(nullptr, CGUIFactoryManager::ms_pInstance);
        EXPECT_EQ(CGUIFactoryManager::ms_pInstance, &CGUIFactoryManager::GetInstance());
        EXPECT_EQ(eC_String("Object, Composite"), CGUIFactoryManager::GetInstance().GetElementNames());
    }
    EXPECT_EQ(nullptr, CGUIFactoryManager::ms_pInstance);
}

TEST_F(CRootTest, Root_LeavesAFactoryThatWasThereBefore)
{
    Mark(CGUIFactoryManager::CreateInstance());
    {
        const CGUI kRoot;
        EXPECT_TRUE(IsMarked(CGUIFactoryManager::GetInstance()));
    }

    ASSERT_NE(nullptr, CGUIFactoryManager::ms_pInstance);
    EXPECT_TRUE(IsMarked(CGUIFactoryManager::GetInstance()));
    CGUIFactoryManager::DestroyInstance();
}

TEST_F(CRootTest, CreateInstanceUnderARoot_KeepsTheRootsFactoryForTheNextRoot)
{
    auto pkRoot = std::make_unique<CGUI>();
    CGUIFactoryManager& kFactory = CGUIFactoryManager::GetInstance();
    Mark(kFactory);

    EXPECT_EQ(&kFactory, &CGUIFactoryManager::CreateInstance());
    EXPECT_TRUE(IsMarked(kFactory));
    pkRoot.reset();
    EXPECT_EQ(&kFactory, CGUIFactoryManager::ms_pInstance);

    pkRoot = std::make_unique<CGUI>();
    EXPECT_EQ(&kFactory, CGUIFactoryManager::ms_pInstance);
    pkRoot.reset();
    EXPECT_EQ(&kFactory, CGUIFactoryManager::ms_pInstance);
    EXPECT_TRUE(IsMarked(kFactory));
    CGUIFactoryManager::DestroyInstance();
}

TEST_F(CRootTest, DestroyInstanceUnderARoot_DestroysTheRootsFactoryForGood)
{
    const CGUI kRoot;

    CGUIFactoryManager::DestroyInstance();

    EXPECT_EQ(nullptr, CGUIFactoryManager::ms_pInstance);
}

TEST_F(CRootTest, AFactoryThatFollowsTheRootsOwn_IsTheApplications)
{
    {
        const CGUI kRoot;
        CGUIFactoryManager::DestroyInstance();
        Mark(CGUIFactoryManager::CreateInstance());
    }

    ASSERT_NE(nullptr, CGUIFactoryManager::ms_pInstance);
    EXPECT_TRUE(IsMarked(CGUIFactoryManager::GetInstance()));
    CGUIFactoryManager::DestroyInstance();
}

TEST_F(CRootTest, EachOfTwoRootsInTurn_CreatesAFactoryOfItsOwn)
{
    auto pkRoot = std::make_unique<CGUI>();
    Mark(CGUIFactoryManager::GetInstance());
    pkRoot.reset();

    pkRoot = std::make_unique<CGUI>();

    ASSERT_NE(nullptr, CGUIFactoryManager::ms_pInstance);
    EXPECT_FALSE(IsMarked(CGUIFactoryManager::GetInstance()));
}

TEST_F(CRootTest, TheRootsFactory_IsThereUntilEverythingBelowIsGone)
{
    class CWitness : public CGUIObject
    {
    public:
        CWitness(CGUICompositeObject* pkParent, CGUIFactoryManager*& pkSeen)
            : CGUIObject(pkParent), m_pkSeen(pkSeen)
        {
        }
        ~CWitness() override { m_pkSeen = CGUIFactoryManager::ms_pInstance; }

    private:
        CGUIFactoryManager*& m_pkSeen;
    };
    CGUIFactoryManager* pkSeen = nullptr;
    auto pkRoot = std::make_unique<CGUI>();
    const CGUIFactoryManager* pkExpected = CGUIFactoryManager::ms_pInstance;
    new CWitness(pkRoot.get(), pkSeen);

    pkRoot.reset();

    EXPECT_EQ(pkExpected, pkSeen);
}

TEST_F(CRootTest, ARootWithoutMemoryForTheFactory_ThrowsAndLeavesNothing)
{
    // The factory itself, and one node for each class that it knows from the start.
    for (std::size_t uiGranted = 0; uiGranted < 3; ++uiGranted)
    {
        const HeapUse_t kBefore = GetHeapUse();
        {
            const CAllocationFailure kFailure(uiGranted);
            EXPECT_THROW(CGUI(), std::bad_alloc);
        }
        EXPECT_EQ(kBefore.m_uiBlocks, GetHeapUse().m_uiBlocks);
        EXPECT_EQ(nullptr, CGUI::ms_pInstance);
        EXPECT_EQ(nullptr, CGUIFactoryManager::ms_pInstance);
    }
}

TEST_F(CRootTest, ObjectsMadeBeforeTheRoot_AreFoundOnceTheyAreAttached)
{
    auto* pkDialog = new CGUICompositeObject(nullptr, DLG_A);
    for (int iID = 100; iID < 200; ++iID)
    {
        new CGUIObject(pkDialog, static_cast<ObjectHandle_t>(iID));
    }
    CGUI kRoot;
    EXPECT_EQ(nullptr, kRoot.GetObjectByID(DLG_A, false));

    pkDialog->SetParent(&kRoot);

    EXPECT_EQ(pkDialog, kRoot.GetObjectByID(DLG_A, false));
    for (int iID = 100; iID < 200; ++iID)
    {
        const auto eID = static_cast<ObjectHandle_t>(iID);
        ASSERT_NE(nullptr, kRoot.GetObjectByID(eID, false));
        EXPECT_EQ(eID, kRoot.GetObjectByID(eID, false)->GetID());
    }
}

TEST_F(CRootTest, ARootMadeAfterManyObjects_HasAnIndexWithRoomForThem)
{
    CGUICompositeObject kDialog(nullptr, DLG_A);
    for (int iID = 100; iID < 200; ++iID)
    {
        new CGUIObject(&kDialog, static_cast<ObjectHandle_t>(iID));
    }
    auto* pkLast = new CGUIObject(&kDialog);
    CGUI kRoot;
    EXPECT_EQ(std::size_t{128}, CGUITestAccess::GetBuckets(kRoot).size());
    const CAllocationCounter kCounter;

    pkLast->SetID(OBJ_1);

    EXPECT_EQ(0U, kCounter.GetNumber());
    EXPECT_EQ(std::size_t{128}, CGUITestAccess::GetBuckets(kRoot).size());
}

TEST_F(CRootTest, TheIndex_GrowsForTheSeventeenthObjectWithAnIdentifier)
{
    CGUI kRoot;
    for (int iID = 100; iID < 116; ++iID)
    {
        new CGUIObject(&kRoot, static_cast<ObjectHandle_t>(iID));
    }
    EXPECT_EQ(std::size_t{16}, CGUITestAccess::GetBuckets(kRoot).size());

    new CGUIObject(&kRoot, OBJ_1);

    EXPECT_EQ(std::size_t{32}, CGUITestAccess::GetBuckets(kRoot).size());
}

TEST_F(CRootTest, ObjectsThatOutliveTheRoot_CanBeUsedAndAttachedToTheNextOne)
{
    auto pkRoot = std::make_unique<CGUI>();
    auto* pkDialog = new CGUICompositeObject(pkRoot.get(), DLG_A);
    auto* pkObject = new CGUIObject(pkDialog, OBJ_1);
    pkDialog->SetParent(nullptr);
    pkRoot.reset();
    pkObject->SetID(OBJ_2);
    EXPECT_EQ(pkObject, pkDialog->GetObjectByID(OBJ_2, false));

    CGUI kNewRoot;
    pkDialog->SetParent(&kNewRoot);

    EXPECT_EQ(pkObject, kNewRoot.GetObjectByID(OBJ_2, false));
    EXPECT_EQ(nullptr, kNewRoot.GetObjectByID(OBJ_1, false));
}

TEST_F(CRootTest, SetParentWithNull_LeavesTheRootAsItIs)
{
    CGUI kRoot;
    auto* pkObject = new CGUIObject(&kRoot, OBJ_1);
    pkObject->SetFocusable(true);
    EXPECT_TRUE(pkObject->RequestFocus());

    kRoot.SetParent(nullptr);

    EXPECT_EQ(pkObject, kRoot.GetObjectByID(OBJ_1, false));
    EXPECT_EQ(pkObject, CGUIEventHandler::GetInstance().GetFocussedObject());
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
TEST_F(CRootTest, GetInstanceWithoutRoot_TripsTheAssertion)
{
    EXPECT_ASSERTION(CGUI::GetInstance(), "Include/Core/Control/GUI.h", "NULL != ms_pInstance");
}

TEST_F(CRootTest, ASecondRoot_TripsTheAssertion)
{
    const CGUI kRoot;

    EXPECT_ASSERTION(CGUI(), "Source/Core/Control/GUI.cpp", "NULL == ms_pInstance");
}

TEST_F(CRootTest, ASecondRoot_TripsTheAssertionBeforeItNeedsMemory)
{
    const CGUI kRoot;
    CGUIFactoryManager::DestroyInstance();
    const auto fnMakeAnotherWithoutMemory = []
    {
        const CAllocationFailure kFailure;
        CGUI();
    };

    EXPECT_ASSERTION(fnMakeAnotherWithoutMemory(), "Source/Core/Control/GUI.cpp", "NULL == ms_pInstance");
}

TEST_F(CRootTest, PuttingTheRootUnderAnything_TripsTheAssertion)
{
    CGUI kRoot;
    CGUICompositeObject kStranger;
    auto* pkChild = new CGUICompositeObject(&kRoot);

    EXPECT_ASSERTION(kRoot.SetParent(&kStranger), "Source/Core/Control/GUI.cpp", "NULL == pkParent");
    EXPECT_ASSERTION(kStranger.AddObject(&kRoot), "Source/Core/Control/GUI.cpp", "NULL == pkParent");
    EXPECT_ASSERTION(pkChild->AddObject(&kRoot), "Source/Core/Control/GUI.cpp", "NULL == pkParent");
}
#endif
} // namespace
