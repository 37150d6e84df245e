// SPDX-License-Identifier: MIT
// Counts the instructions and heap allocations of screens by hand in LVGL, with the adapter and as fragments.
// Before it counts, it compares what they show after each step. An argument counts only what has it in its
// name.

#include "Benchmarks/Allocations.h"
#include "Benchmarks/CountWorkload.h"
#include "Benchmarks/LVGL/ScreensByHand.h"
#include "Benchmarks/LVGL/ScreensOfFragments.h"
#include "Benchmarks/LVGL/ScreensWithAdapter.h"

#include <cstdio>
#include <string>
#include <vector>

namespace
{
/** Whether each step is drawn, or only everything but drawing is done. */
enum EExtent : unsigned char
{
    UNTIL_DRAWN,
    WITHOUT_DRAWING
};

template <typename TScreens>
class CSteps
{
public:
    CSteps(unsigned uiScreens, bool bKept, EExtent eExtent) : m_kScreens(uiScreens, bKept), m_eExtent(eExtent)
    {
        Finish();
    }

protected:
    /** Ends a step. */
    void Finish()
    {
        if (m_eExtent == UNTIL_DRAWN)
        {
            m_kScreens.GetDisplay().Draw();
            return;
        }
        m_kScreens.Turn();
        lv_obj_update_layout(lv_screen_active());
    }

    void Forth(unsigned uiScreen)
    {
        m_kScreens.Forth(uiScreen);
        Finish();
    }

    void Back()
    {
        m_kScreens.Back();
        Finish();
    }

    TScreens m_kScreens;

private:
    EExtent m_eExtent;
};

/** Switches to the second screen and back. */
template <typename TScreens>
class CForthAndBack : public CSteps<TScreens>
{
public:
    CForthAndBack(bool bKept, EExtent eExtent) : CSteps<TScreens>(2, bKept, eExtent) {}

    void Do()
    {
        this->Forth(1);
        this->Back();
    }
};

/** Switches to one more screen and back, with many screens behind the first one all the time. */
template <typename TScreens>
class CAtDepth : public CSteps<TScreens>
{
public:
    CAtDepth(bool bKept, EExtent eExtent, unsigned uiScreens)
        : CSteps<TScreens>(uiScreens + 2, bKept, eExtent), m_uiScreens(uiScreens)
    {
        for (unsigned uiVisit = 0; uiVisit < m_uiScreens; ++uiVisit)
        {
            this->m_kScreens.Forth(GetVisitedScreen(uiVisit, m_uiScreens));
            this->m_kScreens.Turn();
        }
        this->Finish();
    }
    CAtDepth(const CAtDepth&) = delete;
    CAtDepth& operator=(const CAtDepth&) = delete;
    ~CAtDepth()
    {
        for (unsigned uiVisit = 0; uiVisit < m_uiScreens; ++uiVisit)
        {
            this->m_kScreens.Back();
        }
    }

    void Do()
    {
        this->Forth(m_uiScreens + 1);
        this->Back();
    }

private:
    unsigned m_uiScreens;
};

/** Shows the popup over a screen, and closes it. */
template <typename TScreens>
class CShowAndClose : public CSteps<TScreens>
{
public:
    explicit CShowAndClose(EExtent eExtent) : CSteps<TScreens>(1, true, eExtent) {}

    void Do()
    {
        this->m_kScreens.ShowPopup();
        this->Finish();
        this->m_kScreens.ClosePopup();
        this->Finish();
    }
};

/** Clears the flag that hides an object above the screen, and sets it again: the least that shows a popup. */
class CClearAndSetFlag
{
public:
    CClearAndSetFlag() : m_pkPopup(BuildPopupContent(lv_layer_top()).m_pkScreen) { Set(); }

    void Do()
    {
        lv_obj_remove_flag(m_pkPopup, LV_OBJ_FLAG_HIDDEN);
        Set();
    }

private:
    void Set() { lv_obj_add_flag(m_pkPopup, LV_OBJ_FLAG_HIDDEN); }

    CDisplay m_kDisplay;
    lv_obj_t* m_pkPopup;
};

// ---- What they show --------------------------------------------------------------------------------

/** The pixels and the focus after a step. */
struct Shown_t
{
    std::vector<unsigned short> m_kPixels;
    int m_iFocussed;

    bool operator==(const Shown_t& kOther) const
    {
        return m_kPixels == kOther.m_kPixels && m_iFocussed == kOther.m_iFocussed;
    }
};

template <typename TScreens>
Shown_t Show(TScreens& kScreens)
{
    constexpr int ciFrames = 10; // until the animations of LVGL's theme are over
    for (int iFrame = 0; iFrame < ciFrames; ++iFrame)
    {
        kScreens.GetDisplay().Draw();
    }
    const CDisplay& kDisplay = kScreens.GetDisplay();
    return {{kDisplay.GetPixels(), kDisplay.GetPixels() + CDisplay::GetNOFPixels()}, kDisplay.GetFocussed()};
}

template <typename TScreens>
std::vector<Shown_t> ShowSwitches(bool bKept)
{
    TScreens kScreens(3, bKept);
    std::vector<Shown_t> kShown = {Show(kScreens)};
    for (const unsigned uiScreen : {1U, 2U})
    {
        kScreens.Forth(uiScreen);
        kShown.push_back(Show(kScreens));
    }
    for (int iBack = 0; iBack < 2; ++iBack)
    {
        kScreens.Back();
        kShown.push_back(Show(kScreens));
    }
    Require(!(kShown[0] == kShown[1]) && kShown[0] == kShown[4]);
    return kShown;
}

template <typename TScreens>
std::vector<Shown_t> ShowPopups()
{
    TScreens kScreens(1, true);
    std::vector<Shown_t> kShown = {Show(kScreens)};
    kScreens.ShowPopup();
    kShown.push_back(Show(kScreens));
    kScreens.ClosePopup();
    kShown.push_back(Show(kScreens));
    Require(!(kShown[0] == kShown[1]) && kShown[0] == kShown[2]);
    return kShown;
}

/** @return whether all show the same after each step */
bool IsTheSame()
{
    for (const bool bKept : {false, true})
    {
        const std::vector<Shown_t> kByHand = ShowSwitches<CScreensByHand>(bKept);
        if (kByHand != ShowSwitches<CScreensWithAdapter>(bKept) ||
            kByHand != ShowSwitches<CScreensOfFragments>(bKept))
        {
            return false;
        }
    }
    return ShowPopups<CScreensByHand>() == ShowPopups<CScreensWithAdapter>();
}

// ---- Counting --------------------------------------------------------------------------------------

constexpr unsigned cuiManyScreens = 1000;

const char* g_pcPart = ""; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): an argument

template <typename TWork, typename... TArguments>
void Count(const std::string& kSide, const std::string& kWork, EExtent eExtent, TArguments... tArguments)
{
    constexpr unsigned cuiTimes = 8;
    const std::string kName = kSide + "/" + kWork + (eExtent == UNTIL_DRAWN ? "/drawn" : "/not-drawn");
    if (kName.find(g_pcPart) == std::string::npos)
    {
        return;
    }
    CRepeatedWork<TWork> kRepeated(tArguments...);
    CountWorkload(kRepeated, kName, 1, cuiTimes);
    std::fflush(stdout);
}

template <typename TScreens>
void CountSwitches(const char* pcSide, bool bKept, EExtent eExtent)
{
    const std::string kName = bKept ? "switch-and-back/kept" : "switch-and-back/rebuilt";
    Count<CForthAndBack<TScreens>>(pcSide, kName, eExtent, bKept, eExtent);
    Count<CAtDepth<TScreens>>(pcSide, kName + "/1000", eExtent, bKept, eExtent, cuiManyScreens);
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    g_pcPart = iArguments > 1 ? ppcArguments[1] : "";
    if (!IsTheSame())
    {
        std::fprintf(stderr, "CountLVGL: what is measured does not show the same pixels and focus\n");
        return EXIT_FAILURE;
    }
    for (const EExtent eExtent : {UNTIL_DRAWN, WITHOUT_DRAWING})
    {
        for (const bool bKept : {true, false})
        {
            CountSwitches<CScreensByHand>("by-hand", bKept, eExtent);
            CountSwitches<CScreensWithAdapter>("adapter", bKept, eExtent);
        }
        CountSwitches<CScreensOfFragments>("fragment", false, eExtent);
        Count<CShowAndClose<CScreensByHand>>("by-hand", "popup/shown-and-closed", eExtent, eExtent);
        Count<CShowAndClose<CScreensWithAdapter>>("adapter", "popup/shown-and-closed", eExtent, eExtent);
    }
    Count<CClearAndSetFlag>("by-hand", "popup/flag", WITHOUT_DRAWING);
    return EXIT_SUCCESS;
}
