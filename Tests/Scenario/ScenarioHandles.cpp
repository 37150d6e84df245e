// SPDX-License-Identifier: MIT
#include "Tests/Scenario/ScenarioHandles.h"

GUI_DEFINE_OBJECT_HANDLES(SCENARIO_HANDLES)
