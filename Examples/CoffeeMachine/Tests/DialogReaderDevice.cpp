#include "Dialogs.h"
#include "Examples/CoffeeMachine/Tests/CoffeeMachineTest.h"
#include "Loader/GUIDialogROMReader.h"

void RegisterDialogReader(CGUIFactoryManager& kFactory)
{
    static CGUIDialogROMReader s_kReader(ckDialogs);
    kFactory.RegisterReaderForFileType("xml", &s_kReader);
}
