// SPDX-License-Identifier: MIT
#include "Widgets/GUIWidgetLayout.h"

#include "Core/Control/GUI.h"
#include "Widgets/GUIWidgetVisitor.h"

/** Places the children of one object, one after the other. */
class CGUIWidgetPlaces
{
public:
    CGUIWidgetPlaces(const CGUIWidgetLayout& kLayout, const CGUICompositeObject& kParent,
                     const GUIArea_t& kArea);

    /** @return whether there is another visible child, available from GetChild and GetArea */
    eC_Bool Next();

    const CGUIObject& GetChild() const { return *m_pkChild; }
    const GUIArea_t& GetArea() const { return m_kChildArea; }

    /** @return the area of a child in an absolute layout, which does not depend on the others */
    GUIArea_t PlaceAbsolutely(const CGUIWidget& kChild) const;

    eC_Bool IsAbsolute() const { return m_kRow.m_eLayout == LAYOUT_ABSOLUTE; }

private:
    eC_Bool IsRow() const { return m_kRow.m_eLayout == LAYOUT_ROW; }
    void Divide();
    void PlaceInLine(const CGUIWidget& kChild);
    GUIArea_t Measure(const CGUIWidget& kChild) const;
    eC_Int TakeShare();

    const CGUIWidgetLayout& m_kLayout;
    const CGUICompositeObject& m_kParent;
    GUIArea_t m_kArea;  ///< the parent's, in a row or column without its padding
    GUILayout_t m_kRow; ///< how the children are placed
    const CGUIObject* m_pkChild;
    GUIArea_t m_kChildArea;
    eC_Int m_iUsed = 0;       ///< along the row or column, up to the next child
    eC_Int m_iLeftOver = 0;   ///< along it, for the children that fill
    eC_Int m_iNOFFilling = 0; ///< children that fill and have no share yet
};

CGUIWidgetPlaces::CGUIWidgetPlaces(const CGUIWidgetLayout& kLayout, const CGUICompositeObject& kParent,
                                   const GUIArea_t& kArea)
    : m_kLayout(kLayout),
      m_kParent(kParent),
      m_kArea(kArea),
      m_kRow{LAYOUT_ABSOLUTE, 0, 0},
      m_pkChild(nullptr),
      m_kChildArea(kArea)
{
    const CGUIWidget* pkParent = CGUIWidget::Find(&kParent);
    if (pkParent != nullptr && pkParent->GetLayout() != nullptr)
    {
        m_kRow = *pkParent->GetLayout();
    }
    if (!IsAbsolute())
    {
        m_kArea.m_iX += m_kRow.m_iPadding;
        m_kArea.m_iY += m_kRow.m_iPadding;
        m_kArea.m_iWidth -= 2 * m_kRow.m_iPadding;
        m_kArea.m_iHeight -= 2 * m_kRow.m_iPadding;
        Divide();
    }
}

void CGUIWidgetPlaces::Divide()
{
    m_iLeftOver = (IsRow() ? m_kArea.m_iWidth : m_kArea.m_iHeight) + m_kRow.m_iGap;
    for (const CGUIObject* pkChild = m_kParent.GetFirstChild(); pkChild != nullptr;
         pkChild = pkChild->GetNextSibling())
    {
        const CGUIWidget* pkWidget = pkChild->IsInvisible() ? nullptr : CGUIWidget::Find(pkChild);
        if (pkWidget == nullptr)
        {
            continue;
        }
        m_iLeftOver -= m_kRow.m_iGap;
        if ((IsRow() ? pkWidget->GetWidth() : pkWidget->GetHeight()) == CGUIWidget::ciFill)
        {
            ++m_iNOFFilling;
        }
        else
        {
            const GUIArea_t kSize = Measure(*pkWidget);
            m_iLeftOver -= IsRow() ? kSize.m_iWidth : kSize.m_iHeight;
        }
    }
    m_iLeftOver = m_iLeftOver > 0 ? m_iLeftOver : 0;
}

eC_Bool CGUIWidgetPlaces::Next()
{
    do
    {
        m_pkChild = m_pkChild == nullptr ? m_kParent.GetFirstChild() : m_pkChild->GetNextSibling();
    } while (m_pkChild != nullptr && m_pkChild->IsInvisible());
    if (m_pkChild == nullptr)
    {
        return false;
    }

    const CGUIWidget* pkWidget = CGUIWidget::Find(m_pkChild);
    if (pkWidget == nullptr)
    {
        m_kChildArea = m_kArea;
    }
    else if (IsAbsolute())
    {
        m_kChildArea = PlaceAbsolutely(*pkWidget);
    }
    else
    {
        PlaceInLine(*pkWidget);
    }
    return true;
}

GUIArea_t CGUIWidgetPlaces::PlaceAbsolutely(const CGUIWidget& kChild) const
{
    GUIArea_t kPlace = Measure(kChild);
    kPlace.m_iX = m_kArea.m_iX + kChild.GetX();
    kPlace.m_iY = m_kArea.m_iY + kChild.GetY();
    if (kChild.GetWidth() == CGUIWidget::ciFill)
    {
        kPlace.m_iWidth = m_kArea.m_iWidth - kChild.GetX();
    }
    if (kChild.GetHeight() == CGUIWidget::ciFill)
    {
        kPlace.m_iHeight = m_kArea.m_iHeight - kChild.GetY();
    }
    return kPlace;
}

void CGUIWidgetPlaces::PlaceInLine(const CGUIWidget& kChild)
{
    m_kChildArea = Measure(kChild);
    m_kChildArea.m_iX = m_kArea.m_iX + (IsRow() ? m_iUsed : 0);
    m_kChildArea.m_iY = m_kArea.m_iY + (IsRow() ? 0 : m_iUsed);
    if (kChild.GetWidth() == CGUIWidget::ciFill)
    {
        m_kChildArea.m_iWidth = IsRow() ? TakeShare() : m_kArea.m_iWidth;
    }
    if (kChild.GetHeight() == CGUIWidget::ciFill)
    {
        m_kChildArea.m_iHeight = IsRow() ? m_kArea.m_iHeight : TakeShare();
    }
    m_iUsed += (IsRow() ? m_kChildArea.m_iWidth : m_kChildArea.m_iHeight) + m_kRow.m_iGap;
}

GUIArea_t CGUIWidgetPlaces::Measure(const CGUIWidget& kChild) const
{
    GUIArea_t kSize = {0, 0, kChild.GetWidth(), kChild.GetHeight()};
    if (kSize.m_iWidth == CGUIWidget::ciNatural || kSize.m_iHeight == CGUIWidget::ciNatural)
    {
        eC_Int iWidth = 0;
        eC_Int iHeight = 0;
        if (m_kLayout.m_pkMetrics != nullptr)
        {
            m_kLayout.m_pkMetrics->Measure(kChild, iWidth, iHeight);
        }
        kSize.m_iWidth = kSize.m_iWidth == CGUIWidget::ciNatural ? iWidth : kSize.m_iWidth;
        kSize.m_iHeight = kSize.m_iHeight == CGUIWidget::ciNatural ? iHeight : kSize.m_iHeight;
    }
    return kSize;
}

eC_Int CGUIWidgetPlaces::TakeShare()
{
    // The last one also gets the remainder of the division.
    const eC_Int iShare = m_iLeftOver / m_iNOFFilling;
    m_iLeftOver -= iShare;
    --m_iNOFFilling;
    return iShare;
}

CGUIWidgetLayout::CGUIWidgetLayout(eC_Int iWidth, eC_Int iHeight, const CGUIWidgetMetrics* pkMetrics)
    : m_kDisplay{0, 0, iWidth, iHeight}, m_pkMetrics(pkMetrics)
{
}

void CGUIWidgetLayout::Visit(CGUIWidgetVisitor& kVisitor) const
{
    if (!CGUI::GetInstance().IsInvisible())
    {
        VisitObject(kVisitor, CGUI::GetInstance(), m_kDisplay);
    }
}

void CGUIWidgetLayout::Visit(CGUIWidgetVisitor& kVisitor, const CGUIObject& kTop) const
{
    VisitObject(kVisitor, kTop, GetArea(kTop));
}

void CGUIWidgetLayout::VisitObject(CGUIWidgetVisitor& kVisitor, const CGUIObject& kObject,
                                   const GUIArea_t& kArea) const
{
    const CGUIWidget* pkWidget = CGUIWidget::Find(&kObject);
    if (pkWidget != nullptr)
    {
        pkWidget->Accept(kVisitor, kArea);
    }
    if (!kObject.IsCompositeObject())
    {
        return;
    }
    CGUIWidgetPlaces kPlaces(*this, static_cast<const CGUICompositeObject&>(kObject), kArea);
    while (kPlaces.Next())
    {
        VisitObject(kVisitor, kPlaces.GetChild(), kPlaces.GetArea());
    }
    if (pkWidget != nullptr)
    {
        kVisitor.OnEnd(*pkWidget);
    }
}

GUIArea_t CGUIWidgetLayout::Place(const CGUIObject& kObject, const CGUIWidget* pkWidget) const
{
    const CGUICompositeObject* pkParent = kObject.GetParent();
    if (pkParent == nullptr)
    {
        return m_kDisplay;
    }
    CGUIWidgetPlaces kPlaces(*this, *pkParent, GetArea(*pkParent));
    if (pkWidget != nullptr && kPlaces.IsAbsolute())
    {
        return kPlaces.PlaceAbsolutely(*pkWidget);
    }
    while (kPlaces.Next())
    {
        if (&kPlaces.GetChild() == &kObject)
        {
            return kPlaces.GetArea();
        }
    }
    return {0, 0, 0, 0};
}

CGUIWidget* CGUIWidgetLayout::FindAt(eC_Int iX, eC_Int iY) const
{
    CGUIWidget* pkFound = nullptr;
    FindBelow(CGUI::GetInstance(), m_kDisplay, iX, iY, pkFound);
    return pkFound;
}

void CGUIWidgetLayout::FindBelow(const CGUIObject& kObject, const GUIArea_t& kArea, eC_Int iX, eC_Int iY,
                                 CGUIWidget*& pkFoundOUT) const
{
    CGUIWidget* pkWidget = CGUIWidget::Find(&kObject);
    const eC_Bool bIsInside = iX >= kArea.m_iX && iX - kArea.m_iX < kArea.m_iWidth && iY >= kArea.m_iY &&
                              iY - kArea.m_iY < kArea.m_iHeight;
    if (pkWidget != nullptr && bIsInside && (pkWidget->IsWindow() || kObject.IsFocusable()))
    {
        pkFoundOUT = kObject.IsFocusable() ? pkWidget : nullptr;
    }
    if (kObject.IsCompositeObject())
    {
        CGUIWidgetPlaces kPlaces(*this, static_cast<const CGUICompositeObject&>(kObject), kArea);
        while (kPlaces.Next())
        {
            FindBelow(kPlaces.GetChild(), kPlaces.GetArea(), iX, iY, pkFoundOUT);
        }
    }
}
