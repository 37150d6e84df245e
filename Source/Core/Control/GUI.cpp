#include "Core/Control/GUI.h"

CGUI* CGUI::ms_pInstance = nullptr;

CGUI::CGUI()
{
    assert(NULL == ms_pInstance);
    ms_pInstance = this;
    m_bIsUnderRoot = true;
    m_kIndex.Reserve(ms_uiNOFIdentifiedObjects);
}

CGUI::~CGUI()
{
    DestroyChildren();
    SetID(NO_HANDLE);
    m_bIsUnderRoot = false;
    ms_pInstance = nullptr;
}

void CGUI::SetParent(CGUICompositeObject* pkParent)
{
    assert(NULL == pkParent);
    static_cast<void>(pkParent);
}
