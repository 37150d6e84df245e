// SPDX-License-Identifier: MIT
#include "Application/CoffeeMachine.h"

#include "Application/Painter.h"
#include "Application/Widgets.h"
#include "Core/GUIFactoryManager.h"

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
