// SPDX-License-Identifier: MIT
#include "TestSupport/StructureChecker.h"
#include "Tests/HookMatrix/HookMatrix.h"

#include <algorithm>
#include <string>
#include <utility>

namespace
{
using Access = CGUITestAccess;

constexpr ObjectHandle_t eProbeDialog = DLG_E;
constexpr ObjectHandle_t eProbePopup = POP_8;

/** @return "C" for DLG_C, "P1" for POP_1, "O1" for OBJ_1, "none" for NO_HANDLE, "#29" for others */
std::string ShortNameOf(ObjectHandle_t eID)
{
    if (eID == NO_HANDLE)
    {
        return "none";
    }
    const std::string kName = NameOfHandle(eID);
    const std::size_t uiUnderscore = kName.find('_');
    if (uiUnderscore == std::string::npos)
    {
        return "#" + kName;
    }
    return (kName[0] == 'D' ? "" : kName.substr(0, 1)) + kName.substr(uiUnderscore + 1);
}

std::string ShortNameOf(const CGUIObject* pkObject)
{
    return pkObject != nullptr ? ShortNameOf(pkObject->GetID()) : "none";
}

std::string ShortNameOf(CGUIDialogManager::EOldDialogAction eAction)
{
    return NameOfAction(eAction).substr(std::string("ODA_").size());
}

/** @return "C after DELETE", plus anything out of the ordinary */
std::string Describe(const Access::DialogDescription_t& kDialog)
{
    if (kDialog.m_eDialogID == NO_HANDLE)
    {
        return "none";
    }
    return ShortNameOf(kDialog.m_eDialogID) + " after " + ShortNameOf(kDialog.m_eOldDialogAction) +
           (kDialog.m_bAllowObjectDeletion ? "" : " kept") + (kDialog.m_bRecoverFocus ? "" : " unfocussed");
}

template <typename TList, typename TPrint>
std::string PrintList(const TList& kList, TPrint kPrint)
{
    std::string kText;
    for (auto kIterator = kList.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        kText += (kText.empty() ? "" : ", ") + kPrint(*kIterator);
    }
    return kText.empty() ? "none" : kText;
}

std::string PrintHistoryEntry(const Access::HistoryEntry_t& kEntry)
{
    const std::string kFocus =
        kEntry.m_eFocussedObject != NO_HANDLE ? " at " + ShortNameOf(kEntry.m_eFocussedObject) : "";
    return Describe(kEntry.m_Dialog) + " left " + ShortNameOf(kEntry.m_eAction) + kFocus;
}

std::string PrintPopup(const Access::PopupDescription_t& kPopup)
{
    const CGUIObject* pkObject = kPopup.GetObject();
    if (pkObject == nullptr)
    {
        return "gone";
    }
    std::string kText = ShortNameOf(pkObject) + (pkObject->IsInvisible() ? " hidden" : " shown");
    kText += pkObject->IsDescendantOf(CGUI::ms_pInstance) ? "" : " detached";
    if (kPopup.IsAnimating())
    {
        kText += " " + std::to_string(GETTIMER.GetTimeUntilCallback(&kPopup)) + " ms";
    }
    return kText;
}

/** @return the children of an object, bottom of the drawing order first, with "-" after hidden ones */
std::string PrintChildren(const CGUICompositeObject& kParent)
{
    std::string kText;
    for (const CGUIObject* pkChild = kParent.GetFirstChild(); pkChild != nullptr;
         pkChild = pkChild->GetNextSibling())
    {
        const std::string kName = pkChild->GetID() != NO_HANDLE ? ShortNameOf(pkChild) : "?";
        kText += (kText.empty() ? "" : " ") + kName + (pkChild->IsInvisible() ? "-" : "");
    }
    return kText.empty() ? "none" : kText;
}

eC_UInt CountObjects(const CGUIObject& kTop)
{
    eC_UInt uiObjects = 1;
    if (kTop.IsCompositeObject())
    {
        for (const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(kTop).GetFirstChild();
             pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            uiObjects += CountObjects(*pkChild);
        }
    }
    return uiObjects;
}

void ReplaceAll(std::string& kText, const std::string& kOld, const std::string& kNew)
{
    for (std::size_t uiPlace = kText.find(kOld); uiPlace != std::string::npos;
         uiPlace = kText.find(kOld, uiPlace + kNew.size()))
    {
        kText.replace(uiPlace, kOld.size(), kNew);
    }
}

/** @return a hook call with short names, or for an ERROR entry of the manager "!" and the step that logged
 *         it; nothing for other entries
 */
std::string ShortenEvent(const std::string& kEvent)
{
    const std::string kError = "ERROR: CGUIDialogManager::";
    if (kEvent.compare(0, kError.size(), kError) == 0)
    {
        return "!" + kEvent.substr(kError.size(), kEvent.find(':', kError.size()) - kError.size());
    }
    for (const std::string kPrefix : {"DEBUG:", "INFO:", "WARNING:", "ERROR:"})
    {
        if (kEvent.compare(0, kPrefix.size(), kPrefix) == 0)
        {
            return std::string();
        }
    }
    std::string kText = kEvent;
    ReplaceAll(kText, "DLG_", "");
    ReplaceAll(kText, "POP_", "P");
    ReplaceAll(kText, "OBJ_", "O");
    ReplaceAll(kText, "NO_HANDLE", "none");
    return kText;
}
} // namespace

CHookMatrixFixture::CHookMatrixFixture()
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    DefineDialog(DLG_C, "DLG_C");
    DefineDialog(DLG_D, "DLG_D");
    DefineDialog(eProbeDialog, "DLG_E { OBJ_5 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 1000, true, "POP_2");
    DefinePopup(POP_3, CGUIDialogManager::PRIO_LOW, 0, true, "POP_3");
    DefinePopup(POP_4, CGUIDialogManager::PRIO_HIGHEST, 1000, false, "POP_4");
    DefinePopup(POP_5, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_5");
    DefinePopup(POP_6, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_6");
    DefinePopup(eProbePopup, static_cast<CGUIDialogManager::PopupPriority_t>(200), 0, true, "POP_8");
    for (const auto& kDialog : {std::make_pair(DLG_A, OBJ_1), std::make_pair(DLG_B, OBJ_2),
                                std::make_pair(DLG_C, OBJ_3), std::make_pair(DLG_D, OBJ_4)})
    {
        LoadReacting(kDialog.first, kDialog.second);
    }
    for (const ObjectHandle_t ePopup : {POP_1, POP_2, POP_3})
    {
        LoadReacting(ePopup, NO_HANDLE);
    }
    m_kDefinitions = PrintState(Manager(), STATE_DEFINITIONS);
}

/** Makes the path of a definition build reacting objects. */
void CHookMatrixFixture::LoadReacting(ObjectHandle_t eID, ObjectHandle_t eChild)
{
    CodeFactory().RegisterBuilder(PathOf(eID),
                                  [this, eID, eChild]
                                  {
                                      CReactingObject* pkObject = Make(eID);
                                      if (eChild != NO_HANDLE)
                                      {
                                          Make(eChild, pkObject)->SetFocusable(true);
                                      }
                                      return pkObject;
                                  });
}

CHookMatrixFixture::~CHookMatrixFixture()
{
    m_kReaction = nullptr;
    for (const CSafeGUIObjectPtr& pkObject : m_kAdopted)
    {
        const bool bIsNobodys = pkObject != nullptr && pkObject->GetParent() == nullptr;
        if (bIsNobodys)
        {
            delete pkObject.get();
        }
    }
}

void CHookMatrixFixture::BuildInHook(ObjectHandle_t eDialogID)
{
    EXPECT_TRUE(Manager().UnregisterDialogDefinition(eDialogID));
    Manager().SetDialogCreator(eDialogID,
                               [this, eDialogID] { return Attach(NameOfHandle(eDialogID) + " {}"); });
    m_kDefinitions = PrintState(Manager(), STATE_DEFINITIONS);
}

void CHookMatrixFixture::MakeUnobtainable(ObjectHandle_t eDialogID)
{
    EXPECT_TRUE(Manager().UnregisterDialogDefinition(eDialogID));
    m_kDefinitions = PrintState(Manager(), STATE_DEFINITIONS);
}

CGUIObject* CHookMatrixFixture::Adopt(CGUIObject* pkObject)
{
    // Add it only once, because the objects of this list are counted.
    const auto IsObject = [pkObject](const CSafeGUIObjectPtr& pkAdopted) { return pkAdopted == pkObject; };
    if (std::none_of(m_kAdopted.begin(), m_kAdopted.end(), IsObject))
    {
        m_kAdopted.emplace_back(pkObject);
    }
    return pkObject;
}

std::string CHookMatrixFixture::TakeHistoryOfCalls()
{
    std::string kText;
    for (const std::string& kEvent : Events().Take())
    {
        const std::string kShort = ShortenEvent(kEvent);
        kText += (kText.empty() || kShort.empty() ? "" : " ") + kShort;
    }
    ReplaceAll(kText, "{ }", "{}");
    return kText.empty() ? "none" : kText;
}

std::string CHookMatrixFixture::PrintItems()
{
    std::string kText = "current " + Describe(Access::GetCurrentDialog(Manager())) + "; ";
    kText += "history " + PrintList(Access::GetHistory(Manager()), PrintHistoryEntry) + "; ";
    kText += "popups " + PrintList(Access::GetActivePopups(Manager()), PrintPopup) + "; ";
    kText += "tree " + PrintChildren(Root()) + "; ";
    kText += "focus " + ShortNameOf(Focus()) + "; ";
    kText += "remembered " + ShortNameOf(Access::GetCurrentDialogFocus(Manager())) + "; ";
    kText += "dynamic " + std::to_string(Access::GetDynamicObjectIDs(Manager()).GetQuantity()) + "; ";
    kText += "objects " + std::to_string(CGUIObject::GetNOFObjects()) + "; ";
    std::string kChanges;
    for (const std::string& kLine :
         SplitLines(DiffLines(m_kDefinitions, PrintState(Manager(), STATE_DEFINITIONS))))
    {
        if (kLine.compare(0, 2, "  ") != 0)
        {
            kChanges += (kChanges.empty() ? "" : " / ") + ShortenEvent(kLine);
        }
    }
    return kText + "definitions " + (kChanges.empty() ? "unchanged" : kChanges) + "; ";
}

void CHookMatrixFixture::ExpectInOrder(const std::string& kWhere)
{
    ExpectNothingLost(kWhere);
    ExpectUsable(kWhere);
}

void CHookMatrixFixture::ExpectNothingLost(const std::string& kWhere)
{
    EXPECT_EQ(std::string(), CheckStructures(Manager())) << kWhere;
    eC_UInt uiReachable = CountObjects(Root());
    for (const CSafeGUIObjectPtr& pkObject : m_kAdopted)
    {
        const bool bIsNobodys = pkObject != nullptr && pkObject->GetParent() == nullptr;
        uiReachable += bIsNobodys ? CountObjects(*pkObject) : 0;
    }
    EXPECT_EQ(uiReachable, CGUIObject::GetNOFObjects()) << kWhere << ": an object is lost";
}

void CHookMatrixFixture::ExpectUsable(const std::string& kWhere)
{
    Manager().ClearActions();
    for (const ObjectHandle_t eID : {DLG_A, DLG_B, DLG_C, DLG_D})
    {
        Manager().SetVeto(eID, false);
    }
    const ObjectHandle_t ePrevious = Manager().GetCurrentDialogID();
    const bool bHasPrevious = Manager().GetCurrentDialog() != nullptr;
    const eC_UInt uiHistory = Manager().GetHistoryStackSize();

    const CGUIObject* pkProbe = Manager().CreateDialog(eProbeDialog, CGUIDialogManager::ODA_INVISIBLE);
    ASSERT_NE(nullptr, pkProbe) << kWhere;
    EXPECT_EQ(Object(eProbeDialog), pkProbe) << kWhere;
    EXPECT_EQ(eProbeDialog, Manager().GetCurrentDialogID()) << kWhere;
    EXPECT_EQ(uiHistory + (bHasPrevious ? 1 : 0), Manager().GetHistoryStackSize()) << kWhere;
    ASSERT_NE(nullptr, Manager().ShowPopup(eProbePopup)) << kWhere;
    EXPECT_EQ(nullptr, Object(eProbePopup)->GetNextSibling()) << kWhere << ": not on top";
    ExpectArbitrated(kWhere);
    EXPECT_TRUE(Manager().ClosePopup(eProbePopup)) << kWhere;
    EXPECT_EQ(nullptr, Object(eProbePopup)) << kWhere;
    Manager().UpdateActivePopups();
    ExpectArbitrated(kWhere);
    // Back puts a dialog that is in the history too into its recorded state, hidden or deleted.
    const bool bComesBack = bHasPrevious && !Manager().ContainsDialog(ePrevious, false);
    Manager().Back(true);
    if (bComesBack)
    {
        EXPECT_EQ(ePrevious, Manager().GetCurrentDialogID()) << kWhere;
        ASSERT_NE(nullptr, Manager().GetCurrentDialog()) << kWhere;
        EXPECT_FALSE(Manager().GetCurrentDialog()->IsInvisible()) << kWhere;
        EXPECT_EQ(nullptr, Object(eProbeDialog)) << kWhere;
    }
    EXPECT_EQ(std::string(), CheckStructures(Manager())) << kWhere;

    Manager().ClearDialogHistory(0, true, true);
    EXPECT_EQ(NO_HANDLE, Manager().GetCurrentDialogID()) << kWhere;
    EXPECT_EQ(0U, Manager().GetHistoryStackSize()) << kWhere;
    Manager().UpdateActivePopups();
    while (!Access::GetActivePopups(Manager()).IsEmpty())
    {
        ASSERT_TRUE(
            Manager().ClosePopup((*Access::GetActivePopups(Manager()).GetBegin()).GetObject()->GetID()))
            << kWhere;
    }
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback()) << kWhere;
}

/** Expects an ascending list without dead objects, where exactly the popup of the highest priority is shown.
 */
void CHookMatrixFixture::ExpectArbitrated(const std::string& kWhere)
{
    const auto* pkLast = Access::GetLast(Access::GetActivePopups(Manager()));
    for (const auto* pkNode = pkLast; pkNode != nullptr; pkNode = CGUITestAccess::GetPrevious(*pkNode))
    {
        ASSERT_NE(nullptr, pkNode->m_tValue.GetObject()) << kWhere;
        EXPECT_EQ(pkNode->m_tValue.GetPriority() != pkLast->m_tValue.GetPriority(),
                  pkNode->m_tValue.GetObject()->IsInvisible())
            << kWhere;
        if (pkNode->m_pkNext != nullptr)
        {
            EXPECT_LE(pkNode->m_tValue.GetPriority(),
                      CGUITestAccess::GetNext(*pkNode)->m_tValue.GetPriority())
                << kWhere;
        }
    }
}
