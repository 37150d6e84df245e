// SPDX-License-Identifier: MIT
// Switching to another screen and back, with histories of many lengths.

#include "Benchmarks/Application.h"
#include "Benchmarks/HandWritten.h"
#include "Benchmarks/Workload.h"

namespace
{
const ObjectHandle_t ceHome = GetScreenID(0);

/** Where screens come from, and what happens to the old ones. */
struct Manner_t
{
    const char* m_pcName;
    ESource m_eSource;
    CGUIDialogManager::EOldDialogAction m_eAction;
    bool m_bDestroyOnBack;
    CHandWrittenScreens::EOldScreen m_eFloorAction;
    bool m_bFloorHidesRecorded = false;
};

const Manner_t ckKept = {"kept", CODE, CGUIDialogManager::ODA_INVISIBLE, false, CHandWrittenScreens::HIDE};
// With a floor that also looks at each recorded screen when it goes back.
const Manner_t ckKeptHidden = {"kept-hidden-by-hand",     CODE, CGUIDialogManager::ODA_INVISIBLE, false,
                               CHandWrittenScreens::HIDE, true};
const Manner_t ckLeft = {"left-shown", CODE, CGUIDialogManager::ODA_NOTHING, false,
                         CHandWrittenScreens::LEAVE};
const Manner_t ckCode = {"rebuilt-in-code", CODE, CGUIDialogManager::ODA_DELETE, true,
                         CHandWrittenScreens::DESTROY};
const Manner_t ckROM = {"rebuilt-from-rom", ROM, CGUIDialogManager::ODA_DELETE, true,
                        CHandWrittenScreens::DESTROY};
const Manner_t ckFile = {"rebuilt-from-file", FILES, CGUIDialogManager::ODA_DELETE, true,
                         CHandWrittenScreens::DESTROY};

/** @return how many screens are built before they are visited, as with the other toolkits */
unsigned CountBuiltFirst(const Manner_t& kManner, unsigned uiScreens)
{
    return kManner.m_eAction == CGUIDialogManager::ODA_DELETE ? 0 : uiScreens;
}

/** The library, with the first screen visible and one of its buttons focussed. */
class CSwitching
{
public:
    /** @param uiScreens the number of screens besides the first one */
    CSwitching(const Manner_t& kManner, unsigned uiScreens)
        : m_kApplication(kManner.m_eSource), m_kManner(kManner)
    {
        if (m_kManner.m_eSource != CODE)
        {
            for (unsigned uiScreen = 0; uiScreen <= uiScreens; ++uiScreen)
            {
                Manager().RegisterDialogDefinition(cpcScreenFile, GetScreenID(uiScreen));
            }
        }
        for (unsigned uiScreen = 1; uiScreen <= CountBuiltFirst(kManner, uiScreens); ++uiScreen)
        {
            BuildScreen(&CGUI::GetInstance(), GetScreenID(uiScreen))->SetInvisible(true);
        }
        Manager().CreateDialog(ceHome, m_kManner.m_eAction);
        Focus(GetButton(0, cuiFocussedButton));
    }
    CSwitching(const CSwitching&) = delete;
    CSwitching& operator=(const CSwitching&) = delete;
    ~CSwitching()
    {
        Require(Manager().GetHistoryStackSize() == m_uiStartDepth);
        Require(Manager().GetCurrentDialogID() == GetScreenID(m_uiStartScreen));
        Require(GetFocussedID() == GetButton(m_uiStartScreen, m_uiStartScreen == 0 ? cuiFocussedButton : 0));
    }

protected:
    void Forth(unsigned uiScreen) { Manager().CreateDialog(GetScreenID(uiScreen), m_kManner.m_eAction); }
    void Back() { Manager().Back(m_kManner.m_bDestroyOnBack); }

    unsigned m_uiStartDepth = 0;
    unsigned m_uiStartScreen = 0;

private:
    CBenchmarkManager& Manager() { return m_kApplication.m_kManager; }

    ObjectHandle_t GetButton(unsigned uiScreen, unsigned uiButton) const
    {
        return m_kManner.m_eSource == CODE ? GetButtonID(GetScreenID(uiScreen), uiButton)
                                           : GetLoadedButtonID(uiButton);
    }

    CBenchmarkApplication m_kApplication;
    Manner_t m_kManner;
};

/** The same by hand. */
class CSwitchingByHand
{
public:
    CSwitchingByHand(const Manner_t& kManner, unsigned uiScreens) : m_kManner(kManner)
    {
        for (unsigned uiScreen = 1; uiScreen <= CountBuiltFirst(kManner, uiScreens); ++uiScreen)
        {
            m_kScreens.Build(GetScreenID(uiScreen), cuiObjectsPerScreen, cuiButtonsPerScreen);
        }
        m_kScreens.SwitchTo(ceHome, m_kManner.m_eFloorAction);
        m_kScreens.Focus(GetButtonID(ceHome, cuiFocussedButton));
    }
    CSwitchingByHand(const CSwitchingByHand&) = delete;
    CSwitchingByHand& operator=(const CSwitchingByHand&) = delete;
    ~CSwitchingByHand() { Require(m_kScreens.GetCurrentID() == GetScreenID(m_uiStartScreen)); }

protected:
    void Forth(unsigned uiScreen) { m_kScreens.SwitchTo(GetScreenID(uiScreen), m_kManner.m_eFloorAction); }
    void Back()
    {
        m_kScreens.Back(m_kManner.m_bDestroyOnBack);
        if (m_kManner.m_bFloorHidesRecorded)
        {
            m_kScreens.HideRecorded();
        }
    }

    unsigned m_uiStartDepth = 0;
    unsigned m_uiStartScreen = 0;

private:
    CHandWrittenScreens m_kScreens;
    Manner_t m_kManner;
};

/** Switches to the second screen and back. */
template <typename TSwitching>
class CForthAndBack : public TSwitching
{
public:
    explicit CForthAndBack(const Manner_t& kManner) : TSwitching(kManner, 1) {}

    void Do()
    {
        TSwitching::Forth(1);
        TSwitching::Back();
    }
};

/** Visits many screens one after the other and goes all the way back. */
template <typename TSwitching>
class CClimb : public TSwitching
{
public:
    CClimb(const Manner_t& kManner, unsigned uiScreens)
        : TSwitching(kManner, uiScreens), m_uiScreens(uiScreens)
    {
    }

    void Do()
    {
        for (unsigned uiVisit = 0; uiVisit < m_uiScreens; ++uiVisit)
        {
            TSwitching::Forth(GetVisitedScreen(uiVisit, m_uiScreens));
        }
        for (unsigned uiVisit = 0; uiVisit < m_uiScreens; ++uiVisit)
        {
            TSwitching::Back();
        }
    }

private:
    unsigned m_uiScreens;
};

/** Switches to one more screen and back, with many screens in the history all the time. */
template <typename TSwitching>
class CAtDepth : public TSwitching
{
public:
    CAtDepth(const Manner_t& kManner, unsigned uiScreens) : TSwitching(kManner, uiScreens + 1)
    {
        for (unsigned uiVisit = 0; uiVisit < uiScreens; ++uiVisit)
        {
            TSwitching::m_uiStartScreen = GetVisitedScreen(uiVisit, uiScreens);
            TSwitching::Forth(TSwitching::m_uiStartScreen);
        }
        TSwitching::m_uiStartDepth = uiScreens;
    }

    void Do()
    {
        TSwitching::Forth(TSwitching::m_uiStartDepth + 1);
        TSwitching::Back();
    }
};

void AddSwitch(Comparisons_t& kComparisons, const Manner_t& kManner)
{
    kComparisons.push_back({std::string("switch-and-back/") + kManner.m_pcName, LOGS, 1,
                            MakerOf<CForthAndBack<CSwitching>>(kManner),
                            MakerOf<CForthAndBack<CSwitchingByHand>>(kManner)});
}

void AddClimb(Comparisons_t& kComparisons, const Manner_t& kManner, unsigned uiScreens)
{
    // With callgrind the longest histories take minutes, unless the screens are kept.
    const unsigned uiCountedTimes =
        uiScreens < 1000 || kManner.m_eAction == CGUIDialogManager::ODA_INVISIBLE ? 1 : 0;
    kComparisons.push_back(
        {std::string("through-history/") + kManner.m_pcName + "/" + std::to_string(uiScreens), LOGS,
         uiScreens, MakerOf<CClimb<CSwitching>>(kManner, uiScreens),
         MakerOf<CClimb<CSwitchingByHand>>(kManner, uiScreens), uiCountedTimes});
}

void AddAtDepth(Comparisons_t& kComparisons, const Manner_t& kManner, unsigned uiScreens)
{
    kComparisons.push_back({std::string("at-depth/") + kManner.m_pcName + "/" + std::to_string(uiScreens),
                            LOGS, 1, MakerOf<CAtDepth<CSwitching>>(kManner, uiScreens),
                            MakerOf<CAtDepth<CSwitchingByHand>>(kManner, uiScreens), 1});
}
} // namespace

void AddSwitchComparisons(Comparisons_t& kComparisons)
{
    for (Manner_t kManner : {ckKept, ckLeft, ckCode, ckROM, ckFile})
    {
        // The other screen is kept, so that one screen is destroyed and rebuilt.
        kManner.m_bDestroyOnBack = false;
        AddSwitch(kComparisons, kManner);
    }
    for (const Manner_t& kManner : {ckKept, ckKeptHidden, ckLeft, ckCode, ckROM, ckFile})
    {
        for (const unsigned uiScreens : {10U, 100U, 1000U})
        {
            AddClimb(kComparisons, kManner, uiScreens);
        }
    }
    for (const unsigned uiScreens : {10U, 100U, 1000U, 10000U})
    {
        AddAtDepth(kComparisons, ckKept, uiScreens);
        AddAtDepth(kComparisons, ckKeptHidden, uiScreens);
    }
}
