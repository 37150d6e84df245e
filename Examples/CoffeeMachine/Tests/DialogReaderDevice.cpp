// SPDX-License-Identifier: MIT
#include "Dialogs.h"
#include "Loader/GUIDialogROMReader.h"
#include "Tests/CoffeeMachineTest.h"

void RegisterDialogReader(CGUIFactoryManager& kFactory)
{
    static CGUIDialogROMReader s_kReader(ckDialogs);
    kFactory.RegisterReaderForFileType("xml", &s_kReader);
}
