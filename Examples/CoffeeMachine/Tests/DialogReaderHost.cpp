#include "Examples/CoffeeMachine/Tests/CoffeeMachineTest.h"
#include "Loader/GUIDialogXMLReader.h"

void RegisterDialogReader(CGUIFactoryManager& kFactory)
{
    static CGUIDialogXMLReader kReader(COFFEE_MACHINE_SOURCE_DIRECTORY);
    kFactory.RegisterReaderForFileType("xml", &kReader);
}
