// SPDX-License-Identifier: MIT
#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"

#include "Core/GUIEventHandler.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "TestSupport/ObjectCensus.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/AssertionDeath.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace
{
/** An object that records its destruction. */
class CMortal : public CGUIObject
{
public:
    CMortal(CGUICompositeObject* pkParent, ObjectHandle_t eID, std::vector<ObjectHandle_t>& kDeaths)
        : CGUIObject(pkParent, eID), m_kDeaths(kDeaths)
    {
    }

    ~CMortal() override { m_kDeaths.push_back(GetID()); }

private:
    std::vector<ObjectHandle_t>& m_kDeaths;
};

/** An object that reads a safe pointer at the moment when its own memory is released. */
class CReleaseWitness : public CGUIObject
{
public:
    static void* operator new(std::size_t uiBytes) { return ::operator new(uiBytes); }

    static void operator delete(void* pMemory)
    {
        ms_bWasNullAtRelease = ms_pkWatched->get() == nullptr;
        ::operator delete(pMemory);
    }

    static const CSafeGUIObjectPtr* ms_pkWatched;
    static bool ms_bWasNullAtRelease;
};

const CSafeGUIObjectPtr* CReleaseWitness::ms_pkWatched = nullptr;
bool CReleaseWitness::ms_bWasNullAtRelease = false;

/** A root, and a check that nothing is left over at the end. */
class CObjectTreeTest : public ::testing::Test
{
protected:
    CObjectTreeTest() : m_kBefore(TakeObjectCensus()), m_pkRoot(new CGUI) {}

    ~CObjectTreeTest() override
    {
        m_pkRoot.reset();
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    CGUI& Root() { return *m_pkRoot; }

    static std::vector<ObjectHandle_t> ChildrenOf(const CGUICompositeObject& kParent)
    {
        std::vector<ObjectHandle_t> kIDs;
        for (const CGUIObject* pkChild = kParent.GetFirstChild(); pkChild != nullptr;
             pkChild = pkChild->GetNextSibling())
        {
            EXPECT_EQ(&kParent, pkChild->GetParent());
            kIDs.push_back(pkChild->GetID());
        }
        return kIDs;
    }

    std::vector<ObjectHandle_t> m_kDeaths; ///< of the mortal objects, in order

private:
    ObjectCensus_t m_kBefore;
    std::unique_ptr<CGUI> m_pkRoot;
};

using IDs_t = std::vector<ObjectHandle_t>;

TEST_F(CObjectTreeTest, NewObject_IsVisibleNotFocusableDetachedAndAnonymous)
{
    const CGUIObject kObject;
    const CGUICompositeObject kComposite;

    for (const CGUIObject* pkObject : {&kObject, static_cast<const CGUIObject*>(&kComposite)})
    {
        EXPECT_EQ(NO_HANDLE, pkObject->GetID());
        EXPECT_FALSE(pkObject->IsInvisible());
        EXPECT_FALSE(pkObject->IsFocusable());
        EXPECT_EQ(nullptr, pkObject->GetParent());
        EXPECT_EQ(nullptr, pkObject->GetNextSibling());
    }
    EXPECT_FALSE(kObject.IsCompositeObject());
    EXPECT_TRUE(kComposite.IsCompositeObject());
    EXPECT_TRUE(Root().IsCompositeObject());
    EXPECT_EQ(nullptr, kComposite.GetFirstChild());
}

TEST_F(CObjectTreeTest, Construction_AttachesAtTheTopOfTheDrawingOrder)
{
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    new CGUIObject(pkDialog, OBJ_1);
    new CGUIObject(pkDialog, OBJ_2);
    new CGUICompositeObject(pkDialog, OBJ_3);

    EXPECT_EQ(IDs_t({DLG_A}), ChildrenOf(Root()));
    EXPECT_EQ(IDs_t({OBJ_1, OBJ_2, OBJ_3}), ChildrenOf(*pkDialog));
}

TEST_F(CObjectTreeTest, SetParent_AttachesReparentsAndDetaches)
{
    CGUICompositeObject kOne;
    CGUICompositeObject kOther;
    new CGUIObject(&kOne, OBJ_1);
    new CGUIObject(&kOther, OBJ_2);
    CGUIObject kObject(nullptr, OBJ_3);

    kObject.SetParent(&kOne);
    EXPECT_EQ(IDs_t({OBJ_1, OBJ_3}), ChildrenOf(kOne));
    EXPECT_EQ(&kOne, kObject.GetParent());

    kObject.SetParent(&kOther);
    EXPECT_EQ(IDs_t({OBJ_1}), ChildrenOf(kOne));
    EXPECT_EQ(IDs_t({OBJ_2, OBJ_3}), ChildrenOf(kOther));

    kObject.SetParent(nullptr);
    EXPECT_EQ(IDs_t({OBJ_2}), ChildrenOf(kOther));
    EXPECT_EQ(nullptr, kObject.GetParent());
    EXPECT_EQ(nullptr, kObject.GetNextSibling());

    kObject.SetParent(nullptr);
    EXPECT_EQ(nullptr, kObject.GetParent());
}

TEST_F(CObjectTreeTest, SetParent_WithThePresentParent_RaisesTheObject)
{
    CGUICompositeObject kParent;
    auto* pkFirst = new CGUIObject(&kParent, OBJ_1);
    new CGUIObject(&kParent, OBJ_2);

    pkFirst->SetParent(&kParent);

    EXPECT_EQ(IDs_t({OBJ_2, OBJ_1}), ChildrenOf(kParent));
}

TEST_F(CObjectTreeTest, SetParent_WithNull_KeepsTheSubtree)
{
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    new CGUIObject(pkDialog, OBJ_1);

    pkDialog->SetParent(nullptr);

    EXPECT_EQ(IDs_t(), ChildrenOf(Root()));
    EXPECT_EQ(IDs_t({OBJ_1}), ChildrenOf(*pkDialog));
    delete pkDialog;
}

TEST_F(CObjectTreeTest, Detaching_FromEveryPlaceAmongSiblings_KeepsTheOthersInOrder)
{
    for (const ObjectHandle_t eDetached : {OBJ_1, OBJ_2, OBJ_3})
    {
        CGUICompositeObject kParent;
        for (const ObjectHandle_t eID : {OBJ_1, OBJ_2, OBJ_3})
        {
            new CGUIObject(&kParent, eID);
        }
        IDs_t kExpected;
        for (const ObjectHandle_t eID : {OBJ_1, OBJ_2, OBJ_3})
        {
            if (eID != eDetached)
            {
                kExpected.push_back(eID);
            }
        }

        delete kParent.GetObjectByID(eDetached, false);

        EXPECT_EQ(kExpected, ChildrenOf(kParent));
        new CGUIObject(&kParent, OBJ_4);
        kExpected.push_back(OBJ_4);
        EXPECT_EQ(kExpected, ChildrenOf(kParent));
    }
}

TEST_F(CObjectTreeTest, AddObject_IsSetParentSeenFromTheParent)
{
    class CReparentingObject : public CGUIObject
    {
    public:
        void SetParent(CGUICompositeObject* pkParent) override
        {
            ++m_iCalls;
            CGUIObject::SetParent(pkParent);
        }

        int m_iCalls = 0;
    };
    CGUICompositeObject kParent;
    new CGUIObject(&kParent, OBJ_1);
    CReparentingObject kObject;
    kObject.SetID(OBJ_2);

    kParent.AddObject(&kObject);

    EXPECT_EQ(1, kObject.m_iCalls);
    EXPECT_EQ(IDs_t({OBJ_1, OBJ_2}), ChildrenOf(kParent));
    kObject.SetParent(nullptr);
}

TEST_F(CObjectTreeTest, AddObject_OfAnotherCompositesChild_MovesItWithAllBelow)
{
    auto* pkOld = new CGUICompositeObject(&Root(), DLG_A);
    auto* pkNew = new CGUICompositeObject(&Root(), DLG_B);
    new CGUIObject(pkOld, OBJ_1);
    auto* pkMoved = new CGUICompositeObject(pkOld, OBJ_2);
    new CGUIObject(pkMoved, OBJ_3);
    new CGUIObject(pkOld, OBJ_4);
    new CGUIObject(pkNew, OBJ_5);

    pkNew->AddObject(pkMoved);

    EXPECT_EQ(IDs_t({OBJ_1, OBJ_4}), ChildrenOf(*pkOld));
    EXPECT_EQ(IDs_t({OBJ_5, OBJ_2}), ChildrenOf(*pkNew));
    EXPECT_EQ(IDs_t({OBJ_3}), ChildrenOf(*pkMoved));
    EXPECT_EQ(pkNew, pkMoved->GetParent());
    EXPECT_EQ(nullptr, pkOld->GetObjectByID(OBJ_3, false));
    EXPECT_NE(nullptr, pkNew->GetObjectByID(OBJ_3, false));
}

TEST_F(CObjectTreeTest, AddObject_OfNull_IsIgnored)
{
    Root().AddObject(nullptr);

    EXPECT_EQ(nullptr, Root().GetFirstChild());
}

TEST_F(CObjectTreeTest, DrawOnTop_MovesAChildToTheTop)
{
    for (const ObjectHandle_t eRaised : {OBJ_1, OBJ_2, OBJ_3})
    {
        CGUICompositeObject kParent;
        for (const ObjectHandle_t eID : {OBJ_1, OBJ_2, OBJ_3})
        {
            new CGUIObject(&kParent, eID);
        }

        kParent.DrawOnTop(kParent.GetObjectByID(eRaised, false));

        const IDs_t kExpected = eRaised == OBJ_1   ? IDs_t({OBJ_2, OBJ_3, OBJ_1})
                                : eRaised == OBJ_2 ? IDs_t({OBJ_1, OBJ_3, OBJ_2})
                                                   : IDs_t({OBJ_1, OBJ_2, OBJ_3});
        EXPECT_EQ(kExpected, ChildrenOf(kParent));
    }
}

TEST_F(CObjectTreeTest, DrawOnTop_OfNullOrOfAnObjectThatIsNoChild_IsIgnored)
{
    CGUICompositeObject kParent;
    auto* pkChild = new CGUICompositeObject(&kParent, OBJ_1);
    auto* pkGrandchild = new CGUIObject(pkChild, OBJ_2);
    new CGUIObject(&kParent, OBJ_3);
    CGUIObject kStranger;

    kParent.DrawOnTop(nullptr);
    kParent.DrawOnTop(pkGrandchild);
    kParent.DrawOnTop(&kStranger);
    kParent.DrawOnTop(&kParent);

    EXPECT_EQ(IDs_t({OBJ_1, OBJ_3}), ChildrenOf(kParent));
    EXPECT_EQ(IDs_t({OBJ_2}), ChildrenOf(*pkChild));
    EXPECT_EQ(nullptr, kStranger.GetParent());
}

TEST_F(CObjectTreeTest, Ancestry_IsStrictAndFalseForNull)
{
    CGUICompositeObject kTop;
    auto* pkMiddle = new CGUICompositeObject(&kTop);
    auto* pkBottom = new CGUICompositeObject(pkMiddle);
    auto* pkSibling = new CGUICompositeObject(&kTop);

    EXPECT_TRUE(kTop.IsAncestorOf(pkMiddle));
    EXPECT_TRUE(kTop.IsAncestorOf(pkBottom));
    EXPECT_FALSE(kTop.IsAncestorOf(&kTop));
    EXPECT_FALSE(kTop.IsAncestorOf(nullptr));
    EXPECT_FALSE(pkMiddle->IsAncestorOf(&kTop));
    EXPECT_FALSE(pkSibling->IsAncestorOf(pkBottom));

    EXPECT_TRUE(pkMiddle->IsDescendantOf(&kTop));
    EXPECT_TRUE(pkBottom->IsDescendantOf(&kTop));
    EXPECT_FALSE(pkBottom->IsDescendantOf(pkBottom));
    EXPECT_FALSE(pkBottom->IsDescendantOf(nullptr));
    EXPECT_FALSE(kTop.IsDescendantOf(nullptr));
    EXPECT_FALSE(kTop.IsDescendantOf(pkBottom));
    EXPECT_FALSE(pkBottom->IsDescendantOf(pkSibling));
}

TEST_F(CObjectTreeTest, Destruction_DestroysTheWholeSubtreeFromTheBottomOfTheDrawingOrder)
{
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    new CMortal(pkDialog, OBJ_1, m_kDeaths);
    auto* pkInner = new CGUICompositeObject(pkDialog, OBJ_2);
    new CMortal(pkInner, OBJ_3, m_kDeaths);
    new CMortal(pkDialog, OBJ_4, m_kDeaths);
    new CMortal(&Root(), OBJ_5, m_kDeaths);

    delete pkDialog;

    EXPECT_EQ(IDs_t({OBJ_1, OBJ_3, OBJ_4}), m_kDeaths);
    EXPECT_EQ(IDs_t({OBJ_5}), ChildrenOf(Root()));
    EXPECT_EQ(nullptr, Root().GetObjectByID(OBJ_3, false));
}

TEST_F(CObjectTreeTest, Destruction_DetachesBeforeItDestroysTheChildren)
{
    class CWitness : public CGUIObject
    {
    public:
        CWitness(CGUICompositeObject* pkParent, std::vector<ObjectHandle_t>& kSeen)
            : CGUIObject(pkParent), m_kSeen(kSeen)
        {
        }

        ~CWitness() override { m_kSeen = ChildrenOf(CGUI::GetInstance()); }

    private:
        std::vector<ObjectHandle_t>& m_kSeen;
    };
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    new CGUICompositeObject(&Root(), DLG_B);
    new CWitness(pkDialog, m_kDeaths);

    delete pkDialog;

    EXPECT_EQ(IDs_t({DLG_B}), m_kDeaths);
}

TEST_F(CObjectTreeTest, Destruction_ResetsEverySafePointerToTheObjectAndToItsChildren)
{
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    const CSafeGUIObjectPtr pkFirst = pkDialog;
    const CSafeGUIObjectPtr pkSecond = pkDialog;
    const CSafeGUIObjectPtr pkChild = new CGUIObject(pkDialog, OBJ_1);
    const CSafeGUIObjectPtr pkOther = new CGUIObject(&Root(), OBJ_2);

    delete pkDialog;

    EXPECT_EQ(nullptr, pkFirst.get());
    EXPECT_EQ(nullptr, pkSecond.get());
    EXPECT_EQ(nullptr, pkChild.get());
    EXPECT_EQ(Root().GetFirstChild(), pkOther.get());
}

TEST_F(CObjectTreeTest, Destruction_ResetsSafePointersBeforeTheMemoryIsReleased)
{
    const CSafeGUIObjectPtr pkPointer = new CReleaseWitness;
    CReleaseWitness::ms_pkWatched = &pkPointer;

    delete pkPointer.get();
    CReleaseWitness::ms_pkWatched = nullptr;

    EXPECT_TRUE(CReleaseWitness::ms_bWasNullAtRelease);
}

TEST_F(CObjectTreeTest, Destruction_ThroughTheBaseClass_RunsTheDerivedDestructor)
{
    CGUIObject* pkObject = new CMortal(nullptr, OBJ_1, m_kDeaths);

    delete pkObject;

    EXPECT_EQ(IDs_t({OBJ_1}), m_kDeaths);
}

TEST_F(CObjectTreeTest, Destruction_ByAChildThatDestroysItsSibling_IsSafe)
{
    class CKiller : public CGUIObject
    {
    public:
        using CGUIObject::CGUIObject;
        ~CKiller() override { delete m_pkVictim.get(); }

        CSafeGUIObjectPtr m_pkVictim;
    };
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    auto* pkKiller = new CKiller(pkDialog, OBJ_1);
    pkKiller->m_pkVictim = new CGUIObject(pkDialog, OBJ_2);
    new CGUIObject(pkDialog, OBJ_3);

    delete pkDialog;

    EXPECT_EQ(IDs_t(), ChildrenOf(Root()));
}

TEST_F(CObjectTreeTest, AnObjectThatAChildAttachesAgainDuringItsDestruction_IsAttachedWithItsOtherChildren)
{
    class CReviver : public CGUIObject
    {
    public:
        CReviver(CGUICompositeObject& kParent, ObjectHandle_t eID)
            : CGUIObject(&kParent, eID), m_kParent(kParent)
        {
        }

        ~CReviver() override { m_kParent.SetParent(&CGUI::GetInstance()); }

    private:
        CGUICompositeObject& m_kParent;
    };
    class CWitness : public CGUIObject
    {
    public:
        CWitness(CGUICompositeObject* pkParent, ObjectHandle_t eID, std::vector<ObjectHandle_t>& kSeen)
            : CGUIObject(pkParent, eID), m_kSeen(kSeen)
        {
        }

        ~CWitness() override
        {
            m_kSeen = ChildrenOf(CGUI::GetInstance());
            EXPECT_EQ(this, CGUI::GetInstance().GetObjectByID(GetID(), false));
        }

    private:
        std::vector<ObjectHandle_t>& m_kSeen;
    };
    auto* pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    new CReviver(*pkDialog, OBJ_1);
    new CWitness(pkDialog, OBJ_2, m_kDeaths);

    delete pkDialog;

    EXPECT_EQ(IDs_t({DLG_A}), m_kDeaths);
    EXPECT_EQ(IDs_t(), ChildrenOf(Root()));
    EXPECT_EQ(nullptr, Root().GetObjectByID(DLG_A, false));
    EXPECT_EQ(nullptr, Root().GetObjectByID(OBJ_2, false));
}

TEST_F(CObjectTreeTest, GetNOFObjects_CountsAllObjectsAlive)
{
    const eC_UInt uiBefore = CGUIObject::GetNOFObjects();
    CGUICompositeObject kParent;
    new CGUIObject(&kParent);
    EXPECT_EQ(uiBefore + 2, CGUIObject::GetNOFObjects());

    delete kParent.GetFirstChild();
    EXPECT_EQ(uiBefore + 1, CGUIObject::GetNOFObjects());
}

TEST_F(CObjectTreeTest, AttachingDetachingAndRaising_AllocateNothing)
{
    auto* pkDialog = new CGUICompositeObject(nullptr, DLG_A);
    for (int iChild = 0; iChild < 100; ++iChild)
    {
        new CGUIObject(pkDialog, static_cast<ObjectHandle_t>(100 + iChild));
    }
    new CGUIObject(&Root(), OBJ_1);
    auto* pkOther = new CGUICompositeObject(&Root(), OBJ_2);
    const CAllocationCounter kCounter;

    pkDialog->SetParent(&Root());
    Root().DrawOnTop(Root().GetFirstChild());
    pkDialog->SetParent(pkOther);
    pkDialog->SetParent(nullptr);
    Root().AddObject(pkDialog);
    pkDialog->SetParent(&Root());
    pkDialog->SetInvisible(true);

    EXPECT_EQ(0U, kCounter.GetNumber());
    EXPECT_EQ(pkDialog, Root().GetObjectByID(DLG_A, false));
    EXPECT_EQ(0U, kCounter.GetNumber());
}

TEST_F(CObjectTreeTest, SetAttribute_TakesInvisibleAndFocusable)
{
    CGUIObject kObject;
    eC_String kExpected("untouched");

    EXPECT_EQ(ATTRIBUTE_SET, kObject.SetAttribute("invisible", "true", kExpected));
    EXPECT_EQ(ATTRIBUTE_SET, kObject.SetAttribute("focusable", "true", kExpected));
    EXPECT_TRUE(kObject.IsInvisible());
    EXPECT_TRUE(kObject.IsFocusable());

    EXPECT_EQ(ATTRIBUTE_SET, kObject.SetAttribute("invisible", "false", kExpected));
    EXPECT_EQ(ATTRIBUTE_SET, kObject.SetAttribute("focusable", "false", kExpected));
    EXPECT_FALSE(kObject.IsInvisible());
    EXPECT_FALSE(kObject.IsFocusable());
    EXPECT_EQ(eC_String("untouched"), kExpected);
}

TEST_F(CObjectTreeTest, SetAttribute_OfABadValue_ChangesNothingAndTellsWhatWasExpected)
{
    for (const char* pcName : {"invisible", "focusable"})
    {
        for (const char* pcValue :
             {"False", "TRUE", "0", "1", "yes", "no", "t", "fals", "true ", " false", ""})
        {
            for (const bool bBefore : {false, true})
            {
                CGUIObject kObject;
                kObject.SetInvisible(bBefore);
                kObject.SetFocusable(bBefore);
                eC_String kExpected;

                EXPECT_EQ(ATTRIBUTE_BAD_VALUE, kObject.SetAttribute(pcName, pcValue, kExpected)) << pcValue;

                EXPECT_EQ(eC_String("true or false"), kExpected);
                EXPECT_EQ(bBefore, kObject.IsInvisible());
                EXPECT_EQ(bBefore, kObject.IsFocusable());
            }
        }
    }
}

TEST_F(CObjectTreeTest, SetAttribute_OfAnUnknownName_TellsTheNamesThatAreKnown)
{
    CGUIObject kObject;
    eC_String kExpected;

    EXPECT_EQ(ATTRIBUTE_UNKNOWN, kObject.SetAttribute("colour", "true", kExpected));

    EXPECT_EQ(eC_String("invisible, focusable"), kExpected);
    EXPECT_FALSE(kObject.IsInvisible());
    EXPECT_FALSE(kObject.IsFocusable());
}

#ifdef TESTS_HAVE_VIRTUAL_SLOTS
TEST_F(CObjectTreeTest, VirtualOperations_StandInTheirOrder)
{
    EXPECT_LE(2, GetVirtualSlot(&CGUIObject::SetParent));
    EXPECT_LT(GetVirtualSlot(&CGUIObject::SetParent), GetVirtualSlot(&CGUIObject::FocusAny));
    EXPECT_LT(GetVirtualSlot(&CGUIObject::FocusAny), GetVirtualSlot(&CGUIObject::SetInvisible));
    EXPECT_LT(GetVirtualSlot(&CGUIObject::SetInvisible), GetVirtualSlot(&CGUIObject::IsCompositeObject));
    EXPECT_LT(GetVirtualSlot(&CGUIObject::IsCompositeObject),
              GetVirtualSlot(&CGUICompositeObject::AddObject));
}
#endif

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
TEST_F(CObjectTreeTest, PuttingAnObjectUnderItself_TripsTheAssertion)
{
    CGUICompositeObject kObject;

    EXPECT_ASSERTION(kObject.SetParent(&kObject), "Source/Core/Control/GUIObject.cpp",
                     "pkParent == nullptr || (pkParent != this && !pkParent->IsDescendantOf(this))");
    EXPECT_ASSERTION(kObject.AddObject(&kObject), "Source/Core/Control/GUIObject.cpp",
                     "pkParent == nullptr || (pkParent != this && !pkParent->IsDescendantOf(this))");
}

TEST_F(CObjectTreeTest, PuttingAnObjectUnderItsDescendant_TripsTheAssertion)
{
    CGUICompositeObject kTop;
    auto* pkMiddle = new CGUICompositeObject(&kTop);
    auto* pkBottom = new CGUICompositeObject(pkMiddle);

    EXPECT_ASSERTION(kTop.SetParent(pkBottom), "Source/Core/Control/GUIObject.cpp",
                     "pkParent == nullptr || (pkParent != this && !pkParent->IsDescendantOf(this))");
    EXPECT_ASSERTION(pkBottom->AddObject(&kTop), "Source/Core/Control/GUIObject.cpp",
                     "pkParent == nullptr || (pkParent != this && !pkParent->IsDescendantOf(this))");
}
#endif
} // namespace
