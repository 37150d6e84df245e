// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_CORE_GUIFACTORYMANAGER_H
#define OTHERFRAMEWORK_CORE_GUIFACTORYMANAGER_H

#include "Core/Utils/eC_String.h"

class CGUIObject;

/** A loader that knows one file, "dialog": a composite that contains a button, both without identifiers. */
class CGUIFactoryManager
{
public:
    static void CreateInstance();
    static CGUIFactoryManager& GetInstance() { return *ms_pInstance; }

    CGUIObject* LoadDialogFromFile(const eC_String& kPath);

private:
    static CGUIFactoryManager* ms_pInstance;
};

#endif
