// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUILABEL_H
#define WIDGETS_GUILABEL_H

/** @file
 *  Widgets that show something and react to nothing.
 */

#include "Widgets/GUIWidget.h"

/** A text. */
class CGUILabel : public CGUIWidgetObject<CGUIObject>
{
public:
    using CGUIWidgetObject::CGUIWidgetObject;

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;
};

/** A picture, identified by its name. */
class CGUIImage : public CGUIWidgetObject<CGUIObject>
{
public:
    using CGUIWidgetObject::CGUIWidgetObject;

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** Sets the name of the picture. @param pcImage zero-terminated, is copied; null: none
     *  @throws std::bad_alloc with nothing changed
     */
    void SetImage(const eC_Char* pcImage);

    /** @return the name of the picture, zero-terminated, empty if there is none */
    const eC_Char* GetImage() const { return m_kImage.GetText(); }

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;

private:
    CGUIText m_kImage;
};

#endif
