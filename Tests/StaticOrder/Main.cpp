// SPDX-License-Identifier: MIT
#include "Core/GUITrace.h"
#include "Tests/StaticOrder/StaticObjects.h"

#include <cstring>

/** The argument is the name of the unit that was linked first. */
int main(int iArguments, char** ppcArguments)
{
    Require(iArguments == 2, "called with the name of the unit linked first");
    Require(std::strcmp(GetFirstUnit(), ppcArguments[1]) == 0, "the unit linked first is constructed first");
    CGUITrace::GetInstance().SetSink(nullptr);
    UseFirstUnit();
    UseSecondUnit();
    UseFunctionStaticWithRoot();
    UseUnorderedStatics();
    return EXIT_SUCCESS;
}
