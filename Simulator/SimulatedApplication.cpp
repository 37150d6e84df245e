// SPDX-License-Identifier: MIT
#include "Simulator/SimulatedApplication.h"

#include "Core/Control/GUI.h"

eC_Bool CSimulatedApplication::Touch(ObjectHandle_t eObject)
{
    CGUIObject* pkTouched = nullptr;
    // The topmost window comes last.
    for (CGUIObject* pkWindow = CGUI::GetInstance().GetFirstChild(); pkWindow != nullptr;
         pkWindow = pkWindow->GetNextSibling())
    {
        CGUIObject* const pkFound =
            pkWindow->IsInvisible() ? nullptr : pkWindow->GetObjectByID(eObject, true);
        pkTouched = pkFound != nullptr ? pkFound : pkTouched;
    }
    return GetInput().Touch(pkTouched);
}

void CSimulatedApplication::AddCommands(CSimulatedCommands&) {}
