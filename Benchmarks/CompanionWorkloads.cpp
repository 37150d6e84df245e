// SPDX-License-Identifier: MIT
// What the companions add to the operations that they accompany.

#include "Benchmarks/Application.h"
#include "Benchmarks/Workload.h"
#include "Companions/GUIDialogListener.h"
#include "Companions/GUIGuard.h"
#include "Companions/GUIObservedDialogManager.h"
#include "Companions/GUIPostQueue.h"
#include "Companions/GUIRestore.h"
#include "Companions/GUIWatch.h"

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
    kComparisons.push_back(
        {"companion/post-and-process", LOGS_NOTHING, 1, MakerOf<CPost>(), MakerOf<CPostByHand>()});
}
