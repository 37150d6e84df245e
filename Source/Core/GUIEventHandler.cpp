#include "Core/GUIEventHandler.h"

CGUIEventHandler CGUIEventHandler::ms_kInstance;

CGUIEventHandler& CGUIEventHandler::GetInstance()
{
    return ms_kInstance;
}
