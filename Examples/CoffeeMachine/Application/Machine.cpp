// SPDX-License-Identifier: MIT
#include "Application/Machine.h"

#include "Core/GUITimer.h"

namespace
{
constexpr eC_UInt cuiStepPercent = 10;
constexpr eC_UInt cuiWaterReserve = 20; ///< millilitres that the pump cannot reach
constexpr eC_UInt cuiBeansLow = 30;     ///< grams below which the machine asks for more

struct Recipe_t
{
    eC_UInt m_uiWaterPerStep; ///< millilitres
    eC_UInt m_uiBeans;        ///< grams at medium strength
};

constexpr Recipe_t cakRecipes[] = {
    {4, 8},   // DRINK_ESPRESSO
    {12, 10}, // DRINK_COFFEE
    {8, 8},   // DRINK_CAPPUCCINO
    {20, 0},  // DRINK_TEA_WATER
};

eC_UInt AtMost(eC_UInt uiValue, eC_UInt uiMaximum)
{
    return uiValue < uiMaximum ? uiValue : uiMaximum;
}
} // namespace

void CBrewing::DoAnimate(const eC_Value& vTimes)
{
    m_kMachine.BrewFor(static_cast<eC_UInt>(vTimes));
}

void CBrewing::StartAnimation()
{
    GETTIMER.AddAnimationCallback(cuiInterval, this);
}

void CBrewing::StopAnimation()
{
    GETTIMER.RemoveAnimationCallback(this);
}

CMachine::CMachine()
    : m_pkObserver(nullptr),
      m_kBrewing(*this),
      m_uiWater(cuiWaterTank),
      m_uiBeans(cuiBeanHopper),
      m_uiCups(0),
      m_uiProgress(0),
      m_bHasTray(true),
      m_bIsValveOpen(false),
      m_eBrewingState(BREWING_IDLE),
      m_eDrink(DRINK_ESPRESSO),
      m_eCup(DRINK_ESPRESSO),
      m_eStrength(STRENGTH_MEDIUM),
      m_eLanguage(LANGUAGE_ENGLISH)
{
}

eC_Bool CMachine::IsWaterEmpty() const
{
    return m_uiWater < cuiWaterReserve;
}

eC_Bool CMachine::IsBeansLow() const
{
    return m_uiBeans < cuiBeansLow;
}

void CMachine::SetWater(eC_UInt uiMillilitres)
{
    m_uiWater = AtMost(uiMillilitres, cuiWaterTank);
    UpdateBrewing();
    NotifyChange();
}

void CMachine::SetBeans(eC_UInt uiGrams)
{
    m_uiBeans = AtMost(uiGrams, cuiBeanHopper);
    NotifyChange();
}

void CMachine::SetTray(eC_Bool bHasTray)
{
    m_bHasTray = bHasTray;
    UpdateBrewing();
    NotifyChange();
}

void CMachine::SetCups(eC_UInt uiCups)
{
    m_uiCups = uiCups;
    NotifyChange();
}

void CMachine::SetLanguage(ELanguage eLanguage)
{
    m_eLanguage = eLanguage;
}

void CMachine::SetNextStrength()
{
    m_eStrength = m_eStrength == STRENGTH_STRONG ? STRENGTH_MILD : static_cast<EStrength>(m_eStrength + 1);
}

void CMachine::SelectDrink(EDrink eDrink)
{
    m_eDrink = eDrink;
}

eC_Bool CMachine::CanStartBrewing() const
{
    return !IsBrewing() && !IsWaterEmpty() && !IsTrayMissing() && m_uiBeans >= GetBeansNeeded();
}

void CMachine::StartBrewing()
{
    if (!CanStartBrewing())
    {
        return;
    }
    m_uiBeans -= GetBeansNeeded();
    m_uiProgress = 0;
    m_eCup = m_eDrink;
    m_eBrewingState = BREWING_RUNNING;
    m_kBrewing.StartAnimation();
    NotifyChange();
}

void CMachine::StopBrewing()
{
    m_kBrewing.StopAnimation();
    m_eBrewingState = BREWING_IDLE;
    m_uiProgress = 0;
}

eC_Bool CMachine::IsBrewing() const
{
    return m_eBrewingState == BREWING_RUNNING || m_eBrewingState == BREWING_WAITING;
}

void CMachine::BrewFor(eC_UInt uiSteps)
{
    for (; uiSteps > 0 && m_eBrewingState == BREWING_RUNNING; --uiSteps)
    {
        m_uiWater -= cakRecipes[m_eCup].m_uiWaterPerStep;
        m_uiProgress += cuiStepPercent;
        UpdateBrewing();
    }
    if (m_eBrewingState == BREWING_DONE && m_pkObserver != nullptr)
    {
        m_pkObserver->OnCupReady();
    }
    NotifyChange();
}

void CMachine::UpdateBrewing()
{
    if (!IsBrewing())
    {
        return;
    }
    if (m_uiProgress >= 100)
    {
        m_eBrewingState = BREWING_DONE;
        ++m_uiCups;
    }
    else
    {
        m_eBrewingState = IsWaterEmpty() || IsTrayMissing() ? BREWING_WAITING : BREWING_RUNNING;
    }

    if (m_eBrewingState == BREWING_RUNNING)
    {
        m_kBrewing.StartAnimation();
    }
    else
    {
        m_kBrewing.StopAnimation();
    }
}

eC_UInt CMachine::GetBeansNeeded() const
{
    // A mild cup takes three quarters of the beans, a strong one five quarters.
    return cakRecipes[m_eDrink].m_uiBeans * (3U + m_eStrength) / 4U;
}

void CMachine::NotifyChange()
{
    if (m_pkObserver != nullptr)
    {
        m_pkObserver->OnMachineChanged();
    }
}
