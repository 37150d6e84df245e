// SPDX-License-Identifier: MIT
#include "Core/GUIAnimatable.h"

#include "Core/GUITrace.h"

CGUIAnimatable::~CGUIAnimatable()
{
    if (CGUITimer::ms_kTimer.IsAnimating(this))
    {
        CGUITimer::ms_kTimer.RemoveAnimationCallback(this);
    }
}

void CGUIAnimatable::DoAnimate(const eC_Value& vTimes)
{
    static_cast<void>(vTimes);
    GUILOG(GUI_TRACE_DEBUG, " GUIAnimatable's default DoAnimate() method has just been called. \n"
                            "Could it be that you planned to call an overridden DoAnimate()-method, "
                            "but the overridden method's name or parameter list does not match? \n");
}

void CGUIAnimatable::StartAnimation()
{
    GUILOG(GUI_TRACE_DEBUG, " GUIAnimatable's default StartAnimation() method has just been called. \n"
                            "Could it be that you planned to call an overridden StartAnimation()-method, "
                            "but the overridden method's name or parameter list does not match? \n");
}

void CGUIAnimatable::StopAnimation()
{
    GUILOG(GUI_TRACE_DEBUG, " GUIAnimatable's default StopAnimation() method has just been called. \n"
                            "Could it be that you planned to call an overridden StopAnimation()-method, "
                            "but the overridden method's name or parameter list does not match? \n");
}

eC_Bool CGUIAnimatable::IsAnimating() const
{
    return CGUITimer::ms_kTimer.IsAnimating(this);
}
