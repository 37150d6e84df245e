// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUICONTAINER_H
#define WIDGETS_GUICONTAINER_H

/** @file
 *  Widgets with children.
 */

#include "Widgets/GUIWidget.h"

/** Places its children: absolutely, in a row or in a column. It fills its parent unless it is given a size.
 */
class CGUIContainer : public CGUIWidgetObject<CGUICompositeObject>
{
public:
    /** @param pkParent the parent to attach to, or null. @param eID the identifier */
    explicit CGUIContainer(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;
    const GUILayout_t* GetLayout() const override { return &m_kLayout; }

    /** Sets how the children are placed. @param iGap, iPadding see GUILayout_t; 0 to 32767 units */
    void SetLayout(EGUILayout eLayout, eC_Int iGap = 0, eC_Int iPadding = 0);

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;

private:
    GUILayout_t m_kLayout;
};

/** A dialog: it covers everything below it. The text is its title. */
class CGUIScreen : public CGUIContainer
{
public:
    using CGUIContainer::CGUIContainer;

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;
    eC_Bool IsWindow() const override { return true; }
};

/** A popup: a box over the dialog. The text is its title. */
class CGUIPopup : public CGUIContainer
{
public:
    using CGUIContainer::CGUIContainer;

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;
    eC_Bool IsWindow() const override { return true; }
    eC_Bool IsModal() const override { return m_bIsModal; }

    /** Sets whether a visible popup keeps input from everything else; false by default. */
    void SetModal(eC_Bool bIsModal);

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;

private:
    eC_Bool m_bIsModal = false;
};

#endif
