// SPDX-License-Identifier: MIT
#include "Application/CoffeeMachine.h"

#include "Application/Painter.h"
#include "Core/GUIFactoryManager.h"
#include "Widgets/GUIWidgets.h"

CCoffeeMachine::CCoffeeMachine()
    : m_kManager(m_kMachine), m_kController(m_kMachine, m_kManager), m_kValues(m_kMachine, m_kManager)
{
    RegisterGUIWidgets(CGUIFactoryManager::GetInstance());
    CGUIWidget::SetTranslator(&m_kValues);
    CGUIWidget::SetValueSource(&m_kValues);
}

CCoffeeMachine::~CCoffeeMachine()
{
    CGUIWidget::SetTranslator(nullptr);
    CGUIWidget::SetValueSource(nullptr);
}

eC_String CCoffeeMachine::PaintFrame()
{
    CGUIWidget::UpdateValues();
    PaintScreen(m_kScreen);
    return m_kScreen.GetFrame();
}
