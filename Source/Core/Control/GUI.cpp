// SPDX-License-Identifier: MIT
#include "Core/Control/GUI.h"

#include "Core/GUIFactoryManager.h"

CGUI* CGUI::ms_pInstance = nullptr;

CGUI::CGUI()
{
    assert(NULL == ms_pInstance);
    // May throw for lack of memory: there is no root then.
    CGUIFactoryManager::CreateForRoot();
    ms_pInstance = this;
    m_bIsUnderRoot = true;
    m_kIndex.Reserve(ms_uiNOFIdentifiedObjects);
}

CGUI::~CGUI()
{
    DestroyChildren();
    m_bIsUnderRoot = false;
    ms_pInstance = nullptr;
    CGUIFactoryManager::DestroyWithRoot();
}

void CGUI::SetParent(CGUICompositeObject* pkParent)
{
    assert(NULL == pkParent);
    static_cast<void>(pkParent);
}
