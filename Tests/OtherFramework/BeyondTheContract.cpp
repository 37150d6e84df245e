// SPDX-License-Identifier: MIT
// What the dialog manager could use by mistake: things that the library's own framework has, but that the
// contract does not require of another framework. Each case must be refused; without a case this file
// compiles.

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"

#ifdef CASE_HEADER
#include "Core/Control/GUIObjectIndex.h"
#endif

void Use(CGUIObject& kObject, const eC_String& kString);

void Use(CGUIObject& kObject, const eC_String& kString)
{
    static_cast<void>(kObject.GetID());
    static_cast<void>(kString.IsEmpty());
    GUILOG(GUI_TRACE_DEBUG, "A text is a message as it stands.\n");
#if defined(CASE_CONVERSION)
    const eC_String kPath = "dialog";
#elif defined(CASE_TEXT)
    static_cast<void>(kString.GetText());
#elif defined(CASE_OBJECT)
    kObject.SetFocusable(true);
#elif defined(CASE_ROOT)
    static_cast<void>(CGUI::GetInstance().GetFirstChild());
#elif defined(CASE_TIMER)
    GETTIMER.ProcessCallbacks();
#elif defined(CASE_TRACE)
    CGUITrace::LogDebug("message");
#elif defined(CASE_FACTORY)
    CGUIFactoryManager::DestroyInstance();
#endif
}
