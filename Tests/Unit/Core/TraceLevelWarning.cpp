// SPDX-License-Identifier: MIT
#undef GUI_TRACE_LEVEL
#define GUI_TRACE_LEVEL GUI_TRACE_WARNING

#include "Core/GUITrace.h"
#include "Tests/Unit/Core/TraceLevels.h"

void LogInBuildWarning(eC_Int& iEvaluated)
{
    LOG_AT_ALL_LEVELS("build WARNING");
}
