// SPDX-License-Identifier: MIT
#include "Tests/StaticOrder/StaticObjects.h"

// Declared by hand where it is used: see PlainUnit.cpp.
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
