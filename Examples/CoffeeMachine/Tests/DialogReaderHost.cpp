// SPDX-License-Identifier: MIT
#include "Loader/GUIDialogXMLReader.h"
#include "Tests/CoffeeMachineTest.h"

void RegisterDialogReader(CGUIFactoryManager& kFactory)
{
    static CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    kFactory.RegisterReaderForFileType("xml", &kReader);
}
