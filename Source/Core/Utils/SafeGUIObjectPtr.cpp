// SPDX-License-Identifier: MIT
#include "Core/Utils/SafeGUIObjectPtr.h"

eC_NeverDestroyed<CSafeGUIObjectPtr::PointerList_t> CSafeGUIObjectPtr::ms_kPointerListStorage;

CSafeGUIObjectPtr::~CSafeGUIObjectPtr()
{
    // Local variables go in the reverse order: nearly always this pointer is the newest one.
    ms_kSafeGUIObjectPointerList.RemoveLast(this);
}

void CSafeGUIObjectPtr::Register()
{
    ms_kSafeGUIObjectPointerList.AddAtEnd(this);
}
