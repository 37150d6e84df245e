// SPDX-License-Identifier: MIT
// What the companions add to the operations that they accompany.

#include "Benchmarks/Application.h"
#include "Benchmarks/Workload.h"
#include "Companions/GUIDialogArguments.h"
#include "Companions/GUIDialogBudget.h"
#include "Companions/GUIDialogListener.h"
#include "Companions/GUIDialogStates.h"
#include "Companions/GUIGuard.h"
#include "Companions/GUIIdleHome.h"
#include "Companions/GUIObservedDialogManager.h"
#include "Companions/GUIPopupPolicy.h"
#include "Companions/GUIPostQueue.h"
#include "Companions/GUIRestore.h"
#include "Companions/GUIWatch.h"

#include <algorithm>
#include <cstddef>
#include <list>
#include <string>

namespace
{
const ObjectHandle_t ceHome = GetScreenID(0);
const ObjectHandle_t ceOther = GetScreenID(1);

/** Two kept screens, of which the first one is shown, and a manager of some class. */
template <typename TManager>
class CTwoScreens
{
public:
    CTwoScreens()
    {
        BuildScreen(&CGUI::GetInstance(), ceHome);
        BuildScreen(&CGUI::GetInstance(), ceOther)->SetInvisible(true);
        m_kManager.CreateDialog(ceHome, CGUIDialogManager::ODA_INVISIBLE);
    }

    void Do()
    {
        m_kManager.CreateDialog(ceOther, CGUIDialogManager::ODA_INVISIBLE);
        m_kManager.Back(false);
    }

protected:
    CGUI m_kRoot;
    TManager m_kManager;
};

/** Switches and goes back with listeners that do nothing. */
class CSwitchObserved : public CTwoScreens<CGUIObservedDialogManager>
{
public:
    explicit CSwitchObserved(unsigned uiListeners)
    {
        for (; uiListeners > 0; --uiListeners)
        {
            m_kListeners.emplace_back();
            Require(m_kManager.AddListener(m_kListeners.back()));
        }
    }

private:
    std::list<CGUIDialogListener> m_kListeners;
};

/** Switches and goes back while a guard without the right watches over other screens. */
class CSwitchGuarded : public CTwoScreens<CGUIObservedDialogManager>
{
private:
    const ObjectHandle_t m_aeGuarded[4] = {GetScreenID(2), GetScreenID(3), GetScreenID(4), GetScreenID(5)};
    CGUIGuard m_kGuard{m_kManager, GetScreenID(6), m_aeGuarded, 4};
};

/** Switches, saves, goes back and saves: two blocks, to nowhere. */
class CSwitchAndSave : public CTwoScreens<CGUIObservedDialogManager>, private CGUIRestoreStorage
{
public:
    void Do()
    {
        m_kManager.CreateDialog(ceOther, CGUIDialogManager::ODA_INVISIBLE);
        Require(m_kRestore.Save());
        m_kManager.Back(false);
        Require(m_kRestore.Save());
    }

private:
    eC_Bool WriteSlot(eC_UInt, const unsigned char* puiBytes, eC_UInt) override
    {
        Keep(*puiBytes);
        return true;
    }
    eC_UInt ReadSlot(eC_UInt, unsigned char*, eC_UInt) override { return 0; }

    CGUIRestoreOf<8> m_kRestore{m_kManager, *this, ceHome, 1, 1};
};

/** Switches and goes back while all hooks are measured. */
class CSwitchWatched : public CTwoScreens<CGUIWatchedManager<CGUIDialogManager>>
{
public:
    CSwitchWatched()
    {
        m_kWatch.SetClock([]() -> eC_UInt { return 0; });
        m_kManager.SetWatch(&m_kWatch);
    }

private:
    CGUIWatchOf<16> m_kWatch;
};

/** Switches with an argument, sets a result, goes back and takes the result. */
class CSwitchWithArgument : public CTwoScreens<CGUIObservedDialogManager>
{
public:
    void Do()
    {
        m_kArguments.CreateDialog(ceOther, CGUIDialogManager::ODA_INVISIBLE, 5);
        m_kArguments.SetResult(*m_kArguments.GetArgument<int>() + 1);
        m_kManager.Back(false);
        Require(m_kArguments.TakeResult<int>() == 6);
    }

private:
    CGUIDialogArgumentsOf<8, sizeof(int)> m_kArguments{m_kManager};
};

/** A position in a list, the same one for every button. */
class CPosition : public CGUIObjectState
{
public:
    eC_UInt SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const override
    {
        if (uiSize > 0)
        {
            *puiStateOUT = m_uiPosition;
        }
        return 1;
    }

    eC_Bool RestoreState(const unsigned char* puiState, eC_UInt) override
    {
        m_uiPosition = *puiState;
        return true;
    }

private:
    unsigned char m_uiPosition = 9;
};

CGUIObjectState* FindPosition(CGUIObject* pkObject)
{
    static CPosition s_kPosition;
    return pkObject->IsFocusable() ? &s_kPosition : nullptr;
}

/** Switches from a screen that is deleted, and goes back to it. */
class CSwitchDeleted
{
public:
    CSwitchDeleted()
    {
        m_kManager.AddListener(m_kBuilder);
        m_kManager.CreateDialog(ceHome, CGUIDialogManager::ODA_INVISIBLE);
    }

    void Do()
    {
        m_kManager.CreateDialog(ceOther, CGUIDialogManager::ODA_DELETE);
        m_kManager.Back(true);
    }

private:
    /** Builds screens in code. */
    class CBuilder : public CGUIDialogListener
    {
        CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) override
        {
            return BuildScreen(&CGUI::GetInstance(), eID);
        }
    };

    CGUI m_kRoot;
    CBuilder m_kBuilder;

protected:
    CGUIObservedDialogManager m_kManager;
};

/** The same while the states of the five buttons are kept. */
class CSwitchDeletedWithStates : public CSwitchDeleted
{
private:
    CGUIDialogStatesOf<1000> m_kStates{m_kManager, &FindPosition};
};

/** Switches and goes back with hidden screens in the history. */
template <typename TManager>
class CSwitchAboveHidden : public CTwoScreens<TManager>
{
public:
    explicit CSwitchAboveHidden(unsigned uiHidden)
    {
        for (unsigned uiScreen = 0; uiScreen < uiHidden; ++uiScreen)
        {
            BuildScreen(&this->m_kRoot, GetScreenID(2 + uiScreen));
            this->m_kManager.CreateDialog(GetScreenID(2 + uiScreen), CGUIDialogManager::ODA_INVISIBLE);
        }
    }
};

/** The same while the hidden screens are under a limit. */
class CSwitchWithBudget : public CSwitchAboveHidden<CGUIObservedDialogManager>
{
public:
    using CSwitchAboveHidden::CSwitchAboveHidden;

private:
    CGUIDialogBudget m_kBudget{m_kManager, 100000};
};

/** Switches and goes back while the time without input is counted. */
class CSwitchWithIdleHome : public CTwoScreens<CGUIObservedDialogManager>
{
public:
    CSwitchWithIdleHome() { m_kIdle.Start(); }
    CSwitchWithIdleHome(const CSwitchWithIdleHome&) = delete;
    CSwitchWithIdleHome& operator=(const CSwitchWithIdleHome&) = delete;
    ~CSwitchWithIdleHome() { m_kIdle.Stop(); }

private:
    CGUIIdleHome m_kIdle{m_kManager, ceHome, CGUIDialogManager::ODA_DELETE, 60000};
};

const ObjectHandle_t cePopup = GetScreenID(2);

/** A screen and a popup that closing keeps. */
template <typename TManager>
class CScreenAndPopup : public CTwoScreens<TManager>
{
public:
    CScreenAndPopup()
    {
        BuildScreen(&this->m_kRoot, cePopup)->SetInvisible(true);
        this->m_kManager.RegisterPopupDefinition(cePopup, CGUIDialogManager::PRIO_HIGH, 0, false, "");
    }

    void Do()
    {
        this->m_kManager.ShowPopup(cePopup);
        this->m_kManager.ClosePopup(cePopup);
    }
};

/** Shows and closes the popup through the policy. */
class CShowWithPolicy : public CScreenAndPopup<CGUIObservedDialogManager>
{
public:
    CShowWithPolicy() = default;
    CShowWithPolicy(const CShowWithPolicy&) = delete;
    CShowWithPolicy& operator=(const CShowWithPolicy&) = delete;
    ~CShowWithPolicy() { Require(m_kPolicy.GetNOFPopups() == 0); }

    void Do()
    {
        m_kPolicy.Show(cePopup);
        m_kPolicy.Close(cePopup);
    }

private:
    CGUIPopupPolicyOf<8> m_kPolicy{m_kManager};
};

void Count(void* pNumber, eC_Int, eC_Int)
{
    ++*static_cast<unsigned*>(pNumber);
}

/** Sends a call and runs it. */
class CPost
{
public:
    void Do()
    {
        Require(m_kQueue.Send(&Count, &m_uiNumber));
        m_kQueue.Process(1);
        Keep(m_uiNumber);
    }

private:
    CGUIPostQueueOf<16> m_kQueue;
    unsigned m_uiNumber = 0;
};

/** The same without anybody else who sends. */
class CPostByHand
{
public:
    void Do()
    {
        m_kCalls.push_back(&m_uiNumber);
        Count(m_kCalls.front(), 0, 0);
        m_kCalls.pop_front();
        Keep(m_uiNumber);
    }

private:
    std::list<unsigned*> m_kCalls;
    unsigned m_uiNumber = 0;
};
} // namespace

void AddCompanionComparisons(Comparisons_t& kComparisons)
{
    const auto iFirst = static_cast<std::ptrdiff_t>(kComparisons.size());
    for (const unsigned uiListeners : {0U, 1U, 10U})
    {
        kComparisons.push_back({"companion/switch-and-back-observed/" + std::to_string(uiListeners), LOGS, 1,
                                MakerOf<CSwitchObserved>(uiListeners),
                                MakerOf<CTwoScreens<CGUIDialogManager>>()});
    }
    kComparisons.push_back({"companion/switch-and-back-guarded", LOGS, 1, MakerOf<CSwitchGuarded>(),
                            MakerOf<CTwoScreens<CGUIDialogManager>>()});
    kComparisons.push_back({"companion/switch-and-back-watched", LOGS, 1, MakerOf<CSwitchWatched>(),
                            MakerOf<CTwoScreens<CGUIDialogManager>>()});
    kComparisons.push_back({"companion/switch-and-back-saved", LOGS, 1, MakerOf<CSwitchAndSave>(),
                            MakerOf<CTwoScreens<CGUIDialogManager>>()});
    kComparisons.push_back({"companion/switch-and-back-with-argument", LOGS, 1,
                            MakerOf<CSwitchWithArgument>(), MakerOf<CTwoScreens<CGUIDialogManager>>()});
    kComparisons.push_back({"companion/switch-and-back-with-states", LOGS, 1,
                            MakerOf<CSwitchDeletedWithStates>(), MakerOf<CSwitchDeleted>()});
    for (const unsigned uiHidden : {0U, 20U})
    {
        kComparisons.push_back({"companion/switch-and-back-with-budget/" + std::to_string(uiHidden), LOGS, 1,
                                MakerOf<CSwitchWithBudget>(uiHidden),
                                MakerOf<CSwitchAboveHidden<CGUIDialogManager>>(uiHidden)});
    }
    kComparisons.push_back({"companion/switch-and-back-with-idle-home", LOGS, 1,
                            MakerOf<CSwitchWithIdleHome>(), MakerOf<CTwoScreens<CGUIDialogManager>>()});
    kComparisons.push_back({"companion/popup-with-policy", LOGS, 1, MakerOf<CShowWithPolicy>(),
                            MakerOf<CScreenAndPopup<CGUIDialogManager>>()});
    // So far the floor is the same application without the companion.
    std::for_each(kComparisons.begin() + iFirst, kComparisons.end(),
                  [](Comparison_t& kComparison) { kComparison.m_bIsTimed = false; });
    kComparisons.push_back(
        {"companion/post-and-process", LOGS_NOTHING, 1, MakerOf<CPost>(), MakerOf<CPostByHand>()});
}
