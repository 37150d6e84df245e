// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_MACHINE_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_MACHINE_H

/** @file
 *  The simulated coffee machine. It knows nothing about dialogs.
 */

#include "Application/Texts.h"
#include "Core/GUIAnimatable.h"
#include "Core/Utils/eC_Types.h"

/** What the machine can make. */
enum EDrink : unsigned char
{
    DRINK_ESPRESSO,
    DRINK_COFFEE,
    DRINK_CAPPUCCINO,
    DRINK_TEA_WATER
};

enum EStrength : unsigned char
{
    STRENGTH_MILD,
    STRENGTH_MEDIUM,
    STRENGTH_STRONG
};

/** The progress of a cup. */
enum EBrewingState : unsigned char
{
    BREWING_IDLE,
    BREWING_RUNNING,
    BREWING_WAITING, ///< for water or for the tray
    BREWING_DONE     ///< the cup is full and still there
};

/** Gets notified of what happens in the machine. */
class CMachineObserver
{
public:
    /** A tank, the tray or the number of cups has changed. */
    virtual void OnMachineChanged() = 0;

    /** A cup is full. */
    virtual void OnCupReady() = 0;

protected:
    ~CMachineObserver() = default;
};

class CMachine;

/** Drives the pump: while it is started, the timer calls it twice a second. */
class CBrewing : public CGUIAnimatable
{
public:
    static constexpr eC_UInt cuiInterval = 500; ///< milliseconds

    explicit CBrewing(CMachine& kMachine) : m_kMachine(kMachine) {}

    void DoAnimate(const eC_Value& vTimes) override;
    void StartAnimation() override;
    void StopAnimation() override;

private:
    CMachine& m_kMachine;
};

/** Tanks, settings, and the cup being made. */
class CMachine
{
public:
    static constexpr eC_UInt cuiWaterTank = 1000;   ///< millilitres
    static constexpr eC_UInt cuiBeanHopper = 200;   ///< grams
    static constexpr eC_UInt cuiCupsToDescale = 50; ///< cups after which the machine must be descaled

    /** Creates a machine with full tanks, ready to brew. */
    CMachine();

    CMachine(const CMachine&) = delete;
    CMachine& operator=(const CMachine&) = delete;

    /** @param pkObserver notified of changes from now on, not owned; null for none */
    void SetObserver(CMachineObserver* pkObserver) { m_pkObserver = pkObserver; }

    eC_UInt GetWater() const { return m_uiWater; } ///< millilitres
    eC_UInt GetBeans() const { return m_uiBeans; } ///< grams
    eC_UInt GetCups() const { return m_uiCups; }   ///< since the last descaling
    eC_Bool IsWaterEmpty() const;
    eC_Bool IsBeansLow() const;
    eC_Bool IsTrayMissing() const { return !m_bHasTray; }
    eC_Bool IsDescalingDue() const { return m_uiCups >= cuiCupsToDescale; }

    void SetWater(eC_UInt uiMillilitres); ///< limited to the size of the tank
    void SetBeans(eC_UInt uiGrams);       ///< limited to the size of the hopper
    void SetTray(eC_Bool bHasTray);
    void SetCups(eC_UInt uiCups);

    ELanguage GetLanguage() const { return m_eLanguage; }
    EStrength GetStrength() const { return m_eStrength; }
    EDrink GetDrink() const { return m_eDrink; } ///< the one selected
    void SetLanguage(ELanguage eLanguage);
    void SetNextStrength(); ///< mild, medium, strong, and mild again
    void SelectDrink(EDrink eDrink);

    /** @return true if no cup is being made and the selected drink has everything it needs */
    eC_Bool CanStartBrewing() const;

    /** Starts to make the selected drink. Has no effect unless CanStartBrewing is true. */
    void StartBrewing();

    /** Aborts the cup being made, or removes a full one. */
    void StopBrewing();

    EBrewingState GetBrewingState() const { return m_eBrewingState; }
    EDrink GetCup() const { return m_eCup; }             ///< what is being made
    eC_UInt GetProgress() const { return m_uiProgress; } ///< percent of the cup

    /** @return true if a cup is being made, even if it waits for water */
    eC_Bool IsBrewing() const;

    /** Makes a part of the cup; the pump's clock calls it. @param uiSteps how many times 10 percent */
    void BrewFor(eC_UInt uiSteps);

    void SetValveOpen(eC_Bool bIsOpen) { m_bIsValveOpen = bIsOpen; }
    eC_Bool IsValveOpen() const { return m_bIsValveOpen; } ///< whether rinsing water runs

private:
    void NotifyChange();
    eC_UInt GetBeansNeeded() const;
    void UpdateBrewing();

    CMachineObserver* m_pkObserver;
    CBrewing m_kBrewing;
    eC_UInt m_uiWater;
    eC_UInt m_uiBeans;
    eC_UInt m_uiCups;
    eC_UInt m_uiProgress;
    eC_Bool m_bHasTray;
    eC_Bool m_bIsValveOpen;
    EBrewingState m_eBrewingState;
    EDrink m_eDrink;
    EDrink m_eCup;
    EStrength m_eStrength;
    ELanguage m_eLanguage;
};

#endif
