// SPDX-License-Identifier: MIT
#include "Widgets/GUIWidgetChanges.h"

#include "Core/GUIEventHandler.h"
#include "Widgets/GUIWidget.h"

CGUIWidgetChanges* CGUIWidgetChanges::ms_pkFirst = nullptr;

CGUIWidgetChanges::CGUIWidgetChanges()
    : m_pkNextChanges(ms_pkFirst),
      m_pkNextWidget(CGUIWidget::ms_pkOldest),
      m_pkFocussed(nullptr),
      m_bIsAnyDestroyed(true)
{
    ms_pkFirst = this;
}

CGUIWidgetChanges::~CGUIWidgetChanges()
{
    CGUIWidgetChanges** ppkLink = &ms_pkFirst;
    while (*ppkLink != this)
    {
        ppkLink = &(*ppkLink)->m_pkNextChanges;
    }
    *ppkLink = m_pkNextChanges;
}

eC_Bool CGUIWidgetChanges::IsChanged() const
{
    return m_pkNextWidget != nullptr || m_bIsAnyDestroyed ||
           m_pkFocussed != CGUIEventHandler::GetInstance().GetFocussedObject();
}

const CGUIWidget* CGUIWidgetChanges::TakeNext()
{
    const CGUIWidget* const pkWidget = m_pkNextWidget;
    if (pkWidget != nullptr)
    {
        m_pkNextWidget = pkWidget->m_pkNewer;
    }
    return pkWidget;
}

void CGUIWidgetChanges::Settle()
{
    m_pkNextWidget = nullptr;
    m_bIsAnyDestroyed = false;
    m_pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
}

void CGUIWidgetChanges::OnWidgetDestroyed(const CGUIWidget&) {}

void CGUIWidgetChanges::OnMarked(const CGUIWidget* pkWidget)
{
    for (CGUIWidgetChanges* pkChanges = ms_pkFirst; pkChanges != nullptr;
         pkChanges = pkChanges->m_pkNextChanges)
    {
        if (pkChanges->m_pkNextWidget == nullptr)
        {
            pkChanges->m_pkNextWidget = pkWidget;
        }
    }
}

void CGUIWidgetChanges::OnLeaves(const CGUIWidget* pkWidget)
{
    for (CGUIWidgetChanges* pkChanges = ms_pkFirst; pkChanges != nullptr;
         pkChanges = pkChanges->m_pkNextChanges)
    {
        if (pkChanges->m_pkNextWidget == pkWidget)
        {
            pkChanges->m_pkNextWidget = pkWidget->m_pkNewer;
        }
    }
}

void CGUIWidgetChanges::OnDestroyed(const CGUIWidget& kWidget)
{
    for (CGUIWidgetChanges* pkChanges = ms_pkFirst; pkChanges != nullptr;
         pkChanges = pkChanges->m_pkNextChanges)
    {
        pkChanges->m_bIsAnyDestroyed = true;
        pkChanges->OnWidgetDestroyed(kWidget);
    }
}
