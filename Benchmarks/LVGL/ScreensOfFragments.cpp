// SPDX-License-Identifier: MIT
#include "Benchmarks/LVGL/ScreensOfFragments.h"

#include <type_traits>

/** LVGL allocates it, and knows its first member alone. */
struct CScreensOfFragments::Fragment_t
{
    lv_fragment_t m_kFragment;
    Arguments_t m_kArguments;
    lv_group_t* m_pkGroup;
    int m_iFocussed;
};

CScreensOfFragments::CScreensOfFragments(unsigned, bool)
    : m_pkContainer(lv_screen_active()), m_pkManager(lv_fragment_manager_create(nullptr))
{
    Forth(0);
    auto* pkFirst = reinterpret_cast<Fragment_t*>(lv_fragment_manager_get_top(m_pkManager));
    lv_group_focus_obj(lv_obj_get_child(pkFirst->m_kFragment.obj, cuiFocussedButton));
}

CScreensOfFragments::~CScreensOfFragments()
{
    Require(lv_fragment_manager_get_stack_size(m_pkManager) == 1);
    lv_fragment_manager_delete(m_pkManager);
}

void CScreensOfFragments::Forth(unsigned uiScreen)
{
    static_assert(std::is_standard_layout<Fragment_t>::value, "a fragment begins with that of LVGL");
    static const lv_fragment_class_t ckClass = []
    {
        lv_fragment_class_t kClass = {};
        kClass.constructor_cb = &Construct;
        kClass.create_obj_cb = &Create;
        kClass.obj_will_delete_cb = &WillDelete;
        kClass.instance_size = sizeof(Fragment_t);
        return kClass;
    }();
    Arguments_t kArguments = {this, uiScreen};
    lv_fragment_manager_push(m_pkManager, lv_fragment_create(&ckClass, &kArguments), &m_pkContainer);
}

void CScreensOfFragments::Construct(lv_fragment_t* pkFragment, void* pArguments)
{
    auto& kThis = *reinterpret_cast<Fragment_t*>(pkFragment);
    kThis.m_kArguments = *static_cast<const Arguments_t*>(pArguments);
    kThis.m_iFocussed = 0;
}

lv_obj_t* CScreensOfFragments::Create(lv_fragment_t* pkFragment, lv_obj_t* pkContainer)
{
    auto& kThis = *reinterpret_cast<Fragment_t*>(pkFragment);
    const Content_t kContent = BuildContent(pkContainer, kThis.m_kArguments.m_uiScreen);
    kThis.m_pkGroup = lv_group_create();
    for (lv_obj_t* pkButton : kContent.m_apkButtons)
    {
        lv_group_add_obj(kThis.m_pkGroup, pkButton);
    }
    lv_group_focus_obj(kContent.m_apkButtons[kThis.m_iFocussed]);
    lv_indev_set_group(kThis.m_kArguments.m_pkThis->m_kDisplay.GetKeys(), kThis.m_pkGroup);
    return kContent.m_pkScreen;
}

void CScreensOfFragments::WillDelete(lv_fragment_t* pkFragment, lv_obj_t*)
{
    auto& kThis = *reinterpret_cast<Fragment_t*>(pkFragment);
    kThis.m_iFocussed = kThis.m_kArguments.m_pkThis->m_kDisplay.GetFocussed();
    lv_group_delete(kThis.m_pkGroup);
    kThis.m_pkGroup = nullptr;
}
