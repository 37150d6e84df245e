#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_MACHINE_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_MACHINE_H

/** @file
 *  The coffee machine behind the screen, simulated. It knows nothing of dialogs.
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

/** Where the making of a cup stands. */
enum EBrewingState : unsigned char
{
    BREWING_IDLE,
    BREWING_RUNNING,
    BREWING_WAITING, ///< for water or for the tray
    BREWING_DONE     ///< the cup is full and was not taken yet
};

/** Is told what happens in the machine. */
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

/** The pump's clockwork: while it is started, the timer calls it twice a second. */
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

/** Tanks, settings, and the making of a cup. */
class CMachine
{
public:
    static constexpr eC_UInt cuiWaterTank = 1000;   ///< millilitres
    static constexpr eC_UInt cuiBeanHopper = 200;   ///< grams
    static constexpr eC_UInt cuiCupsToDescale = 50; ///< cups after which the machine wants descaling

    /** Makes a machine with full tanks, ready to brew. */
    CMachine();

    CMachine(const CMachine&) = delete;
    CMachine& operator=(const CMachine&) = delete;

    /** @param pkObserver told of changes from now on, not owned; null for none */
    void SetObserver(CMachineObserver* pkObserver) { m_pkObserver = pkObserver; }

    eC_UInt GetWater() const { return m_uiWater; } ///< millilitres
    eC_UInt GetBeans() const { return m_uiBeans; } ///< grams
    eC_UInt GetCups() const { return m_uiCups; }   ///< since the last descaling
    eC_Bool IsWaterEmpty() const;
    eC_Bool IsBeansLow() const;
    eC_Bool IsTrayMissing() const { return !m_bHasTray; }
    eC_Bool IsDescalingDue() const { return m_uiCups >= cuiCupsToDescale; }

    void SetWater(eC_UInt uiMillilitres); ///< at most the tank's size is taken
    void SetBeans(eC_UInt uiGrams);       ///< at most the hopper's size is taken
    void SetTray(eC_Bool bHasTray);
    void SetCups(eC_UInt uiCups);

    ELanguage GetLanguage() const { return m_eLanguage; }
    EStrength GetStrength() const { return m_eStrength; }
    EDrink GetDrink() const { return m_eDrink; } ///< the one selected
    void SetLanguage(ELanguage eLanguage);
    void SetNextStrength(); ///< mild, medium, strong, and mild again
    void SelectDrink(EDrink eDrink);

    /** @return whether no cup is being made and everything for the selected drink is there */
    eC_Bool CanStartBrewing() const;

    /** Begins to make the selected drink. Without effect unless CanStartBrewing. */
    void StartBrewing();

    /** Gives up the cup that is being made, or takes away the one that is full. */
    void StopBrewing();

    EBrewingState GetBrewingState() const { return m_eBrewingState; }
    EDrink GetCup() const { return m_eCup; }             ///< what is being made
    eC_UInt GetProgress() const { return m_uiProgress; } ///< percent of the cup

    /** @return whether a cup is being made, be it that it waits for water */
    eC_Bool IsBrewing() const;

    /** Makes a part of the cup: called by the clockwork. @param uiSteps how many times 10 percent */
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
