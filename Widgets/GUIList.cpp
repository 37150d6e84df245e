// SPDX-License-Identifier: MIT
#include "Widgets/GUIList.h"

#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/WidgetAttributes.h"
#include "Widgets/WidgetState.h"

#include <climits>
#include <cstddef>
#include <cstring>
#include <utility>

namespace
{
constexpr eC_Char ccSeparator = '|'; ///< between the entries of a dialog file
} // namespace

CGUIList::CGUIList(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CGUIWidgetObject(pkParent, eID)
{
    SetFocusable(true);
}

void CGUIList::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnList(*this, kArea);
}

void CGUIList::SetEntries(const CGUIListEntries* pkEntries)
{
    // The same source may have other entries now, so this always counts as a change.
    m_pkEntries = pkEntries;
    MarkContent();
}

eC_UInt CGUIList::GetNOFEntries() const
{
    return m_pkEntries != nullptr ? m_pkEntries->GetNOFEntries() : m_uiNOFNames;
}

const eC_Char* CGUIList::GetEntry(eC_UInt uiEntry) const
{
    if (m_pkEntries != nullptr)
    {
        return m_pkEntries->GetEntry(uiEntry);
    }
    const eC_Char* pcName = FindName(uiEntry);
    GUIContentKey_t uiKey = cuiNoContent;
    return m_bAreKeys && FindTranslation(pcName, uiKey) ? GetTranslation(uiKey) : pcName;
}

const eC_Char* CGUIList::FindName(eC_UInt uiEntry) const
{
    const eC_Char* pcName = m_kNames.GetText();
    for (; uiEntry > 0; --uiEntry)
    {
        pcName += std::strlen(pcName) + 1;
    }
    return pcName;
}

void CGUIList::SetRowHeight(eC_Int iRowHeight)
{
    if (iRowHeight != m_iRowHeight)
    {
        m_iRowHeight = iRowHeight;
        MarkContent();
    }
}

eC_UInt CGUIList::GetFirstShown(eC_Int iHeight) const
{
    const eC_Int iRows = iHeight / m_iRowHeight;
    const eC_Int iValue = GetValue();
    return iRows > 0 && iValue >= iRows ? static_cast<eC_UInt>(iValue - iRows + 1) : 0U;
}

eC_Bool CGUIList::SetValue(eC_Int iValue)
{
    const eC_Int iBefore = GetValue();
    m_iValue = iValue;
    if (GetValue() == iBefore)
    {
        return false;
    }
    MarkChanged();
    return true;
}

eC_Int CGUIList::GetValue() const
{
    const auto iEntries = static_cast<eC_Int>(GetNOFEntries());
    const eC_Int iValue = m_iValue < iEntries ? m_iValue : iEntries - 1;
    return iValue > 0 ? iValue : 0;
}

EGUIReaction CGUIList::OnKey(EGUIKey eKey)
{
    const eC_Int iValue = GetValue();
    const auto iEntries = static_cast<eC_Int>(GetNOFEntries());
    switch (eKey)
    {
    case GUIKEY_UP:
        // At either end the key leaves the list, so that a knob can reach the widgets before and after it.
        return iValue > 0 ? Select(iValue - 1) : REACTION_NONE;
    case GUIKEY_DOWN:
        return iValue + 1 < iEntries ? Select(iValue + 1) : REACTION_NONE;
    case GUIKEY_HOME:
        return Select(0);
    case GUIKEY_END:
        return Select(iEntries - 1);
    case GUIKEY_ACTIVATE:
        return iEntries > 0 ? REACTION_ACTIVATED : REACTION_USED;
    default:
        return REACTION_NONE;
    }
}

EGUIReaction CGUIList::OnTouch(eC_Int, eC_Int iY, const GUIArea_t& kArea)
{
    const eC_Int iEntry = static_cast<eC_Int>(GetFirstShown(kArea.m_iHeight)) + iY / m_iRowHeight;
    if (iY < 0 || iEntry >= static_cast<eC_Int>(GetNOFEntries()))
    {
        return REACTION_USED;
    }
    // Touching an entry selects it as well.
    SetValue(iEntry);
    return REACTION_ACTIVATED;
}

EGUIReaction CGUIList::Select(eC_Int iValue)
{
    return SetValue(iValue) ? REACTION_CHANGED : REACTION_USED;
}

eC_UInt CGUIList::SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const
{
    return SaveNumber(GetValue(), puiStateOUT, uiSize);
}

eC_Bool CGUIList::RestoreState(const unsigned char* puiState, eC_UInt uiSize)
{
    return RestoreNumber(*this, puiState, uiSize);
}

EAttributeResult CGUIList::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                              eC_String& kExpectedOUT)
{
    if (IsName(pcName, "entries"))
    {
        SetNames(pcValue, false);
        return ATTRIBUTE_SET;
    }
    if (IsName(pcName, "entrykeys"))
    {
        if (!AreAllKeys(pcValue))
        {
            kExpectedOUT = "keys of texts of the application, with | between them";
            return ATTRIBUTE_BAD_VALUE;
        }
        SetNames(pcValue, true);
        return ATTRIBUTE_SET;
    }
    if (IsName(pcName, "value"))
    {
        eC_Int iValue = m_iValue;
        const EAttributeResult eResult = ReadNumber(pcValue, 0, INT_MAX, iValue, kExpectedOUT);
        SetValue(iValue);
        return eResult;
    }
    if (IsName(pcName, "rowheight"))
    {
        eC_Int iRowHeight = m_iRowHeight;
        const EAttributeResult eResult = ReadNumber(pcValue, 1, SHRT_MAX, iRowHeight, kExpectedOUT);
        SetRowHeight(iRowHeight);
        return eResult;
    }
    return WithOwnNames(CGUIWidgetObject::SetWidgetAttribute(pcName, pcValue, kExpectedOUT),
                        "entries, entrykeys, value, rowheight", kExpectedOUT);
}

void CGUIList::TakeValue(const CGUIValueSource& kValues, GUIContentKey_t uiValue)
{
    SetValue(kValues.GetValueNumber(uiValue));
}

eC_Bool CGUIList::AreAllKeys(const eC_Char* pcNames)
{
    CGUIText kName;
    while (pcNames != nullptr)
    {
        const eC_Char* const pcEnd = std::strchr(pcNames, ccSeparator);
        kName.Set(pcNames, static_cast<eC_UInt>(pcEnd != nullptr ? static_cast<std::size_t>(pcEnd - pcNames)
                                                                 : std::strlen(pcNames)));
        GUIContentKey_t uiKey = cuiNoContent;
        if (!FindTranslation(kName.GetText(), uiKey))
        {
            return false;
        }
        pcNames = pcEnd != nullptr ? pcEnd + 1 : nullptr;
    }
    return true;
}

void CGUIList::SetNames(const eC_Char* pcNames, eC_Bool bAreKeys)
{
    CGUIText kNames;
    eC_UInt uiNOFNames = 0;
    const auto uiLength = static_cast<eC_UInt>(std::strlen(pcNames));
    kNames.Reserve(uiLength);
    for (eC_UInt i = 0; i < uiLength; ++i)
    {
        const eC_Bool bIsEnd = pcNames[i] == ccSeparator;
        kNames.Insert(i, bIsEnd ? "" : pcNames + i, 1);
        uiNOFNames += bIsEnd ? 1 : 0;
    }
    m_kNames = std::move(kNames);
    m_uiNOFNames = uiLength > 0 ? uiNOFNames + 1 : 0;
    m_bAreKeys = bAreKeys;
    MarkContent();
}
