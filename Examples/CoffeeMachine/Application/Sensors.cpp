// SPDX-License-Identifier: MIT
#include "Application/Sensors.h"

#include "Application/Machine.h"

eC_Bool CSensors::NoteWater(eC_UInt uiMillilitres) noexcept
{
    return m_kQueue.Send([](void* pMachine, eC_Int iMillilitres, eC_Int)
                         { static_cast<CMachine*>(pMachine)->SetWater(static_cast<eC_UInt>(iMillilitres)); },
                         &m_kMachine, static_cast<eC_Int>(uiMillilitres));
}

eC_Bool CSensors::NoteBeans(eC_UInt uiGrams) noexcept
{
    return m_kQueue.Send([](void* pMachine, eC_Int iGrams, eC_Int)
                         { static_cast<CMachine*>(pMachine)->SetBeans(static_cast<eC_UInt>(iGrams)); },
                         &m_kMachine, static_cast<eC_Int>(uiGrams));
}

eC_Bool CSensors::NoteTray(eC_Bool bHasTray) noexcept
{
    return m_kQueue.Send([](void* pMachine, eC_Int iHasTray, eC_Int)
                         { static_cast<CMachine*>(pMachine)->SetTray(iHasTray != 0); },
                         &m_kMachine, bHasTray ? 1 : 0);
}
