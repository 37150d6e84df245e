#include "Examples/CoffeeMachine/Application/CoffeeMachine.h"

#include "Core/GUIFactoryManager.h"
#include "Examples/CoffeeMachine/Application/Painter.h"
#include "Examples/CoffeeMachine/Application/Widgets.h"

CCoffeeMachine::CCoffeeMachine()
    : m_kManager(m_kMachine), m_kController(m_kMachine, m_kManager), m_kValues(m_kMachine, m_kManager)
{
    RegisterWidgets(CGUIFactoryManager::GetInstance());
}

eC_String CCoffeeMachine::PaintFrame()
{
    PaintScreen(m_kScreen, m_kValues);
    return m_kScreen.GetFrame();
}
