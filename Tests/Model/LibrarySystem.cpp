// SPDX-License-Identifier: MIT
#include "Tests/Model/LibrarySystem.h"

#include "Core/GUIFactoryManager.h"
#include "Scenario/Names.h"
#include "Scenario/StatePrinter.h"
#include "TestSupport/TestAccess.h"

#include <algorithm>

namespace
{
using Action_t = CGUIDialogManager::EOldDialogAction;

ObjectHandle_t AsHandle(int iID)
{
    return static_cast<ObjectHandle_t>(iID);
}

std::string NameOf(bool bFlag)
{
    return bFlag ? "true" : "false";
}

/** An object that leaves the table of objects when it is destroyed, and calls React of its system after each
 *  of its virtual operations.
 */
template <typename TBase>
class CTrackedObject : public TBase
{
public:
    CTrackedObject(CGUICompositeObject* pkParent, ObjectHandle_t eID, std::vector<CGUIObject*>& kTable,
                   CLibrarySystem& kSystem)
        : TBase(pkParent, eID), m_kTable(kTable), m_kSide(kSystem)
    {
        m_kTable.push_back(this);
    }

    ~CTrackedObject() override
    {
        std::replace(m_kTable.begin(), m_kTable.end(), static_cast<CGUIObject*>(this),
                     static_cast<CGUIObject*>(nullptr));
    }

    void SetInvisible(const eC_Bool& bInvisible) override
    {
        TBase::SetInvisible(bInvisible);
        m_kSide.React();
    }

    void SetParent(CGUICompositeObject* pkParent) override
    {
        TBase::SetParent(pkParent);
        m_kSide.React();
    }

    eC_Bool FocusAny() override
    {
        // A child that is asked may destroy this object.
        const CSafeGUIObjectPtr pkThis = this;
        const eC_Bool bIsFocussed = TBase::FocusAny();
        if (pkThis != nullptr)
        {
            m_kSide.React();
        }
        return bIsFocussed;
    }

private:
    std::vector<CGUIObject*>& m_kTable;
    CLibrarySystem& m_kSide;
};
} // namespace

CLibrarySystem::CLibrarySystem(unsigned int uiTime)
    : m_kTraceRecorder(m_kEvents),
      m_kClock(uiTime),
      m_pkRoot(new CGUI),
      m_pkManager(new CRecordingDialogManager(m_kEvents))
{
    m_kObjects.push_back(m_pkRoot.get());
    CGUIFactoryManager::CreateInstance().RegisterReaderForPathPrefix(CCodeFactory::cpcPrefix,
                                                                     &m_kCodeFactory);
}

CLibrarySystem::~CLibrarySystem()
{
    m_uiReactingCall = 0;
    m_pkManager.reset();
    m_pkRoot.reset();
    m_kObjects[0] = nullptr;
    for (CGUIObject* pkObject : std::vector<CGUIObject*>(m_kObjects))
    {
        const bool bIsTop = GetNumber(pkObject) > 0 && pkObject->GetParent() == nullptr;
        if (bIsTop)
        {
            delete pkObject;
        }
    }
    CGUIFactoryManager::DestroyInstance();
}

void CLibrarySystem::SetPermissions(const std::vector<bool>& kPermissions)
{
    m_kPermissions = kPermissions;
    m_uiNextPermission = 0;
}

// --- Objects ------------------------------------------------------------------------------------------

CGUIObject* CLibrarySystem::GetObject(int iObject) const
{
    return iObject >= 0 ? m_kObjects[static_cast<std::size_t>(iObject)] : nullptr;
}

CGUICompositeObject* CLibrarySystem::GetComposite(int iObject) const
{
    CGUIObject* pkObject = GetObject(iObject);
    return pkObject != nullptr && pkObject->IsCompositeObject() ? static_cast<CGUICompositeObject*>(pkObject)
                                                                : nullptr;
}

int CLibrarySystem::GetNumber(const CGUIObject* pkObject) const
{
    if (pkObject == nullptr)
    {
        return -1;
    }
    const auto kPlace = std::find(m_kObjects.begin(), m_kObjects.end(), pkObject);
    return kPlace == m_kObjects.end() ? -1 : static_cast<int>(kPlace - m_kObjects.begin());
}

CGUIObject* CLibrarySystem::BuildShape(const Shape_t& kShape)
{
    ++m_iBuilding;
    std::vector<CGUIObject*> kPath;
    for (const ShapeNode_t& kNode : kShape)
    {
        kPath.resize(static_cast<std::size_t>(kNode.m_iDepth));
        CGUICompositeObject* pkParent =
            kPath.empty() ? nullptr : static_cast<CGUICompositeObject*>(kPath.back());
        CGUIObject* pkObject = nullptr;
        if (kNode.m_bIsComposite)
        {
            pkObject =
                new CTrackedObject<CGUICompositeObject>(pkParent, AsHandle(kNode.m_iID), m_kObjects, *this);
        }
        else
        {
            pkObject = new CTrackedObject<CGUIObject>(pkParent, AsHandle(kNode.m_iID), m_kObjects, *this);
        }
        pkObject->SetFocusable(kNode.m_bIsFocusable);
        pkObject->SetInvisible(kNode.m_bIsInvisible);
        kPath.push_back(pkObject);
    }
    --m_iBuilding;
    return kPath.front();
}

void CLibrarySystem::React()
{
    const bool bCounts = m_uiReactingCall > 0 && m_iBuilding == 0;
    if (bCounts && --m_uiReactingCall == 0)
    {
        m_kReaction();
    }
}

CGUIObject* CLibrarySystem::BuildShape(int iShape)
{
    return BuildShape(GetShapes()[static_cast<std::size_t>(iShape)]);
}

CGUIObject* CLibrarySystem::MakeByHook(int iID, int iShape, ECreation eCreation)
{
    if (eCreation == CREATION_NULL)
    {
        return nullptr;
    }
    CGUIObject* pkObject = BuildShape(iShape);
    if (eCreation != CREATION_WITH_OWN_ID)
    {
        pkObject->SetID(AsHandle(iID));
    }
    if (eCreation != CREATION_DETACHED)
    {
        ++m_iBuilding;
        pkObject->SetParent(m_pkRoot.get());
        --m_iBuilding;
    }
    return pkObject;
}

std::vector<int> CLibrarySystem::GetObjects() const
{
    std::vector<int> kNumbers;
    for (std::size_t uiObject = 0; uiObject < m_kObjects.size(); ++uiObject)
    {
        if (m_kObjects[uiObject] != nullptr)
        {
            kNumbers.push_back(static_cast<int>(uiObject));
        }
    }
    return kNumbers;
}

std::string CLibrarySystem::GetState()
{
    std::string kText = PrintState(*m_pkManager);
    for (const int iObject : GetObjects())
    {
        const CGUIObject& kObject = *GetObject(iObject);
        kText += "object " + std::to_string(iObject) + " " + NameOfHandle(kObject.GetID()) + " under " +
                 std::to_string(GetNumber(kObject.GetParent())) + " " + NameOf(kObject.IsInvisible()) + ", " +
                 NameOf(kObject.IsFocusable()) + "\n";
    }
    return kText;
}

// --- Operations of the manager ------------------------------------------------------------------------

std::string CLibrarySystem::CreateDialog(int iID, int iAction)
{
    return std::to_string(
        GetNumber(m_pkManager->CreateDialog(AsHandle(iID), static_cast<Action_t>(iAction))));
}

std::string CLibrarySystem::AddDialog(int iObject, int iAction, bool bRecoverFocus)
{
    m_pkManager->AddDialog(GetObject(iObject), static_cast<Action_t>(iAction), bRecoverFocus);
    return "";
}

std::string CLibrarySystem::Back(bool bDelete)
{
    m_pkManager->Back(bDelete);
    return "";
}

std::string CLibrarySystem::BackToDialog(int iID, bool bDelete, bool bStepwise)
{
    return NameOf(m_pkManager->BackToDialog(AsHandle(iID), bDelete, bStepwise));
}

std::string CLibrarySystem::ClearDialogHistory(unsigned int uiKeep, bool bDelete, bool bDeleteCurrent)
{
    m_pkManager->ClearDialogHistory(uiKeep, bDelete, bDeleteCurrent);
    return "";
}

std::string CLibrarySystem::ShowPopup(int iID)
{
    return std::to_string(GetNumber(m_pkManager->ShowPopup(AsHandle(iID))));
}

std::string CLibrarySystem::ClosePopup(int iID)
{
    return NameOf(m_pkManager->ClosePopup(AsHandle(iID)));
}

std::string CLibrarySystem::RegisterDialog(int iID, const std::string& kPath)
{
    return NameOf(m_pkManager->RegisterDialogDefinition(kPath.c_str(), AsHandle(iID)));
}

std::string CLibrarySystem::UnregisterDialog(int iID)
{
    return NameOf(m_pkManager->UnregisterDialogDefinition(AsHandle(iID)));
}

std::string CLibrarySystem::RegisterPopup(int iID, int iPriority, unsigned int uiTime, bool bDeleteOnClose,
                                          const std::string& kPath)
{
    return NameOf(m_pkManager->RegisterPopupDefinition(
        AsHandle(iID), static_cast<CGUIDialogManager::PopupPriority_t>(iPriority), uiTime, bDeleteOnClose,
        kPath.c_str()));
}

std::string CLibrarySystem::UnregisterPopup(int iID)
{
    return NameOf(m_pkManager->UnregisterPopupDefinition(AsHandle(iID)));
}

std::string CLibrarySystem::UpdateTime(int iID, unsigned int uiTime)
{
    return NameOf(m_pkManager->UpdateRegisteredPopupDisplayTime(AsHandle(iID), uiTime));
}

std::string CLibrarySystem::Query(int iID)
{
    const ObjectHandle_t eID = AsHandle(iID);
    CRecordingDialogManager& kManager = *m_pkManager;
    CGUIDialogManager::RegisteredPopup_t kPopup;
    eC_UInt uiTime = 0;
    std::string kDefinition = "none";
    if (kManager.GetRegisteredPopupInfo(eID, kPopup) && kManager.GetRegisteredPopupDisplayTime(eID, uiTime))
    {
        const std::string kTimes = std::to_string(kPopup.m_uiDisplayTime) + " ms, ";
        kDefinition = "prio " + std::to_string(static_cast<int>(kPopup.m_ePriority)) + ", " + kTimes +
                      (kPopup.m_bDeleteOnClose ? "delete on close " : "hide on close ") +
                      kPopup.m_kPath.GetText() + " " + std::to_string(uiTime);
    }
    return NameOfHandle(kManager.GetCurrentDialogID()) + " " +
           std::to_string(GetNumber(kManager.GetCurrentDialog())) + " " +
           std::to_string(kManager.GetHistoryStackSize()) + " " + NameOf(kManager.ContainsDialog(eID, true)) +
           ", " + NameOf(kManager.ContainsDialog(eID, false)) + " " +
           NameOfHandle(kManager.GetLastDialogID()) + " " + NameOf(kManager.IsPopupDisplayed(eID)) + ", " +
           NameOf(kManager.IsPopupInPopupList(eID)) + " \"" + kManager.GetRegisteredPath(eID).GetText() +
           "\" " + kDefinition;
}

std::string CLibrarySystem::FindPath(const std::string& kPath)
{
    return NameOfHandle(m_pkManager->GetRegisteredDialogID(kPath.c_str()));
}

std::string CLibrarySystem::CreateDynamicID()
{
    return NameOfHandle(m_pkManager->CreateDynamicObjectID());
}

std::string CLibrarySystem::PrintHistory()
{
    CGUITestAccess::PrintDialogHistory(*m_pkManager);
    return "";
}

std::string CLibrarySystem::Arbitrate()
{
    m_pkManager->UpdateActivePopups();
    return "";
}

std::string CLibrarySystem::Obtain(int iID, bool bAllowDeletion, bool bRecoverFocus)
{
    const CGUIObject* pkDialog = m_pkManager->GetDialogObject(AsHandle(iID), bAllowDeletion, bRecoverFocus);
    return std::to_string(GetNumber(pkDialog)) + " " + NameOf(bAllowDeletion) + ", " + NameOf(bRecoverFocus);
}

std::string CLibrarySystem::Load(int iID)
{
    return std::to_string(GetNumber(m_pkManager->LoadDialogDescription(AsHandle(iID))));
}

// --- What the application does ------------------------------------------------------------------------

std::string CLibrarySystem::Build(const Shape_t& kShape, int iID, int iParent)
{
    CGUIObject* pkObject = BuildShape(kShape);
    pkObject->SetID(AsHandle(iID));
    if (iParent >= 0)
    {
        pkObject->SetParent(GetComposite(iParent) != nullptr ? GetComposite(iParent) : m_pkRoot.get());
    }
    return "";
}

std::string CLibrarySystem::Delete(int iObject)
{
    delete GetObject(iObject);
    return "";
}

std::string CLibrarySystem::Focus(int iObject)
{
    return NameOf(GetObject(iObject)->RequestFocus());
}

std::string CLibrarySystem::FocusAny(int iObject)
{
    return NameOf(GetObject(iObject)->FocusAny());
}

std::string CLibrarySystem::SetInvisible(int iObject, bool bInvisible)
{
    GetObject(iObject)->SetInvisible(bInvisible);
    return "";
}

std::string CLibrarySystem::SetFocusable(int iObject, bool bFocusable)
{
    GetObject(iObject)->SetFocusable(bFocusable);
    return "";
}

std::string CLibrarySystem::SetParent(int iObject, int iParent)
{
    CGUIObject* pkObject = GetObject(iObject);
    const CGUIObject* pkParent = GetObject(iParent);
    if (iParent >= 0 &&
        (GetComposite(iParent) == nullptr || pkParent == pkObject || pkParent->IsDescendantOf(pkObject)))
    {
        return "refused";
    }
    pkObject->SetParent(GetComposite(iParent));
    return "";
}

std::string CLibrarySystem::SetID(int iObject, int iID)
{
    GetObject(iObject)->SetID(AsHandle(iID));
    return "";
}

std::string CLibrarySystem::Raise(int iObject)
{
    CGUIObject* pkObject = GetObject(iObject);
    if (pkObject->GetParent() != nullptr)
    {
        pkObject->GetParent()->DrawOnTop(pkObject);
    }
    return "";
}

std::string CLibrarySystem::Advance(unsigned int uiTime)
{
    m_kClock.Advance(uiTime);
    return "";
}

std::string CLibrarySystem::BeLate(unsigned int uiTime)
{
    m_kClock.Set(m_kClock.GetTime() + uiTime);
    return "";
}

std::string CLibrarySystem::SetFile(const std::string& kPath, int iShape)
{
    if (iShape < 0)
    {
        m_kCodeFactory.Unregister(kPath);
        return "";
    }
    m_kCodeFactory.RegisterBuilder(kPath,
                                   [this, iShape]
                                   {
                                       // Loading takes some time.
                                       BeLate(static_cast<unsigned int>(iShape));
                                       return BuildShape(iShape);
                                   });
    return "";
}

std::string CLibrarySystem::SetDialogCreator(int iID, int iShape, ECreation eCreation, bool bAllowDeletion,
                                             bool bRecoverFocus)
{
    m_pkManager->SetDialogCreator(
        AsHandle(iID), [this, iID, iShape, eCreation] { return MakeByHook(iID, iShape, eCreation); },
        bAllowDeletion, bRecoverFocus);
    return "";
}

std::string CLibrarySystem::SetPopupCreator(int iID, int iShape, ECreation eCreation)
{
    m_pkManager->SetPopupCreator(AsHandle(iID), [this, iID, iShape, eCreation]
                                 { return MakeByHook(iID, iShape, eCreation); });
    return "";
}

std::string CLibrarySystem::Veto(int iID, bool bVeto)
{
    m_pkManager->SetVeto(AsHandle(iID), bVeto);
    return "";
}

std::string CLibrarySystem::FailLoad(unsigned int uiLoad, int iHow)
{
    m_kCodeFactory.FailLoad(uiLoad, static_cast<EFailure>(iHow));
    return "";
}

std::string CLibrarySystem::FailHook(unsigned int uiCall, int iHow)
{
    m_pkManager->FailHook(uiCall, static_cast<EFailure>(iHow));
    return "";
}

std::string CLibrarySystem::ThrowInHook(int iHook, int iHow)
{
    m_pkManager->RunOnce(static_cast<EHook>(iHook),
                         [iHow](CGUIObject*) { ThrowFailure(static_cast<EFailure>(iHow)); });
    return "";
}

std::string CLibrarySystem::DoInHook(int iHook, const Operation_t& kInner)
{
    m_pkManager->RunOnce(static_cast<EHook>(iHook), [this, kInner](CGUIObject*) { Do(kInner); });
    return "";
}

void CLibrarySystem::Do(const Operation_t& kInner)
{
    const bool bPermitted = m_uiNextPermission < m_kPermissions.size() && m_kPermissions[m_uiNextPermission];
    ++m_uiNextPermission;
    m_kEvents.Add(EVENT_NOTE, "> " + PrintOperation(kInner) + (bPermitted ? "" : " skipped"));
    if (bPermitted)
    {
        const std::string kResult = Perform(*this, kInner);
        m_kEvents.Add(EVENT_NOTE, "= " + kResult);
    }
}
