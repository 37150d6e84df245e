// SPDX-License-Identifier: MIT
#include "Core/Utils/SafeGUIObjectPtr.h"

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "TestSupport/TestAccess.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <type_traits>
#include <vector>

namespace
{
using Pointers_t = std::vector<const CSafeGUIObjectPtr*>;

/** Other tests and static objects may have safe pointers too, so a test looks only at those after them. */
class CSafeGUIObjectPtrTest : public ::testing::Test
{
protected:
    CSafeGUIObjectPtrTest() : m_uiBefore(CGUITestAccess::GetSafePointers().size()) {}

    void TearDown() override { EXPECT_EQ(GetRegistered(), Pointers_t()); }

    /** @return the safe pointers made since the test began, in the order of the list */
    Pointers_t GetRegistered() const
    {
        const Pointers_t kAll = CGUITestAccess::GetSafePointers();
        return Pointers_t(kAll.begin() + static_cast<std::ptrdiff_t>(m_uiBefore), kAll.end());
    }

private:
    std::size_t m_uiBefore;
};

/** An object that records what a safe pointer to it says when its memory is released. */
class CReleaseWitness : public CGUIObject
{
public:
    static void* operator new(std::size_t uiSize) { return ::operator new(uiSize); }

    static void operator delete(void* pMemory)
    {
        ms_bWasNullOnRelease = ms_pkPointer->get() == nullptr;
        ::operator delete(pMemory);
    }

    static inline const CSafeGUIObjectPtr* ms_pkPointer = nullptr;
    static inline bool ms_bWasNullOnRelease = false;
};

TEST_F(CSafeGUIObjectPtrTest, Type_IsNoLargerThanAPlainPointerAndNotPolymorphic)
{
    EXPECT_EQ(sizeof(CSafeGUIObjectPtr), sizeof(void*));
    EXPECT_FALSE(std::is_polymorphic_v<CSafeGUIObjectPtr>);
}

TEST_F(CSafeGUIObjectPtrTest, DefaultConstruction_IsNullAndEntersTheList)
{
    const CSafeGUIObjectPtr kPointer;
    EXPECT_EQ(nullptr, kPointer.get());
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kPointer}));
}

TEST_F(CSafeGUIObjectPtrTest, ConstructionFromAnObject_PointsToItAndEntersTheList)
{
    CGUIObject kObject;
    const CSafeGUIObjectPtr kPointer(&kObject);
    EXPECT_EQ(kPointer.get(), &kObject);
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kPointer}));
}

TEST_F(CSafeGUIObjectPtrTest, CopyConstruction_PointsToTheSameObjectWithAnEntryOfItsOwn)
{
    CGUIObject kObject;
    const CSafeGUIObjectPtr kPointer(&kObject);
    const CSafeGUIObjectPtr kCopy(kPointer);
    EXPECT_EQ(kCopy.get(), &kObject);
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kPointer, &kCopy}));
}

TEST_F(CSafeGUIObjectPtrTest, List_HoldsEveryPointerInOrderOfConstruction)
{
    CGUIObject kObject;
    const CSafeGUIObjectPtr kFirst;
    const CSafeGUIObjectPtr kSecond(&kObject);
    const CSafeGUIObjectPtr kThird(kFirst);
    const CSafeGUIObjectPtr kFourth(&kObject);
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kFirst, &kSecond, &kThird, &kFourth}));
}

TEST_F(CSafeGUIObjectPtrTest, Destruction_TakesOutItsOwnEntryOnly)
{
    CGUIObject kObject;
    const CSafeGUIObjectPtr kFirst(&kObject);
    auto pSecond = std::make_unique<CSafeGUIObjectPtr>(&kObject);
    const CSafeGUIObjectPtr kThird(&kObject);
    pSecond.reset();
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kFirst, &kThird}));
    EXPECT_EQ(kFirst.get(), &kObject);
    EXPECT_EQ(kThird.get(), &kObject);
}

TEST_F(CSafeGUIObjectPtrTest, DestructionOfTheObject_ResetsThePointer)
{
    auto pObject = std::make_unique<CGUIObject>();
    const CSafeGUIObjectPtr kPointer(pObject.get());
    pObject.reset();
    EXPECT_EQ(nullptr, kPointer.get());
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kPointer}));
}

TEST_F(CSafeGUIObjectPtrTest, DestructionOfTheObject_ResetsAllPointersToItAndNoOther)
{
    CGUIObject kOther;
    auto pObject = std::make_unique<CGUIObject>();
    const CSafeGUIObjectPtr kBefore(&kOther);
    const CSafeGUIObjectPtr kFirst(pObject.get());
    const CSafeGUIObjectPtr kBetween(&kOther);
    const CSafeGUIObjectPtr kSecond(pObject.get());
    const CSafeGUIObjectPtr kNull;
    pObject.reset();
    EXPECT_EQ(kBefore.get(), &kOther);
    EXPECT_EQ(nullptr, kFirst.get());
    EXPECT_EQ(kBetween.get(), &kOther);
    EXPECT_EQ(nullptr, kSecond.get());
    EXPECT_EQ(nullptr, kNull.get());
}

TEST_F(CSafeGUIObjectPtrTest, DestructionOfTheObject_ResetsThePointerBeforeTheMemoryIsReleased)
{
    auto* pkObject = new CReleaseWitness;
    const CSafeGUIObjectPtr kPointer(pkObject);
    CReleaseWitness::ms_pkPointer = &kPointer;
    CReleaseWitness::ms_bWasNullOnRelease = false;
    delete pkObject;
    CReleaseWitness::ms_pkPointer = nullptr;
    EXPECT_TRUE(CReleaseWitness::ms_bWasNullOnRelease);
}

TEST_F(CSafeGUIObjectPtrTest, DestructionOfAParent_ResetsThePointersToAllUnderIt)
{
    auto pkParent = std::make_unique<CGUICompositeObject>();
    auto* pkChild = new CGUICompositeObject(pkParent.get());
    auto* pkGrandchild = new CGUIObject(pkChild);
    const CSafeGUIObjectPtr kToParent(pkParent.get());
    const CSafeGUIObjectPtr kToChild(pkChild);
    const CSafeGUIObjectPtr kToGrandchild(pkGrandchild);
    pkParent.reset();
    EXPECT_EQ(nullptr, kToParent.get());
    EXPECT_EQ(nullptr, kToChild.get());
    EXPECT_EQ(nullptr, kToGrandchild.get());
}

TEST_F(CSafeGUIObjectPtrTest, DestructionOfOneCopy_LeavesTheOtherToBeReset)
{
    auto pObject = std::make_unique<CGUIObject>();
    auto pOriginal = std::make_unique<CSafeGUIObjectPtr>(pObject.get());
    const CSafeGUIObjectPtr kCopy(*pOriginal);
    pOriginal.reset();
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kCopy}));
    EXPECT_EQ(kCopy.get(), pObject.get());
    pObject.reset();
    EXPECT_EQ(nullptr, kCopy.get());
}

TEST_F(CSafeGUIObjectPtrTest, DestructionOfACopy_LeavesTheOriginalToBeReset)
{
    auto pObject = std::make_unique<CGUIObject>();
    const CSafeGUIObjectPtr kOriginal(pObject.get());
    auto pCopy = std::make_unique<CSafeGUIObjectPtr>(kOriginal);
    pCopy.reset();
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kOriginal}));
    EXPECT_EQ(kOriginal.get(), pObject.get());
    pObject.reset();
    EXPECT_EQ(nullptr, kOriginal.get());
}

TEST_F(CSafeGUIObjectPtrTest, Assignment_SetsTheObjectAndLeavesTheListAlone)
{
    CGUIObject kObject;
    CGUIObject kOther;
    CSafeGUIObjectPtr kFirst(&kObject);
    CSafeGUIObjectPtr kSecond(&kOther);
    const Pointers_t kRegistered = {&kFirst, &kSecond};
    EXPECT_EQ(&(kFirst = kSecond), &kFirst);
    EXPECT_EQ(kFirst.get(), &kOther);
    EXPECT_EQ(GetRegistered(), kRegistered);
    EXPECT_EQ(&(kFirst = &kObject), &kFirst);
    EXPECT_EQ(kFirst.get(), &kObject);
    EXPECT_EQ(kSecond.get(), &kOther);
    EXPECT_EQ(GetRegistered(), kRegistered);
    kFirst = nullptr;
    EXPECT_EQ(nullptr, kFirst.get());
    EXPECT_EQ(GetRegistered(), kRegistered);
    const CSafeGUIObjectPtr& kSame = kSecond;
    kSecond = kSame;
    EXPECT_EQ(kSecond.get(), &kOther);
    EXPECT_EQ(GetRegistered(), kRegistered);
}

TEST_F(CSafeGUIObjectPtrTest, AssignedPointer_IsResetWithItsNewObjectOnly)
{
    auto pOld = std::make_unique<CGUIObject>();
    auto pNew = std::make_unique<CGUIObject>();
    CSafeGUIObjectPtr kPointer(pOld.get());
    kPointer = pNew.get();
    pOld.reset();
    EXPECT_EQ(kPointer.get(), pNew.get());
    pNew.reset();
    EXPECT_EQ(nullptr, kPointer.get());
}

TEST_F(CSafeGUIObjectPtrTest, Access_GivesTheObjectInEveryForm)
{
    CGUIObject kObject(nullptr, OBJ_MSGBOX_OK);
    const CSafeGUIObjectPtr kPointer(&kObject);
    CGUIObject* pConverted = kPointer;
    EXPECT_EQ(pConverted, &kObject);
    EXPECT_EQ(&*kPointer, &kObject);
    EXPECT_EQ(OBJ_MSGBOX_OK, kPointer->GetID());
    EXPECT_EQ(kPointer.get(), &kObject);
    EXPECT_TRUE(kPointer != nullptr);
    const CSafeGUIObjectPtr kNull;
    EXPECT_TRUE(kNull == nullptr);
}

TEST_F(CSafeGUIObjectPtrTest, Reset_BecomesNullAndStaysInTheList)
{
    CGUIObject kObject;
    CSafeGUIObjectPtr kPointer(&kObject);
    kPointer.Reset();
    EXPECT_EQ(nullptr, kPointer.get());
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kPointer}));
}

TEST_F(CSafeGUIObjectPtrTest, NotifyOfDestruction_ConcernsItsOwnObjectOnly)
{
    CGUIObject kObject;
    CGUIObject kOther;
    CSafeGUIObjectPtr kPointer(&kObject);
    CGUITestAccess::NotifyOfDestruction(kPointer, &kOther);
    EXPECT_EQ(kPointer.get(), &kObject);
    CGUITestAccess::NotifyOfDestruction(kPointer, nullptr);
    EXPECT_EQ(kPointer.get(), &kObject);
    CGUITestAccess::NotifyOfDestruction(kPointer, &kObject);
    EXPECT_EQ(nullptr, kPointer.get());
    EXPECT_EQ(GetRegistered(), (Pointers_t{&kPointer}));
}
} // namespace
