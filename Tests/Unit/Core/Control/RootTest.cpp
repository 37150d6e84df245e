#include "Core/Control/GUI.h"

#include "Core/GUIEventHandler.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "TestSupport/ObjectCensus.h"
#include "Tests/Unit/AssertionDeath.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
/** No root yet, and a check that nothing is left over. */
class CRootTest : public ::testing::Test
{
protected:
    CRootTest() : m_kBefore(TakeObjectCensus()) {}

    ~CRootTest() override { EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus())); }

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

TEST_F(CRootTest, ANewRoot_CanFollowTheOldOne)
{
    std::make_unique<CGUI>().reset();
    CGUI kRoot;
    auto* pkObject = new CGUIObject(&kRoot, OBJ_1);

    EXPECT_EQ(pkObject, kRoot.GetObjectByID(OBJ_1, false));
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
