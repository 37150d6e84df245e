// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_CORE_CONTROL_GUIOBJECT_H
#define OTHERFRAMEWORK_CORE_CONTROL_GUIOBJECT_H

#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

class CGUICompositeObject;

/** An object. Every object that is no composite accepts the focus unless something hides it. */
class CGUIObject
{
public:
    CGUIObject() = default;
    CGUIObject(const CGUIObject&) = delete;
    CGUIObject& operator=(const CGUIObject&) = delete;
    virtual ~CGUIObject();

    ObjectHandle_t GetID() const { return m_eID; }
    void SetID(const ObjectHandle_t& eID) { m_eID = eID; }
    eC_Bool IsInvisible() const { return m_bInvisible; }
    CGUICompositeObject* GetParent() const { return m_pkParent; }
    CGUIObject* GetObjectByID(const ObjectHandle_t& eID, const eC_Bool& bOnlyVisible) const;
    eC_Bool IsDescendantOf(const CGUIObject* pkObject) const;
    eC_Bool RequestFocus();

    virtual void SetParent(CGUICompositeObject* pkParent);
    virtual eC_Bool FocusAny();
    virtual void SetInvisible(const eC_Bool& bInvisible);
    virtual eC_Bool IsCompositeObject() const { return false; }

private:
    ObjectHandle_t m_eID = NO_HANDLE;
    eC_Bool m_bInvisible = false;
    CGUICompositeObject* m_pkParent = nullptr;
};

#endif
