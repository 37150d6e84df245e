// SPDX-License-Identifier: MIT
#include "Adapters/LVGL/GUILVGLTransition.h"

namespace
{
constexpr eC_Int ciSteps = 1024;
constexpr eC_Int ciKindsOfOneDirection = 4;

/** The animation moves an object by a part of the display: sideways or not, and in which sense. */
struct Direction_t
{
    eC_Bool m_bIsHorizontal;
    eC_Int m_iSense;
};

eC_Int GetGroup(EGUITransition eKind)
{
    return (static_cast<eC_Int>(eKind) - TRANSITION_OVER_LEFT) / ciKindsOfOneDirection;
}

Direction_t GetDirection(EGUITransition eKind)
{
    const eC_Int iDirection = (static_cast<eC_Int>(eKind) - TRANSITION_OVER_LEFT) % ciKindsOfOneDirection;
    return {iDirection < 2, iDirection % 2 == 0 ? -1 : 1};
}

eC_Bool IsOver(EGUITransition eKind)
{
    return eKind != TRANSITION_FADE && GetGroup(eKind) == 0;
}

eC_Bool IsOut(EGUITransition eKind)
{
    return eKind != TRANSITION_FADE && GetGroup(eKind) == 2;
}
} // namespace

void CGUILVGLTransition::Set(EGUITransition eKind, eC_UInt uiTime, eC_Bool bOnce)
{
    m_eKind = eKind;
    m_uiTime = uiTime;
    m_bOnce = bOnce;
}

void CGUILVGLTransition::Leave(lv_obj_t* pkLeaving, eC_Bool bDeletes)
{
    Finish();
    m_pkLeaving = pkLeaving;
    m_bDeletes = bDeletes;
    lv_obj_add_event_cb(pkLeaving, &OnDeleted, LV_EVENT_DELETE, this);
}

void CGUILVGLTransition::Enter(lv_obj_t* pkEntering)
{
    m_pkEntering = pkEntering;
    m_eRunning = m_eKind;
    const eC_UInt uiTime = m_uiTime;
    if (m_bOnce)
    {
        m_eKind = TRANSITION_NONE;
    }
    lv_obj_add_event_cb(pkEntering, &OnDeleted, LV_EVENT_DELETE, this);
    if (m_pkLeaving != nullptr && IsOut(m_eRunning))
    {
        lv_obj_move_to_index(m_pkLeaving, lv_obj_get_index(pkEntering));
    }
    lv_anim_t kAnimation;
    lv_anim_init(&kAnimation);
    lv_anim_set_var(&kAnimation, this);
    lv_anim_set_exec_cb(&kAnimation, &OnStep);
    lv_anim_set_values(&kAnimation, 0, ciSteps);
    lv_anim_set_duration(&kAnimation, uiTime);
    lv_anim_set_path_cb(&kAnimation, &lv_anim_path_ease_out);
    OnStep(this, 0);
    lv_anim_start(&kAnimation);
}

void CGUILVGLTransition::OnStep(void* pTransition, int32_t iStep)
{
    const CGUILVGLTransition& kThis = *static_cast<const CGUILVGLTransition*>(pTransition);
    const eC_Int iNow = static_cast<eC_Int>(iStep);
    if (kThis.m_eRunning == TRANSITION_FADE)
    {
        if (kThis.m_pkEntering != nullptr)
        {
            lv_obj_set_style_opa(kThis.m_pkEntering, static_cast<lv_opa_t>(iNow * LV_OPA_COVER / ciSteps), 0);
        }
        return;
    }
    if (!IsOut(kThis.m_eRunning))
    {
        kThis.Place(kThis.m_pkEntering, iNow, -1, 0);
    }
    if (!IsOver(kThis.m_eRunning))
    {
        kThis.Place(kThis.m_pkLeaving, iNow, 0, 1);
    }
}

void CGUILVGLTransition::Place(lv_obj_t* pkObject, eC_Int iStep, eC_Int iFrom, eC_Int iTo) const
{
    if (pkObject == nullptr)
    {
        return;
    }
    const Direction_t kDirection = GetDirection(m_eRunning);
    const lv_display_t* pkDisplay = lv_obj_get_display(pkObject);
    const auto iLength =
        static_cast<eC_Int>(kDirection.m_bIsHorizontal ? lv_display_get_horizontal_resolution(pkDisplay)
                                                       : lv_display_get_vertical_resolution(pkDisplay));
    const eC_Int iPlace = kDirection.m_iSense * iLength * (iFrom * (ciSteps - iStep) + iTo * iStep) / ciSteps;
    (kDirection.m_bIsHorizontal ? lv_obj_set_style_translate_x : lv_obj_set_style_translate_y)(pkObject,
                                                                                               iPlace, 0);
}

void CGUILVGLTransition::Finish()
{
    if (m_pkEntering == nullptr && m_pkLeaving == nullptr)
    {
        return;
    }
    lv_anim_delete(this, &OnStep);
    lv_obj_t* const pkEntering = m_pkEntering;
    lv_obj_t* const pkLeaving = m_pkLeaving;
    m_pkEntering = nullptr;
    m_pkLeaving = nullptr;
    if (pkEntering != nullptr)
    {
        Forget(pkEntering, this);
    }
    if (pkLeaving != nullptr)
    {
        Forget(pkLeaving, this);
        lv_obj_add_flag(pkLeaving, LV_OBJ_FLAG_HIDDEN);
        if (m_bDeletes)
        {
            lv_obj_delete(pkLeaving);
        }
    }
}

void CGUILVGLTransition::Forget(lv_obj_t* pkObject, void* pTransition)
{
    lv_obj_remove_event_cb_with_user_data(pkObject, &OnDeleted, pTransition);
    lv_obj_remove_local_style_prop(pkObject, LV_STYLE_TRANSLATE_X, 0);
    lv_obj_remove_local_style_prop(pkObject, LV_STYLE_TRANSLATE_Y, 0);
    lv_obj_remove_local_style_prop(pkObject, LV_STYLE_OPA, 0);
}

void CGUILVGLTransition::Settle()
{
    if (m_pkEntering == nullptr)
    {
        Finish();
    }
}

eC_Bool CGUILVGLTransition::FinishIfOver()
{
    const eC_Bool bIsOver = IsRunning() && lv_anim_get(this, &OnStep) == nullptr;
    if (bIsOver)
    {
        Finish();
    }
    return bIsOver;
}

void CGUILVGLTransition::OnDeleted(lv_event_t* pkEvent)
{
    auto& kThis = *static_cast<CGUILVGLTransition*>(lv_event_get_user_data(pkEvent));
    const lv_obj_t* pkDeleted = lv_event_get_target_obj(pkEvent);
    if (pkDeleted == kThis.m_pkLeaving)
    {
        kThis.m_pkLeaving = nullptr;
    }
    if (pkDeleted == kThis.m_pkEntering)
    {
        // The animation ends it in its next turn, with the old dialog.
        kThis.m_pkEntering = nullptr;
    }
}
