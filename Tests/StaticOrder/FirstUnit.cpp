// SPDX-License-Identifier: MIT
#include "Tests/StaticOrder/StaticObjects.h"

namespace
{
CUnitMark kMark("FirstUnit");
CSafeGUIObjectPtr kPointer;
CPointedAt kPointedAt(kPointer);
CRegisteredAnimatable kAnimatable;
// Between the two managers, so that one of them outlives the root and its popup's objects.
CGUI kRoot;
CManagerWithPopup kManager(OBJ_MSGBOX_OK);
} // namespace

void UseFirstUnit()
{
    Require(kPointer.get() != nullptr, "the first unit's pointer has its object");
    Require(kAnimatable.IsAnimating(), "the timer holds the first unit's animatable");
    kManager.Show();
}
