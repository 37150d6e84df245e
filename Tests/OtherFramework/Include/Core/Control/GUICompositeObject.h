// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_CORE_CONTROL_GUICOMPOSITEOBJECT_H
#define OTHERFRAMEWORK_CORE_CONTROL_GUICOMPOSITEOBJECT_H

#include "Core/Control/GUIObject.h"

#include <vector>

/** An object with an array of children, the topmost last. */
class CGUICompositeObject : public CGUIObject
{
public:
    CGUICompositeObject() = default;
    ~CGUICompositeObject() override;

    CGUIObject* GetObjectByID(const ObjectHandle_t& eID, const eC_Bool& bOnlyVisible) const;
    void DrawOnTop(CGUIObject* pkChild);
    eC_Bool IsAncestorOf(const CGUIObject* pkObject) const;

    eC_Bool FocusAny() override;
    eC_Bool IsCompositeObject() const override { return true; }
    virtual void AddObject(CGUIObject* pkObject);

private:
    friend class CGUIObject;
    friend class COtherFramework;

    std::vector<CGUIObject*> m_kChildren;
};

#endif
