// SPDX-License-Identifier: MIT
#ifndef CORE_CONTROL_GUI_H
#define CORE_CONTROL_GUI_H

/** @file
 *  The root of the object tree.
 */

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObjectIndex.h"

#include <cassert>
#include <cstddef>

/** The root object. It is made with the identifier NO_HANDLE and has no parent; dialogs and popups are its
 *  direct children. An application makes it once, before it uses a dialog manager; a second root while the
 *  first one exists is a broken invariant (assertion).
 */
class GUI_API CGUI : public CGUICompositeObject
{
public:
    /** Makes the root and asserts that there is none yet. Creates the factory (CGUIFactoryManager) if there
     *  is none.
     *  @throws std::bad_alloc when there is no memory for the factory; there is no root then
     */
    CGUI();

    /** Destroys everything below the root, then clears ms_pInstance, then destroys the factory if the root
     *  has created it and the application has not called CGUIFactoryManager::CreateInstance since.
     */
    ~CGUI() override;

    /** @return the root; asserts that there is one */
    static CGUI& GetInstance()
    {
        assert(NULL != ms_pInstance);
        return *ms_pInstance;
    }

    /** The root has no parent: any other value than null is a broken invariant (assertion). */
    void SetParent(CGUICompositeObject* pkParent) override;

    static CGUI* ms_pInstance; ///< the root, null before it is made and after its destruction

private:
    friend class CGUIObject;
    friend class CGUITestAccess;

    CGUIObjectIndex m_kIndex; ///< a lookup may move the object it finds to the head of its chain
};

#endif
