// SPDX-License-Identifier: MIT
#include "Widgets/GUIWidget.h"

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Widgets/GUIWidgetChanges.h"
#include "Widgets/WidgetAttributes.h"

#include <climits>
#include <cstdint>
#include <cstring>
#include <functional>

CGUIWidget* CGUIWidget::ms_pkTop = nullptr;
CGUIWidget* CGUIWidget::ms_pkOldest = nullptr;
CGUIWidget* CGUIWidget::ms_pkNewest = nullptr;
const CGUITranslator* CGUIWidget::ms_pkTranslator = nullptr;
const CGUIValueSource* CGUIWidget::ms_pkValues = nullptr;

namespace
{
eC_Bool Lies(const CGUIObject* pkObject, const CGUIObject* pkBefore)
{
    return std::less<const CGUIObject*>()(pkObject, pkBefore);
}

/** Appends as many whole characters as fit. */
eC_UInt AppendCut(eC_Char* pcTextOUT, eC_UInt uiLength, eC_UInt uiSize, const eC_Char* pcAppended)
{
    while (*pcAppended != '\0')
    {
        const eC_UInt uiCharacter = CGUIText::GetLengthOf(pcAppended, 1);
        if (uiLength + uiCharacter >= uiSize)
        {
            break;
        }
        std::memcpy(pcTextOUT + uiLength, pcAppended, uiCharacter);
        uiLength += uiCharacter;
        pcAppended += uiCharacter;
    }
    return uiLength;
}
} // namespace

CGUIWidget::CGUIWidget(CGUIObject& kObject)
    : m_kObject(kObject),
      m_pkBefore(nullptr),
      m_pkBehind(nullptr),
      m_pkOlder(nullptr),
      m_pkNewer(nullptr),
      m_iX(0),
      m_iY(0),
      m_iWidth(ciNatural),
      m_iHeight(ciNatural),
      m_uiTextKey(cuiNoContent),
      m_uiSource(cuiNoContent)
{
    Enter();
    ms_pkOldest = ms_pkOldest != nullptr ? ms_pkOldest : this;
    m_pkOlder = ms_pkNewest != this ? ms_pkNewest : nullptr;
    if (m_pkOlder != nullptr)
    {
        m_pkOlder->m_pkNewer = this;
    }
    ms_pkNewest = this;
    CGUIWidgetChanges::OnMarked(this);
    MarkMoved();
}

CGUIWidget::~CGUIWidget()
{
    MarkMoved();
    CGUIWidgetChanges::OnDestroyed(*this);
    LeaveChanges();
    Leave();
}

// ---- Finding widgets by their objects --------------------------------------------------------------

eC_UInt CGUIWidget::GetPriority(const CGUIWidget* pkWidget)
{
    // Objects often have neighbouring addresses; the multiplication scatters them.
    const auto uiAddress = reinterpret_cast<std::uintptr_t>(&pkWidget->m_kObject);
    return static_cast<eC_UInt>(uiAddress >> 2U) * 2654435769U;
}

CGUIWidget** CGUIWidget::FindLink(const CGUIObject* pkObject)
{
    CGUIWidget** ppkLink = &ms_pkTop;
    while (*ppkLink != nullptr && &(*ppkLink)->m_kObject != pkObject)
    {
        ppkLink = Lies(pkObject, &(*ppkLink)->m_kObject) ? &(*ppkLink)->m_pkBefore : &(*ppkLink)->m_pkBehind;
    }
    return ppkLink;
}

CGUIWidget* CGUIWidget::Find(const CGUIObject* pkObject)
{
    // Every switch asks for the parent of dialogs; that need not take longer the more widgets there are.
    return pkObject == nullptr || pkObject == CGUI::ms_pInstance ? nullptr : *FindLink(pkObject);
}

void CGUIWidget::Enter()
{
    CGUIWidget** ppkLink = &ms_pkTop;
    while (*ppkLink != nullptr && GetPriority(*ppkLink) >= GetPriority(this))
    {
        ppkLink =
            Lies(&m_kObject, &(*ppkLink)->m_kObject) ? &(*ppkLink)->m_pkBefore : &(*ppkLink)->m_pkBehind;
    }

    // The subtree that was here moves below this widget, split at its object.
    CGUIWidget* pkRest = *ppkLink;
    *ppkLink = this;
    CGUIWidget** ppkBefore = &m_pkBefore;
    CGUIWidget** ppkBehind = &m_pkBehind;
    while (pkRest != nullptr)
    {
        if (Lies(&pkRest->m_kObject, &m_kObject))
        {
            *ppkBefore = pkRest;
            ppkBefore = &pkRest->m_pkBehind;
            pkRest = pkRest->m_pkBehind;
        }
        else
        {
            *ppkBehind = pkRest;
            ppkBehind = &pkRest->m_pkBefore;
            pkRest = pkRest->m_pkBefore;
        }
    }
    *ppkBefore = nullptr;
    *ppkBehind = nullptr;
}

void CGUIWidget::Leave()
{
    CGUIWidget** ppkLink = FindLink(&m_kObject);
    CGUIWidget* pkBefore = m_pkBefore;
    CGUIWidget* pkBehind = m_pkBehind;
    while (pkBefore != nullptr && pkBehind != nullptr)
    {
        if (GetPriority(pkBefore) >= GetPriority(pkBehind))
        {
            *ppkLink = pkBefore;
            ppkLink = &pkBefore->m_pkBehind;
            pkBefore = pkBefore->m_pkBehind;
        }
        else
        {
            *ppkLink = pkBehind;
            ppkLink = &pkBehind->m_pkBefore;
            pkBehind = pkBehind->m_pkBefore;
        }
    }
    *ppkLink = pkBefore != nullptr ? pkBefore : pkBehind;
}

// ---- Marking changes -------------------------------------------------------------------------------

void CGUIWidget::LeaveChanges()
{
    CGUIWidgetChanges::OnLeaves(this);
    (m_pkOlder != nullptr ? m_pkOlder->m_pkNewer : ms_pkOldest) = m_pkNewer;
    (m_pkNewer != nullptr ? m_pkNewer->m_pkOlder : ms_pkNewest) = m_pkOlder;
    m_pkOlder = nullptr;
    m_pkNewer = nullptr;
}

void CGUIWidget::MarkChanged()
{
    CGUIWidget* const pkNewest = ms_pkNewest;
    if (pkNewest != this)
    {
        LeaveChanges();
        pkNewest->m_pkNewer = this;
        m_pkOlder = pkNewest;
        ms_pkNewest = this;
    }
    CGUIWidgetChanges::OnMarked(this);
}

void CGUIWidget::MarkMoved()
{
    MarkChanged();
    CGUIWidget* pkParent = Find(m_kObject.GetParent());
    const GUILayout_t* pkLayout = pkParent != nullptr ? pkParent->GetLayout() : nullptr;
    if (pkLayout != nullptr && pkLayout->m_eLayout != LAYOUT_ABSOLUTE)
    {
        pkParent->MarkChanged();
    }
}

// ---- Texts and values from the application ---------------------------------------------------------

void CGUIWidget::SetTranslator(const CGUITranslator* pkTranslator)
{
    ms_pkTranslator = pkTranslator;
    MarkTexts();
}

void CGUIWidget::MarkTexts()
{
    MarkTextsBelow(ms_pkTop);
}

void CGUIWidget::MarkTextsBelow(CGUIWidget* pkWidget)
{
    for (; pkWidget != nullptr; pkWidget = pkWidget->m_pkBehind)
    {
        MarkTextsBelow(pkWidget->m_pkBefore);
        if (pkWidget->HasKeys())
        {
            pkWidget->MarkMoved();
        }
    }
}

void CGUIWidget::UpdateValues()
{
    if (ms_pkValues != nullptr && CGUI::ms_pInstance != nullptr)
    {
        UpdateValuesBelow(*CGUI::ms_pInstance);
    }
}

void CGUIWidget::UpdateValuesBelow(const CGUIObject& kObject)
{
    if (kObject.IsInvisible())
    {
        return;
    }
    CGUIWidget* pkWidget = Find(&kObject);
    if (pkWidget != nullptr && pkWidget->m_uiSource != cuiNoContent)
    {
        pkWidget->TakeValue(*ms_pkValues, pkWidget->m_uiSource);
    }
    if (kObject.IsCompositeObject())
    {
        const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(kObject).GetFirstChild();
        for (; pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            UpdateValuesBelow(*pkChild);
        }
    }
}

void CGUIWidget::TakeValue(const CGUIValueSource& kValues, GUIContentKey_t uiValue)
{
    SetText(kValues.GetValueText(uiValue));
}

const eC_Char* CGUIWidget::GetTranslation(GUIContentKey_t uiKey)
{
    return uiKey != cuiNoContent && ms_pkTranslator != nullptr ? ms_pkTranslator->GetText(uiKey) : "";
}

eC_Bool CGUIWidget::FindTranslation(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT)
{
    return ms_pkTranslator != nullptr && ms_pkTranslator->FindText(pcName, uiKeyOUT);
}

// ---- What a widget shows ---------------------------------------------------------------------------

eC_Bool CGUIWidget::IsShown() const
{
    const CGUIObject* pkObject = &m_kObject;
    while (!pkObject->IsInvisible() && pkObject->GetParent() != nullptr)
    {
        pkObject = pkObject->GetParent();
    }
    return !pkObject->IsInvisible() && pkObject == CGUI::ms_pInstance;
}

eC_Bool CGUIWidget::HasFocus() const
{
    return CGUIEventHandler::GetInstance().GetFocussedObject() == &m_kObject;
}

void CGUIWidget::SetPosition(eC_Int iX, eC_Int iY)
{
    if (iX != m_iX || iY != m_iY)
    {
        m_iX = static_cast<short>(iX);
        m_iY = static_cast<short>(iY);
        MarkChanged();
    }
}

void CGUIWidget::SetSize(eC_Int iWidth, eC_Int iHeight)
{
    if (iWidth != m_iWidth || iHeight != m_iHeight)
    {
        m_iWidth = static_cast<short>(iWidth);
        m_iHeight = static_cast<short>(iHeight);
        MarkMoved();
    }
}

void CGUIWidget::SetTextKey(GUIContentKey_t uiKey)
{
    if (uiKey != m_uiTextKey)
    {
        m_uiTextKey = uiKey;
        MarkContent();
    }
}

eC_Bool CGUIWidget::SetText(const eC_Char* pcText)
{
    if (!m_kText.Set(pcText))
    {
        return false;
    }
    MarkContent();
    return true;
}

void CGUIWidget::MarkContent()
{
    // Another text may need more or less space.
    if (m_iWidth == ciNatural || m_iHeight == ciNatural)
    {
        MarkMoved();
    }
    else
    {
        MarkChanged();
    }
}

eC_UInt CGUIWidget::CopyContent(eC_Char* pcContentOUT, eC_UInt uiSize) const
{
    const eC_Char* const pcCaption = GetCaption();
    const eC_Char* const pcText = GetText();
    eC_UInt uiLength = AppendCut(pcContentOUT, 0, uiSize, pcCaption);
    if (pcCaption[uiLength] == '\0')
    {
        const eC_UInt uiCaption = uiLength;
        if (*pcCaption != '\0' && *pcText != '\0')
        {
            uiLength = AppendCut(pcContentOUT, uiLength, uiSize, " ");
        }
        if (*pcCaption == '\0' || uiLength > uiCaption)
        {
            uiLength = AppendCut(pcContentOUT, uiLength, uiSize, pcText);
        }
    }
    pcContentOUT[uiLength] = '\0';
    return uiLength;
}

void CGUIWidget::SetStyle(const eC_Char* pcStyle)
{
    if (m_kStyle.Set(pcStyle))
    {
        MarkMoved();
    }
}

eC_Bool CGUIWidget::SetValue(eC_Int)
{
    return false;
}

EGUIReaction CGUIWidget::OnKey(EGUIKey eKey)
{
    return eKey == GUIKEY_ACTIVATE ? REACTION_ACTIVATED : REACTION_NONE;
}

EGUIReaction CGUIWidget::OnType(const eC_Char*)
{
    return REACTION_NONE;
}

EGUIReaction CGUIWidget::OnTouch(eC_Int, eC_Int, const GUIArea_t&)
{
    return OnKey(GUIKEY_ACTIVATE);
}

eC_UInt CGUIWidget::SaveState(unsigned char*, eC_UInt) const
{
    return 0;
}

eC_Bool CGUIWidget::RestoreState(const unsigned char*, eC_UInt)
{
    return false;
}

// ---- Attributes ------------------------------------------------------------------------------------

EAttributeResult CGUIWidget::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                                eC_String& kExpectedOUT)
{
    eC_Int iX = m_iX;
    eC_Int iY = m_iY;
    eC_Int iWidth = m_iWidth;
    eC_Int iHeight = m_iHeight;
    EAttributeResult eResult = ATTRIBUTE_SET;
    if (IsName(pcName, "x"))
    {
        eResult = ReadNumber(pcValue, SHRT_MIN, SHRT_MAX, iX, kExpectedOUT);
    }
    else if (IsName(pcName, "y"))
    {
        eResult = ReadNumber(pcValue, SHRT_MIN, SHRT_MAX, iY, kExpectedOUT);
    }
    else if (IsName(pcName, "width"))
    {
        eResult = ReadSize(pcValue, iWidth, kExpectedOUT);
    }
    else if (IsName(pcName, "height"))
    {
        eResult = ReadSize(pcValue, iHeight, kExpectedOUT);
    }
    else
    {
        return SetContentAttribute(pcName, pcValue, kExpectedOUT);
    }
    SetPosition(iX, iY);
    SetSize(iWidth, iHeight);
    return eResult;
}

EAttributeResult CGUIWidget::SetContentAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                                 eC_String& kExpectedOUT)
{
    if (IsName(pcName, "text"))
    {
        SetText(pcValue);
        return ATTRIBUTE_SET;
    }
    if (IsName(pcName, "style"))
    {
        SetStyle(pcValue);
        return ATTRIBUTE_SET;
    }
    if (IsName(pcName, "textkey"))
    {
        GUIContentKey_t uiKey = cuiNoContent;
        if (!FindTranslation(pcValue, uiKey))
        {
            kExpectedOUT = "the key of a text of the application";
            return ATTRIBUTE_BAD_VALUE;
        }
        SetTextKey(uiKey);
        return ATTRIBUTE_SET;
    }
    if (IsName(pcName, "source"))
    {
        if (ms_pkValues == nullptr || !ms_pkValues->FindValue(pcValue, m_uiSource))
        {
            kExpectedOUT = "the name of a value of the application";
            return ATTRIBUTE_BAD_VALUE;
        }
        return ATTRIBUTE_SET;
    }
    kExpectedOUT = "x, y, width, height, textkey, text, source, style";
    return ATTRIBUTE_UNKNOWN;
}
