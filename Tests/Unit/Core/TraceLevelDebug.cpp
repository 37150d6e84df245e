// SPDX-License-Identifier: MIT
#undef GUI_TRACE_LEVEL
#define GUI_TRACE_LEVEL GUI_TRACE_DEBUG

#include "Core/GUITrace.h"
#include "Tests/Unit/Core/TraceLevels.h"

void LogInBuildDebug(eC_Int& iEvaluated)
{
    LOG_AT_ALL_LEVELS("build DEBUG");
}
