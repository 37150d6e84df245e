// SPDX-License-Identifier: MIT
#include "Application/CoffeeMachine.h"

#include "Core/GUIFactoryManager.h"
#include "Widgets/GUIWidgets.h"

namespace
{
/** Keeps nothing. */
class CNoStorage : public CGUIRestoreStorage
{
public:
    eC_Bool WriteSlot(eC_UInt, const unsigned char*, eC_UInt) override { return true; }
    eC_UInt ReadSlot(eC_UInt, unsigned char*, eC_UInt) override { return 0; }
};

CNoStorage s_kNoStorage;
} // namespace

CCoffeeMachine::CCoffeeMachine(CGUIRestoreStorage* pkStorage)
    : m_kSensors(m_kMachine),
      m_kManager(m_kMachine),
      m_kController(m_kMachine, m_kManager, pkStorage != nullptr ? *pkStorage : s_kNoStorage),
      m_kValues(m_kMachine, m_kManager)
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
