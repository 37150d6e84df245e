// SPDX-License-Identifier: MIT
#include "Adapters/Mirror/GUIMirror.h"

#include "Adapters/Mirror/GUINativePart.h"
#include "Adapters/Mirror/GUIRetained.h"
#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITrace.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "Widgets/GUIContainer.h"

#include <cstdint>
#include <new>
#include <utility>

namespace
{
constexpr eC_UInt cuiFirstBuckets = 64;
constexpr eC_UInt cuiFirstBuilders = 8;

eC_String Text(const eC_Char* pcBefore, ObjectHandle_t eID, const eC_Char* pcBehind)
{
    const eC_Char* pcName = GetObjectHandleName(eID);
    return (pcBefore + (pcName != nullptr ? eC_String(pcName) : eC_String(static_cast<eC_Int>(eID)))) +
           pcBehind;
}

eC_Bool IsEqual(const GUIArea_t& kOne, const GUIArea_t& kOther)
{
    return kOne.m_iX == kOther.m_iX && kOne.m_iY == kOther.m_iY && kOne.m_iWidth == kOther.m_iWidth &&
           kOne.m_iHeight == kOther.m_iHeight;
}

/** The direct child of the root around an object, null if it is not under the root. */
const CGUIObject* FindTop(const CGUIObject* pkObject)
{
    if (CGUI::ms_pInstance == nullptr)
    {
        return nullptr;
    }
    while (pkObject != nullptr && pkObject->GetParent() != CGUI::ms_pInstance)
    {
        pkObject = pkObject->GetParent();
    }
    return pkObject;
}
} // namespace

/** Sets a member for as long as the scope lasts, whatever is thrown. */
class CGUIMirror::CScope
{
public:
    CScope(CGUIMirrored*& pkMember, CGUIMirrored* pkValue) : m_pkMember(pkMember), m_pkBefore(pkMember)
    {
        pkMember = pkValue;
    }
    CScope(const CScope&) = delete;
    CScope& operator=(const CScope&) = delete;
    ~CScope() { m_pkMember = m_pkBefore; }

private:
    CGUIMirrored*& m_pkMember;
    CGUIMirrored* m_pkBefore;
};

CGUIMirrored* CGUIMirrored::GetWindow()
{
    CGUIMirrored* pkWindow = this;
    while (pkWindow->m_pkParent != nullptr && !pkWindow->IsWindow())
    {
        pkWindow = pkWindow->m_pkParent;
    }
    return pkWindow;
}

CGUIMirror::CGUIMirror(CGUINativeToolkit& kToolkit, eC_Int iWidth, eC_Int iHeight)
    : m_kToolkit(kToolkit), m_kLayout(iWidth, iHeight, &kToolkit)
{
    CGUIRetainedMemory::Retain();
}

CGUIMirror::~CGUIMirror()
{
    DeleteAll();
    while (m_pkFree != nullptr)
    {
        const std::unique_ptr<CGUIMirrored> pkMirrored(m_pkFree);
        m_pkFree = pkMirrored->m_pkNextInQueue;
    }
    CGUIRetainedMemory::Release();
}

void CGUIMirror::DeleteAll()
{
    m_bIsCommitting = true;
    DeleteGone();
    for (eC_UInt uiBucket = 0; uiBucket < m_uiNOFBuckets; ++uiBucket)
    {
        while (m_ppkBuckets[uiBucket] != nullptr)
        {
            CGUIMirrored& kMirrored = *m_ppkBuckets[uiBucket];
            DeleteNative(kMirrored);
            Remove(kMirrored);
            Recycle(kMirrored);
        }
    }
    m_bIsCommitting = false;
}

// ---- Committing ------------------------------------------------------------------------------------

void CGUIMirror::Commit()
{
    if (m_bIsCommitting || m_pkBuilt != nullptr || !HasChanges())
    {
        return;
    }
    struct Committing_t
    {
        explicit Committing_t(CGUIMirror& kMirror) : m_kMirror(kMirror) { kMirror.m_bIsCommitting = true; }
        Committing_t(const Committing_t&) = delete;
        Committing_t& operator=(const Committing_t&) = delete;
        ~Committing_t()
        {
            m_kMirror.ForgetMarked();
            m_kMirror.m_bIsCommitting = false;
        }
        CGUIMirror& m_kMirror;
    };
    const Committing_t kCommitting(*this);

    DeleteGone();
    QueueMarked();
    // What changes from here on belongs to the next commit.
    Settle();
    for (CGUIMirrored* pkMarked = m_kMarked.GetFirst(); pkMarked != nullptr;
         pkMarked = pkMarked->m_pkNextInQueue)
    {
        Synchronise(*pkMarked);
    }
    Order();
    ShowOrHide(false);
    ShowOrHide(true);
    DirectInput();
}

void CGUIMirror::DeleteGone()
{
    while (CGUIMirrored* pkGone = m_kGone.TakeFirst())
    {
        DeleteNative(*pkGone);
        ForgetBelow(*pkGone);
        Recycle(*pkGone);
    }
}

void CGUIMirror::QueueMarked()
{
    while (const CGUIWidget* pkWidget = TakeNext())
    {
        CGUIMirrored* pkMirrored = Find(&pkWidget->GetObject());
        if (pkMirrored == nullptr)
        {
            // What is in something that was never shown is made together with that.
            const CGUIMirrored* pkParent = FindParent(pkWidget->GetObject());
            pkMirrored = pkParent != nullptr && HasNative(*pkParent) && IsToBeShown(pkWidget->GetObject())
                             ? Enter(*pkWidget)
                             : nullptr;
        }
        if (pkMirrored != nullptr)
        {
            pkMirrored->m_bIsStale = true;
            Queue(*pkMirrored);
        }
    }
}

void CGUIMirror::ForgetMarked()
{
    while (CGUIMirrored* pkMarked = m_kMarked.TakeFirst())
    {
        if (pkMarked->m_pkWidget == nullptr)
        {
            // A native event handler has destroyed it during the commit.
            m_kGone.Append(*pkMarked);
        }
    }
}

void CGUIMirror::Queue(CGUIMirrored& kMirrored)
{
    if (!kMirrored.m_bIsQueued)
    {
        kMirrored.m_bIsQueued = true;
        m_kMarked.Append(kMirrored);
    }
}

void CGUIMirror::Synchronise(CGUIMirrored& kMirrored)
{
    CGUIMirrored* pkParent = kMirrored.m_pkWidget != nullptr ? FindParent(*kMirrored.m_pkObject) : nullptr;
    if (pkParent == nullptr)
    {
        return;
    }
    if (pkParent != kMirrored.m_pkParent)
    {
        DeleteNative(kMirrored);
        kMirrored.m_pkParent = pkParent;
    }
    if (kMirrored.m_pkWidget == nullptr || !HasNative(*pkParent) ||
        (kMirrored.m_pNative == nullptr && !IsToBeShown(*kMirrored.m_pkObject)))
    {
        return;
    }
    const GUILayout_t* pkLayout = kMirrored.m_pkWidget->GetLayout();
    if (pkLayout != nullptr && !kMirrored.m_bIsBuilt)
    {
        SynchroniseContainer(kMirrored, *pkLayout);
    }
    else if (kMirrored.m_bIsStale)
    {
        SynchroniseArea(kMirrored, m_kLayout.GetAreaOf(*kMirrored.m_pkWidget));
    }
}

void CGUIMirror::SynchroniseContainer(CGUIMirrored& kMirrored, const GUILayout_t& kLayout)
{
    const GUIArea_t kBefore = kMirrored.m_kArea;
    const eC_Bool bIsNew = kMirrored.m_pNative == nullptr;
    const eC_Bool bIsInLine = kLayout.m_eLayout != LAYOUT_ABSOLUTE;
    const eC_Bool bWasInLine = kMirrored.m_bIsInLine;
    kMirrored.m_bIsInLine = bIsInLine;
    if (bIsNew || bIsInLine || bWasInLine)
    {
        m_kLayout.Visit(*this, *kMirrored.m_pkObject);
        return;
    }
    SynchroniseArea(kMirrored, m_kLayout.GetAreaOf(*kMirrored.m_pkWidget));
    if (kMirrored.m_pkWidget != nullptr &&
        (kMirrored.m_kArea.m_iWidth != kBefore.m_iWidth || kMirrored.m_kArea.m_iHeight != kBefore.m_iHeight))
    {
        m_kLayout.Visit(*this, *kMirrored.m_pkObject);
    }
}

void CGUIMirror::OnWidget(const CGUIWidget& kWidget, const GUIArea_t& kArea)
{
    CGUIMirrored* pkParent = FindParent(kWidget.GetObject());
    if (pkParent == nullptr || !HasNative(*pkParent))
    {
        return;
    }
    CGUIMirrored* pkMirrored = Find(&kWidget.GetObject());
    if (pkMirrored == nullptr)
    {
        pkMirrored = Enter(kWidget);
    }
    if (pkMirrored == nullptr)
    {
        return;
    }
    if (pkMirrored->m_pkParent != pkParent)
    {
        DeleteNative(*pkMirrored);
        pkMirrored->m_pkParent = pkParent;
    }
    const GUILayout_t* pkLayout = kWidget.GetLayout();
    pkMirrored->m_bIsInLine = pkLayout != nullptr && pkLayout->m_eLayout != LAYOUT_ABSOLUTE;
    SynchroniseArea(*pkMirrored, kArea);
}

void CGUIMirror::SynchroniseArea(CGUIMirrored& kMirrored, const GUIArea_t& kArea)
{
    if (kMirrored.m_pNative == nullptr)
    {
        Make(kMirrored);
    }
    const GUIArea_t kRelative = MakeRelative(kMirrored, kArea);
    if (kMirrored.m_pNative == nullptr || (!kMirrored.m_bIsStale && IsEqual(kRelative, kMirrored.m_kArea)))
    {
        return;
    }
    kMirrored.m_bIsStale = false;
    kMirrored.m_kArea = kRelative;
    if (!kMirrored.m_bIsBuilt)
    {
        m_kToolkit.Update(kMirrored, kRelative);
    }
}

GUIArea_t CGUIMirror::MakeRelative(const CGUIMirrored& kMirrored, const GUIArea_t& kArea) const
{
    GUIArea_t kRelative = kArea;
    for (const CGUIMirrored* pkParent = kMirrored.m_pkParent; pkParent != nullptr;
         pkParent = pkParent->m_pkParent)
    {
        kRelative.m_iX -= pkParent->m_kArea.m_iX;
        kRelative.m_iY -= pkParent->m_kArea.m_iY;
    }
    return kRelative;
}

void CGUIMirror::ShowOrHide(eC_Bool bIsShown)
{
    for (CGUIMirrored* pkMarked = m_kMarked.GetFirst(); pkMarked != nullptr;
         pkMarked = pkMarked->m_pkNextInQueue)
    {
        if (pkMarked->m_pNative != nullptr && pkMarked->m_pkWidget != nullptr &&
            pkMarked->m_bIsShown != bIsShown && IsToBeShown(*pkMarked->m_pkObject) == bIsShown)
        {
            pkMarked->m_bIsShown = bIsShown;
            m_kToolkit.SetShown(*pkMarked, bIsShown);
        }
    }
}

CGUIMirror::Input_t CGUIMirror::GetInput() const
{
    CGUIMirrored* pkModal = GetModal();
    CGUIMirrored* pkFocussed = Find(CGUIEventHandler::GetInstance().GetFocussedObject());
    pkFocussed = pkFocussed != nullptr && pkFocussed->m_pNative != nullptr ? pkFocussed : nullptr;
    CGUIMirrored* pkWindow = pkModal;
    if (pkWindow == nullptr)
    {
        pkWindow = pkFocussed != nullptr ? pkFocussed->GetWindow() : m_kRoot.m_pkTop;
    }
    if (pkFocussed != nullptr && pkFocussed->GetWindow() != pkWindow)
    {
        pkFocussed = nullptr;
    }
    return {pkModal, pkWindow, pkFocussed};
}

void CGUIMirror::DirectInput()
{
    const auto [pkModal, pkWindow, pkFocussed] = GetInput();
    void* const pModal = pkModal != nullptr ? pkModal->m_pNative : nullptr;
    void* const pWindow = pkWindow != nullptr ? pkWindow->m_pNative : nullptr;
    void* const pFocussed = pkFocussed != nullptr ? pkFocussed->m_pNative : nullptr;
    if (m_bIsInputStale || pModal != m_pModal || pWindow != m_pWindow || pFocussed != m_pFocussed)
    {
        m_bIsInputStale = false;
        m_pModal = pModal;
        m_pWindow = pWindow;
        m_pFocussed = pFocussed;
        m_kToolkit.SetInput(pkModal, pkWindow, pkFocussed);
    }
}

CGUIMirrored* CGUIMirror::GetModal() const
{
    CGUIMirrored* pkWindow = m_kRoot.m_pkTop;
    while (pkWindow != nullptr && (pkWindow->m_pkWidget == nullptr || !pkWindow->m_pkWidget->IsModal()))
    {
        pkWindow = pkWindow->m_pkBelow;
    }
    return pkWindow;
}

// ---- Making and deleting native objects ------------------------------------------------------------

CGUIMirrored* CGUIMirror::Enter(const CGUIWidget& kWidget)
{
    CGUIMirrored* pkMirrored = m_pkFree;
    if (pkMirrored != nullptr)
    {
        m_pkFree = pkMirrored->m_pkNextInQueue;
        pkMirrored->m_pkNextInQueue = nullptr;
    }
    else
    {
        pkMirrored = new (std::nothrow) CGUIMirrored;
    }
    if (pkMirrored != nullptr && m_uiNOFMirrored >= m_uiNOFBuckets && !Grow())
    {
        Recycle(*pkMirrored);
        pkMirrored = nullptr;
    }
    if (pkMirrored == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR, "CGUIMirror::Commit: There is no memory for a native object.\n");
        return nullptr;
    }
    pkMirrored->m_pkObject = &kWidget.GetObject();
    pkMirrored->m_pkWidget = CGUIWidget::Find(pkMirrored->m_pkObject);
    CGUIMirrored** ppkBucket = GetBucket(pkMirrored->m_pkObject);
    pkMirrored->m_pkNextInBucket = *ppkBucket;
    *ppkBucket = pkMirrored;
    ++m_uiNOFMirrored;
    return pkMirrored;
}

void CGUIMirror::Make(CGUIMirrored& kMirrored)
{
    if (kMirrored.m_bIsRefused)
    {
        return;
    }
    if (kMirrored.IsPart())
    {
        // Its builder makes it, or nobody.
        return;
    }
    CGUIWindowBuilder* pkBuilder =
        kMirrored.m_bIsBuilt ? FindBuilder(kMirrored.m_pkObject->GetID()) : nullptr;
    kMirrored.m_pNative =
        pkBuilder != nullptr ? CallBuilder(kMirrored, *pkBuilder) : m_kToolkit.Create(kMirrored);
    if (kMirrored.m_pkWidget == nullptr)
    {
        // The builder has destroyed its own window.
        return;
    }
    if (kMirrored.m_pNative == nullptr)
    {
        kMirrored.m_bIsRefused = true;
        GUILOG(GUI_TRACE_ERROR,
               Text("CGUIMirror::Commit: No native object could be made for the object with ID ",
                    kMirrored.m_pkObject->GetID(), ".\nIt and everything in it stay invisible.\n"));
        return;
    }
    kMirrored.m_bIsStale = true;
    kMirrored.m_bIsShown = !kMirrored.IsWindow();
    Link(kMirrored, nullptr);
    Queue(kMirrored);
}

void CGUIMirror::DeleteNative(CGUIMirrored& kMirrored)
{
    Unlink(kMirrored);
    if (kMirrored.m_pNative == nullptr)
    {
        return;
    }
    ForgetBelow(kMirrored);
    {
        const CScope kScope(m_pkDeleted, &kMirrored);
        m_kToolkit.Delete(kMirrored);
    }
    m_bIsInputStale = true;
    kMirrored.m_pNative = nullptr;
    kMirrored.m_pExtra = nullptr;
}

void CGUIMirror::ForgetBelow(CGUIMirrored& kMirrored)
{
    while (kMirrored.m_pkTop != nullptr)
    {
        CGUIMirrored& kChild = *kMirrored.m_pkTop;
        Unlink(kChild);
        ForgetBelow(kChild);
        kChild.m_pNative = nullptr;
        kChild.m_pExtra = nullptr;
        kChild.m_pkParent = nullptr;
    }
}

void CGUIMirror::Recycle(CGUIMirrored& kMirrored)
{
    kMirrored.~CGUIMirrored();
    auto* pkFree = new (&kMirrored) CGUIMirrored;
    pkFree->m_pkNextInQueue = m_pkFree;
    m_pkFree = pkFree;
}

void CGUIMirror::OnWidgetDestroyed(const CGUIWidget& kWidget)
{
    CGUIMirrored* pkMirrored = Find(&kWidget.GetObject());
    if (pkMirrored == nullptr)
    {
        return;
    }
    Remove(*pkMirrored);
    pkMirrored->m_pkWidget = nullptr;
    if (pkMirrored->m_bIsQueued)
    {
        // A commit is running, in which a native event handler has destroyed it. It goes in the next one.
        return;
    }
    m_kGone.Append(*pkMirrored);
}

void CGUIMirror::OnNativeFocus(CGUIMirrored& kMirrored)
{
    if (m_bIsCommitting || m_pkBuilt != nullptr || kMirrored.m_pkWidget == nullptr)
    {
        return;
    }
    const CGUIMirrored* pkModal = GetModal();
    if ((pkModal != nullptr && kMirrored.GetWindow() != pkModal) ||
        !kMirrored.m_pkWidget->GetObject().RequestFocus())
    {
        m_bIsInputStale = true;
    }
}

void CGUIMirror::OnNativeDeleted(CGUIMirrored& kMirrored)
{
    if (kMirrored.m_pNative == nullptr || &kMirrored == m_pkDeleted)
    {
        return;
    }
    const eC_Bool bIsCleanUp = m_pkBuilt != nullptr && kMirrored.GetWindow() == m_pkBuilt;
    Unlink(kMirrored);
    ForgetBelow(kMirrored);
    kMirrored.m_pNative = nullptr;
    kMirrored.m_pExtra = nullptr;
    m_bIsInputStale = true;
    if (kMirrored.m_pkWidget == nullptr || bIsCleanUp)
    {
        return;
    }
    CGUIObject& kObject = kMirrored.m_pkWidget->GetObject();
    if (kMirrored.IsPart())
    {
        kObject.SetFocusable(false);
    }
    else
    {
        kMirrored.m_pkWidget->MarkChanged();
    }
    try
    {
        GUILOG(GUI_TRACE_ERROR, Text("CGUIMirror::OnNativeDeleted: The native object with ID ",
                                     kObject.GetID(), " was deleted by something else.\n"));
    }
    catch (const std::bad_alloc&)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIMirror::OnNativeDeleted: A native object was deleted by something else.\n");
    }
}

// ---- Builders --------------------------------------------------------------------------------------

eC_Bool CGUIMirror::AddBuilder(ObjectHandle_t eID, CGUIWindowBuilder& kBuilder)
{
    if (HasBuilder(eID))
    {
        return false;
    }
    if (m_uiNOFBuilders == m_uiRoomForBuilders)
    {
        const eC_UInt uiRoom = m_uiRoomForBuilders == 0 ? cuiFirstBuilders : 2 * m_uiRoomForBuilders;
        std::unique_ptr<Builder_t[]> pkBuilders(new Builder_t[uiRoom]);
        for (eC_UInt uiBuilder = 0; uiBuilder < m_uiNOFBuilders; ++uiBuilder)
        {
            pkBuilders[uiBuilder] = m_pkBuilders[uiBuilder];
        }
        m_pkBuilders.swap(pkBuilders);
        m_uiRoomForBuilders = uiRoom;
    }
    eC_UInt uiPlace = m_uiNOFBuilders++;
    while (uiPlace > 0 && m_pkBuilders[uiPlace - 1].m_eID > eID)
    {
        m_pkBuilders[uiPlace] = m_pkBuilders[uiPlace - 1];
        --uiPlace;
    }
    m_pkBuilders[uiPlace] = {eID, &kBuilder};
    return true;
}

eC_Bool CGUIMirror::RemoveBuilder(ObjectHandle_t eID)
{
    eC_UInt uiPlace = 0;
    while (uiPlace < m_uiNOFBuilders && m_pkBuilders[uiPlace].m_eID != eID)
    {
        ++uiPlace;
    }
    if (uiPlace == m_uiNOFBuilders)
    {
        return false;
    }
    --m_uiNOFBuilders;
    for (; uiPlace < m_uiNOFBuilders; ++uiPlace)
    {
        m_pkBuilders[uiPlace] = m_pkBuilders[uiPlace + 1];
    }
    return true;
}

CGUIWindowBuilder* CGUIMirror::FindBuilder(ObjectHandle_t eID) const
{
    eC_UInt uiFirst = 0;
    eC_UInt uiBehind = m_uiNOFBuilders;
    while (uiFirst < uiBehind)
    {
        const eC_UInt uiMiddle = (uiFirst + uiBehind) / 2;
        if (m_pkBuilders[uiMiddle].m_eID == eID)
        {
            return m_pkBuilders[uiMiddle].m_pkBuilder;
        }
        (m_pkBuilders[uiMiddle].m_eID < eID ? uiFirst : uiBehind) =
            m_pkBuilders[uiMiddle].m_eID < eID ? uiMiddle + 1 : uiMiddle;
    }
    return nullptr;
}

CGUIObject* CGUIMirror::BuildDialog(ObjectHandle_t eID)
{
    CGUIWindowBuilder* pkBuilder = FindBuilder(eID);
    return pkBuilder == nullptr ? nullptr
                                : BuildWindow(std::unique_ptr<CGUIObject>(
                                                  new CGUIRetained<CGUIScreen>(&CGUI::GetInstance(), eID)),
                                              *pkBuilder);
}

CGUIObject* CGUIMirror::BuildPopup(ObjectHandle_t eID)
{
    CGUIWindowBuilder* pkBuilder = FindBuilder(eID);
    if (pkBuilder == nullptr)
    {
        return nullptr;
    }
    std::unique_ptr<CGUIPopup> pkPopup(new CGUIRetained<CGUIPopup>(&CGUI::GetInstance(), eID));
    pkPopup->SetModal(true);
    pkPopup->SetInvisible(true);
    return BuildWindow(std::move(pkPopup), *pkBuilder);
}

CGUIObject* CGUIMirror::BuildWindow(std::unique_ptr<CGUIObject> pkObject, CGUIWindowBuilder& kBuilder)
{
    CGUIMirrored* pkWindow = Enter(*CGUIWidget::Find(pkObject.get()));
    if (pkWindow == nullptr)
    {
        return nullptr;
    }
    pkWindow->m_bIsBuilt = true;
    pkWindow->m_pkParent = &m_kRoot;
    const CSafeGUIObjectPtr pkSafe(pkObject.get());
    pkWindow->m_pNative = CallBuilder(*pkWindow, kBuilder);
    if (pkSafe.get() == nullptr)
    {
        // The builder has destroyed its own window.
        static_cast<void>(pkObject.release());
        return nullptr;
    }
    if (pkWindow->m_pNative == nullptr)
    {
        GUILOG(GUI_TRACE_WARNING,
               Text("CGUIMirror::BuildWindow: The builder of ", pkObject->GetID(), " returned null.\n"));
        return nullptr;
    }
    return pkObject.release();
}

void* CGUIMirror::CallBuilder(CGUIMirrored& kWindow, CGUIWindowBuilder& kBuilder)
{
    const CScope kScope(m_pkBuilt, &kWindow);
    return m_kToolkit.Build(kWindow, kBuilder);
}

CGUIMirrored* CGUIMirror::AddPart(void* pNative, ObjectHandle_t eID)
{
    if (m_pkBuilt == nullptr || m_pkBuilt->m_pkWidget == nullptr || pNative == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               Text("CGUIMirror::AddPart: The native object with ID ", eID, " is not named by a builder.\n"));
        return nullptr;
    }
    auto& kWindow = static_cast<CGUICompositeObject&>(m_pkBuilt->m_pkWidget->GetObject());
    CGUIObject* pkObject = eID == NO_HANDLE ? nullptr : kWindow.GetObjectByID(eID, false);
    CGUIMirrored* pkPart = Find(pkObject);
    if (pkObject != nullptr && (pkPart == nullptr || pkPart->m_pNative != nullptr))
    {
        GUILOG(GUI_TRACE_ERROR,
               Text("CGUIMirror::AddPart: The window has an object with ID ", eID, " already.\n"));
        return nullptr;
    }
    if (pkPart == nullptr)
    {
        std::unique_ptr<CGUINativePart> pkNew(new CGUIRetained<CGUINativePart>(&kWindow, eID));
        pkPart = Enter(*pkNew);
        if (pkPart == nullptr)
        {
            return nullptr;
        }
        static_cast<void>(pkNew.release());
    }
    pkPart->m_pkWidget->GetObject().SetFocusable(true);
    pkPart->m_bIsBuilt = true;
    pkPart->m_bIsShown = true;
    pkPart->m_pNative = pNative;
    pkPart->m_pkParent = m_pkBuilt;
    Link(*pkPart, nullptr);
    return pkPart;
}

// ---- Order among siblings --------------------------------------------------------------------------

void CGUIMirror::Order()
{
    for (CGUIMirrored* pkMarked = m_kMarked.GetFirst(); pkMarked != nullptr;
         pkMarked = pkMarked->m_pkNextInQueue)
    {
        pkMarked->m_bWasListed = pkMarked->m_bIsListed;
        pkMarked->m_pkWasAbove = pkMarked->m_pkAbove;
        pkMarked->m_pkWasBelow = pkMarked->m_pkBelow;
    }
    // The application orders the parts of a window that it has built.
    for (CGUIMirrored* pkMarked = m_kMarked.GetFirst(); pkMarked != nullptr;
         pkMarked = pkMarked->m_pkNextInQueue)
    {
        if (!pkMarked->IsPart())
        {
            Unlink(*pkMarked);
        }
    }
    for (CGUIMirrored* pkMarked = m_kMarked.GetFirst(); pkMarked != nullptr;
         pkMarked = pkMarked->m_pkNextInQueue)
    {
        if (IsToBeListed(*pkMarked))
        {
            Link(*pkMarked, FindAbove(*pkMarked));
        }
    }
    for (CGUIMirrored* pkMarked = m_kMarked.GetFirst(); pkMarked != nullptr;
         pkMarked = pkMarked->m_pkNextInQueue)
    {
        if (pkMarked->m_bIsListed &&
            (!pkMarked->m_bWasListed || pkMarked->m_pkAbove != pkMarked->m_pkWasAbove ||
             pkMarked->m_pkBelow != pkMarked->m_pkWasBelow))
        {
            pkMarked->m_pkParent->m_bIsReordered = true;
        }
    }
    for (CGUIMirrored* pkMarked = m_kMarked.GetFirst(); pkMarked != nullptr;
         pkMarked = pkMarked->m_pkNextInQueue)
    {
        if (pkMarked->m_pkParent != nullptr && pkMarked->m_pkParent->m_bIsReordered)
        {
            pkMarked->m_pkParent->m_bIsReordered = false;
            Restack(*pkMarked->m_pkParent);
        }
    }
}

eC_Bool CGUIMirror::IsToBeListed(const CGUIMirrored& kMirrored) const
{
    return kMirrored.m_pNative != nullptr && kMirrored.m_pkWidget != nullptr && !kMirrored.m_bIsListed &&
           !kMirrored.IsPart() && (!kMirrored.IsWindow() || IsToBeShown(*kMirrored.m_pkObject));
}

void CGUIMirror::Restack(const CGUIMirrored& kParent)
{
    // From the top down: whatever is above is in its place already. What is not marked never moves, because
    // raising an object marks it.
    CGUIMirrored* pkNext = nullptr;
    for (CGUIMirrored* pkChild = kParent.m_pkTop; pkChild != nullptr; pkChild = pkNext)
    {
        pkNext = pkChild->m_pkBelow;
        if (pkChild->m_bIsQueued && pkChild->m_pNative != nullptr)
        {
            m_kToolkit.PutBelow(*pkChild, pkChild->m_pkAbove);
        }
    }
}

CGUIMirrored* CGUIMirror::FindAbove(const CGUIMirrored& kMirrored) const
{
    for (const CGUIObject* pkSibling = kMirrored.m_pkObject->GetNextSibling(); pkSibling != nullptr;
         pkSibling = pkSibling->GetNextSibling())
    {
        CGUIMirrored* pkAbove = Find(pkSibling);
        if (pkAbove != nullptr && pkAbove->m_bIsListed && pkAbove->m_pkParent == kMirrored.m_pkParent)
        {
            return pkAbove;
        }
    }
    return nullptr;
}

void CGUIMirror::Link(CGUIMirrored& kMirrored, CGUIMirrored* pkAbove)
{
    // Only the topmost has no parent, and is never listed.
    // NOLINTNEXTLINE(clang-analyzer-core.NullDereference)
    CGUIMirrored*& pkBelow = pkAbove != nullptr ? pkAbove->m_pkBelow : kMirrored.m_pkParent->m_pkTop;
    kMirrored.m_pkAbove = pkAbove;
    kMirrored.m_pkBelow = pkBelow;
    if (pkBelow != nullptr)
    {
        pkBelow->m_pkAbove = &kMirrored;
    }
    pkBelow = &kMirrored;
    kMirrored.m_bIsListed = true;
}

void CGUIMirror::Unlink(CGUIMirrored& kMirrored)
{
    if (!kMirrored.m_bIsListed)
    {
        return;
    }
    // NOLINTNEXTLINE(clang-analyzer-core.NullDereference): what is listed has a parent
    (kMirrored.m_pkAbove != nullptr ? kMirrored.m_pkAbove->m_pkBelow : kMirrored.m_pkParent->m_pkTop) =
        kMirrored.m_pkBelow;
    if (kMirrored.m_pkBelow != nullptr)
    {
        kMirrored.m_pkBelow->m_pkAbove = kMirrored.m_pkAbove;
    }
    kMirrored.m_pkAbove = nullptr;
    kMirrored.m_pkBelow = nullptr;
    kMirrored.m_bIsListed = false;
}

// ---- The tree --------------------------------------------------------------------------------------

CGUIMirrored* CGUIMirror::FindParent(const CGUIObject& kObject)
{
    const CGUIObject* pkTop = FindTop(&kObject);
    if (pkTop == nullptr)
    {
        return nullptr;
    }
    // What has an entry is a widget; the table is quicker than the search for widgets.
    if (Find(pkTop) == nullptr && CGUIWidget::Find(pkTop) == nullptr)
    {
        if (pkTop != m_pkReported)
        {
            m_pkReported = pkTop;
            GUILOG(GUI_TRACE_ERROR,
                   Text("CGUIMirror::Commit: The dialog with ID ", pkTop->GetID(),
                        " is no widget and stays invisible.\nUse a Screen, Popup or Container.\n"));
        }
        return nullptr;
    }
    if (pkTop == &kObject)
    {
        return &m_kRoot;
    }
    const CGUIObject* pkParent = kObject.GetParent();
    CGUIMirrored* pkMirrored = Find(pkParent);
    while (pkMirrored == nullptr && CGUIWidget::Find(pkParent) == nullptr)
    {
        pkParent = pkParent->GetParent();
        pkMirrored = Find(pkParent);
    }
    return pkMirrored;
}

eC_Bool CGUIMirror::HasNative(const CGUIMirrored& kMirrored) const
{
    return &kMirrored == &m_kRoot || kMirrored.m_pNative != nullptr;
}

eC_Bool CGUIMirror::IsToBeShown(const CGUIObject& kObject)
{
    // Plain objects up to the next widget have no native object that could be hidden instead.
    const CGUIObject* pkObject = &kObject;
    if (FindTop(pkObject) == nullptr)
    {
        return false;
    }
    do
    {
        if (pkObject->IsInvisible())
        {
            return false;
        }
        pkObject = pkObject->GetParent();
    } while (pkObject != CGUI::ms_pInstance && CGUIWidget::Find(pkObject) == nullptr);
    return true;
}

// ---- The table -------------------------------------------------------------------------------------

CGUIMirrored* CGUIMirror::Find(const CGUIObject* pkObject) const
{
    if (pkObject == nullptr || m_uiNOFBuckets == 0)
    {
        return nullptr;
    }
    CGUIMirrored* pkMirrored = *GetBucket(pkObject);
    while (pkMirrored != nullptr && pkMirrored->m_pkObject != pkObject)
    {
        pkMirrored = pkMirrored->m_pkNextInBucket;
    }
    return pkMirrored;
}

CGUIMirrored** CGUIMirror::GetBucket(const CGUIObject* pkObject) const
{
    // Objects often have neighbouring addresses; the multiplication scatters them.
    const auto uiNumber = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(pkObject) >> 3U);
    return &m_ppkBuckets[((uiNumber * 2654435769U) >> 7U) & (m_uiNOFBuckets - 1)];
}

eC_Bool CGUIMirror::Grow()
{
    const eC_UInt uiBefore = m_uiNOFBuckets;
    const eC_UInt uiNOFBuckets = uiBefore == 0 ? cuiFirstBuckets : 2 * uiBefore;
    std::unique_ptr<CGUIMirrored*[]> ppkBuckets(new (std::nothrow) CGUIMirrored*[uiNOFBuckets]());
    if (ppkBuckets == nullptr)
    {
        return uiBefore != 0; // the chains grow instead
    }
    m_ppkBuckets.swap(ppkBuckets);
    m_uiNOFBuckets = uiNOFBuckets;
    for (eC_UInt uiBucket = 0; uiBucket < uiBefore; ++uiBucket)
    {
        while (CGUIMirrored* pkMirrored = ppkBuckets[uiBucket])
        {
            ppkBuckets[uiBucket] = pkMirrored->m_pkNextInBucket;
            CGUIMirrored** ppkBucket = GetBucket(pkMirrored->m_pkObject);
            pkMirrored->m_pkNextInBucket = *ppkBucket;
            *ppkBucket = pkMirrored;
        }
    }
    return true;
}

void CGUIMirror::Remove(CGUIMirrored& kMirrored)
{
    CGUIMirrored** ppkLink = GetBucket(kMirrored.m_pkObject);
    while (*ppkLink != &kMirrored)
    {
        ppkLink = &(*ppkLink)->m_pkNextInBucket;
    }
    *ppkLink = kMirrored.m_pkNextInBucket;
    kMirrored.m_pkNextInBucket = nullptr;
    --m_uiNOFMirrored;
}

// ---- Queues ----------------------------------------------------------------------------------------

void CGUIMirror::CQueue::Append(CGUIMirrored& kMirrored)
{
    kMirrored.m_pkNextInQueue = nullptr;
    (m_pkLast != nullptr ? m_pkLast->m_pkNextInQueue : m_pkFirst) = &kMirrored;
    m_pkLast = &kMirrored;
}

CGUIMirrored* CGUIMirror::CQueue::TakeFirst()
{
    CGUIMirrored* pkFirst = m_pkFirst;
    if (pkFirst != nullptr)
    {
        m_pkFirst = pkFirst->m_pkNextInQueue;
        m_pkLast = m_pkFirst != nullptr ? m_pkLast : nullptr;
        pkFirst->m_pkNextInQueue = nullptr;
        pkFirst->m_bIsQueued = false;
    }
    return pkFirst;
}
