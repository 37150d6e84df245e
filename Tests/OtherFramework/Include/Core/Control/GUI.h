// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_CORE_CONTROL_GUI_H
#define OTHERFRAMEWORK_CORE_CONTROL_GUI_H

#include "Core/Control/GUICompositeObject.h"

#include <cassert>
#include <cstddef>

/** The root. */
class CGUI : public CGUICompositeObject
{
public:
    CGUI() { ms_pInstance = this; }
    CGUI(const CGUI&) = delete;
    CGUI& operator=(const CGUI&) = delete;
    ~CGUI() override { ms_pInstance = nullptr; }

    static CGUI& GetInstance()
    {
        assert(NULL != ms_pInstance);
        return *ms_pInstance;
    }

private:
    static CGUI* ms_pInstance;
};

#endif
