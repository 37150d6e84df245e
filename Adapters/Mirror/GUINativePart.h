// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_MIRROR_GUINATIVEPART_H
#define ADAPTERS_MIRROR_GUINATIVEPART_H

/** @file
 *  What stands in the object tree for a native object of the application.
 */

#include "Widgets/GUIWidget.h"

/** A native object that a builder has made and named, so that it can have the focus. */
class CGUINativePart : public CGUIWidgetObject<CGUIObject>
{
public:
    /** Makes a part that accepts the focus. @param pkParent the window. @param eID the identifier */
    CGUINativePart(CGUICompositeObject* pkParent, ObjectHandle_t eID);

    /** Calls OnWidget. */
    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;
};

#endif
