// SPDX-License-Identifier: MIT
#include "Tests/StaticOrder/StaticObjects.h"

// Declared here and not in a header: see PlainUnit.cpp.
void UseFunctionStatic();

namespace
{
COneOfEach& GetStatic()
{
    static COneOfEach s_kStatic(OBJ_MSGBOX_SAVE);
    return s_kStatic;
}
} // namespace

void UseFunctionStatic()
{
    GetStatic().Check("a function's static pointer and animatable are registered");
}

void UseFunctionStaticWithRoot()
{
    UseFunctionStatic();
    GetStatic().Show();
}
