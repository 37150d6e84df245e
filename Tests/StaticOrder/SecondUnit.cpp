// SPDX-License-Identifier: MIT
#include "Tests/StaticOrder/StaticObjects.h"

namespace
{
CUnitMark kMark("SecondUnit");
CManagerWithPopup kManager(OBJ_MSGBOX_CANCEL);
CRegisteredAnimatable kAnimatable;
CSafeGUIObjectPtr kPointer;
CPointedAt kPointedAt(kPointer);
} // namespace

void UseSecondUnit()
{
    Require(kPointer.get() != nullptr, "the second unit's pointer has its object");
    Require(kAnimatable.IsAnimating(), "the timer holds the second unit's animatable");
    kManager.Show();
}
