// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_PEERS_PEERWORK_H
#define BENCHMARKS_PEERS_PEERWORK_H

/** @file
 *  The work of the benchmarks with the widgets of another toolkit, whose screens are switched as its users
 *  do.
 *
 *  A toolkit is a class with a window, which its constructor opens:
 *
 *      using Screen_t = ...;                            what Build gives
 *      static const char* GetName();
 *      Screen_t* Build();                               hidden, with cuiObjectsPerScreen widgets
 *      void Destroy(Screen_t* pkScreen);
 *      void Show(Screen_t* pkScreen);                   on top
 *      void Hide(Screen_t* pkScreen);
 *      void Focus(Screen_t* pkScreen, unsigned uiButton);
 *      unsigned GetFocussed(Screen_t* pkScreen);        the number of the button that has the focus
 */

#include "Benchmarks/Application.h"
#include "Benchmarks/Measure.h"

#include <cstdio>

/** Switches screens of a toolkit. */
template <typename TToolkit>
class CPeerScreens
{
public:
    CPeerScreens(unsigned uiScreens, bool bDestroy) : m_kScreens(1 + uiScreens), m_bDestroy(bDestroy)
    {
        for (Screen_t*& pkScreen : m_kScreens)
        {
            pkScreen = m_kToolkit.Build();
        }
        m_kToolkit.Show(m_kScreens[0]);
        m_kToolkit.Focus(m_kScreens[0], cuiFocussedButton);
    }
    CPeerScreens(const CPeerScreens&) = delete;
    CPeerScreens& operator=(const CPeerScreens&) = delete;

    ~CPeerScreens()
    {
        Require(m_uiCurrent == 0 && m_kToolkit.GetFocussed(m_kScreens[0]) == cuiFocussedButton);
        for (Screen_t* pkScreen : m_kScreens)
        {
            m_kToolkit.Destroy(pkScreen);
        }
    }

protected:
    using Screen_t = typename TToolkit::Screen_t;

    void Forth(unsigned uiScreen)
    {
        m_kHistory.push_back({m_uiCurrent, m_kToolkit.GetFocussed(m_kScreens[m_uiCurrent])});
        Leave();
        Enter(uiScreen, 0);
    }

    void Back()
    {
        const Entry_t kEntry = m_kHistory.back();
        m_kHistory.pop_back();
        m_kToolkit.Hide(m_kScreens[m_uiCurrent]);
        Enter(kEntry.m_uiScreen, kEntry.m_uiFocussed);
    }

private:
    struct Entry_t
    {
        unsigned m_uiScreen;
        unsigned m_uiFocussed;
    };

    void Leave()
    {
        if (m_bDestroy)
        {
            m_kToolkit.Destroy(m_kScreens[m_uiCurrent]);
            m_kScreens[m_uiCurrent] = nullptr;
        }
        else
        {
            m_kToolkit.Hide(m_kScreens[m_uiCurrent]);
        }
    }

    void Enter(unsigned uiScreen, unsigned uiFocussed)
    {
        if (m_kScreens[uiScreen] == nullptr)
        {
            m_kScreens[uiScreen] = m_kToolkit.Build();
        }
        m_kToolkit.Show(m_kScreens[uiScreen]);
        m_kToolkit.Focus(m_kScreens[uiScreen], uiFocussed);
        m_uiCurrent = uiScreen;
    }

    TToolkit m_kToolkit;
    std::vector<Screen_t*> m_kScreens;
    std::vector<Entry_t> m_kHistory;
    bool m_bDestroy;
    unsigned m_uiCurrent = 0;
};

/** Switches to the second screen and back. */
template <typename TToolkit>
class CPeerForthAndBack : private CPeerScreens<TToolkit>
{
public:
    explicit CPeerForthAndBack(bool bDestroy) : CPeerScreens<TToolkit>(1, bDestroy) {}

    void Do()
    {
        CPeerScreens<TToolkit>::Forth(1);
        CPeerScreens<TToolkit>::Back();
    }
};

/** Visits many screens and goes back. */
template <typename TToolkit>
class CPeerClimb : private CPeerScreens<TToolkit>
{
public:
    explicit CPeerClimb(unsigned uiScreens) : CPeerScreens<TToolkit>(uiScreens, false), m_uiScreens(uiScreens)
    {
    }

    void Do()
    {
        for (unsigned uiVisit = 0; uiVisit < m_uiScreens; ++uiVisit)
        {
            CPeerScreens<TToolkit>::Forth(GetVisitedScreen(uiVisit, m_uiScreens));
        }
        for (unsigned uiVisit = 0; uiVisit < m_uiScreens; ++uiVisit)
        {
            CPeerScreens<TToolkit>::Back();
        }
    }

private:
    unsigned m_uiScreens;
};

/** Shows a popup over a screen, and closes it. */
template <typename TToolkit>
class CPeerPopup
{
public:
    CPeerPopup() : m_pkScreen(m_kToolkit.Build()), m_pkPopup(m_kToolkit.Build())
    {
        m_kToolkit.Show(m_pkScreen);
    }
    CPeerPopup(const CPeerPopup&) = delete;
    CPeerPopup& operator=(const CPeerPopup&) = delete;

    ~CPeerPopup()
    {
        m_kToolkit.Destroy(m_pkPopup);
        m_kToolkit.Destroy(m_pkScreen);
    }

    void Do()
    {
        m_kToolkit.Show(m_pkPopup);
        m_kToolkit.Hide(m_pkPopup);
    }

private:
    TToolkit m_kToolkit;
    typename TToolkit::Screen_t* m_pkScreen;
    typename TToolkit::Screen_t* m_pkPopup;
};

/** Adds the work of a toolkit, with the floor of the library's work of the same name. */
inline void AddPeerWork(std::vector<Measured_t>& kMeasured, const char* pcToolkit, const std::string& kName,
                        const WorkloadMaker_t& kMake)
{
    for (Comparison_t& kComparison : GetComparisons())
    {
        if (kComparison.m_kName == kName)
        {
            kComparison.m_kMake = kMake;
            kMeasured.push_back({kComparison, {pcToolkit, nullptr}});
            return;
        }
    }
    std::fprintf(stderr, "The library is not measured at %s\n", kName.c_str());
    std::abort();
}

/** @return the work of a toolkit whose screens are shown and hidden one by one */
template <typename TToolkit>
std::vector<Measured_t> GetPeerWork()
{
    std::vector<Measured_t> kMeasured;
    const char* pcName = TToolkit::GetName();
    AddPeerWork(kMeasured, pcName, "switch-and-back/kept", MakerOf<CPeerForthAndBack<TToolkit>>(false));
    AddPeerWork(kMeasured, pcName, "switch-and-back/rebuilt-in-code",
                MakerOf<CPeerForthAndBack<TToolkit>>(true));
    AddPeerWork(kMeasured, pcName, "through-history/kept/1000", MakerOf<CPeerClimb<TToolkit>>(1000U));
    AddPeerWork(kMeasured, pcName, "popup/shown-and-closed/0", MakerOf<CPeerPopup<TToolkit>>());
    return kMeasured;
}

#endif
