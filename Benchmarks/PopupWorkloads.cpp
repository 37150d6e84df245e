// SPDX-License-Identifier: MIT
// Showing and closing popups, alone and with many others listed.

#include "Benchmarks/Application.h"
#include "Benchmarks/HandWritten.h"
#include "Benchmarks/Workload.h"

#include <list>

namespace
{
const ObjectHandle_t ceDialog = GetScreenID(0);
const ObjectHandle_t cePopup = GetScreenID(1);

/** The application with a dialog, a popup that closing keeps, and other listed popups: of all priorities, or
 * all of the highest one if they have a display time.
 */
class CPopups
{
public:
    explicit CPopups(unsigned uiListed, eC_UInt uiDisplayTime = 0)
    {
        m_kApplication.m_kManager.CreateDialog(ceDialog, CGUIDialogManager::ODA_INVISIBLE);
        Focus(GetButtonID(ceDialog, cuiFocussedButton));
        Register(cePopup, CGUIDialogManager::PRIO_HIGHEST, 0);
        for (unsigned uiPopup = 0; uiPopup < uiListed; ++uiPopup)
        {
            const ObjectHandle_t ePopup = GetScreenID(2 + uiPopup);
            const auto ePriority =
                static_cast<CGUIDialogManager::PopupPriority_t>(CGUIDialogManager::PRIO_LOWEST + uiPopup % 8);
            Register(ePopup, uiDisplayTime != 0 ? CGUIDialogManager::PRIO_HIGHEST : ePriority, uiDisplayTime);
            Require(Manager().ShowPopup(ePopup) != nullptr);
        }
    }
    CPopups(const CPopups&) = delete;
    CPopups& operator=(const CPopups&) = delete;
    ~CPopups() { Require(GetFocussedID() == GetButtonID(ceDialog, cuiFocussedButton)); }

protected:
    CBenchmarkManager& Manager() { return m_kApplication.m_kManager; }

private:
    void Register(ObjectHandle_t ePopup, CGUIDialogManager::PopupPriority_t ePriority, eC_UInt uiDisplayTime)
    {
        Manager().RegisterPopupDefinition(ePopup, ePriority, uiDisplayTime, false, "");
    }

    CBenchmarkApplication m_kApplication;
};

/** Shows a popup of the highest priority and closes it. */
class CShowAndClose : public CPopups
{
public:
    using CPopups::CPopups;

    void Do()
    {
        Manager().ShowPopup(cePopup);
        Manager().ClosePopup(cePopup);
    }
};

/** Decides which popups are visible, with one of the highest priority displayed. */
class CArbitrate : public CPopups
{
public:
    explicit CArbitrate(unsigned uiListed) : CPopups(uiListed) { Manager().ShowPopup(cePopup); }

    void Do() { Manager().UpdateActivePopups(); }
};

/** Switches to another dialog and back under popups that are shown for a time. */
class CSwitchBelow : public CPopups
{
public:
    explicit CSwitchBelow(unsigned uiListed) : CPopups(uiListed, cuiDisplayTime)
    {
        // Builds the dialog that is kept.
        Do();
    }

    void Do()
    {
        Manager().CreateDialog(cePopup, CGUIDialogManager::ODA_INVISIBLE);
        Manager().Back(false);
    }

private:
    static constexpr eC_UInt cuiDisplayTime = 1000000;
};

/** A popup in a hand-written list. */
struct ListedByHand_t
{
    HandWrittenObject_t* m_pkObject;
    int m_iPriority;
    unsigned m_uiDisplayTime;
};

/** A hand-written list of popups. */
class CPopupsByHand
{
public:
    explicit CPopupsByHand(unsigned uiListed) : m_kObjects(uiListed + 1)
    {
        m_kIndex.emplace(cePopup, m_kObjects.data());
        for (unsigned uiPopup = 0; uiPopup < uiListed; ++uiPopup)
        {
            m_kIndex.emplace(GetScreenID(2 + uiPopup), &m_kObjects[1 + uiPopup]);
            m_kListed.push_back({&m_kObjects[1 + uiPopup], static_cast<int>(1 + uiPopup % 8), 0});
        }
        m_kListed.sort([](const ListedByHand_t& kOne, const ListedByHand_t& kOther)
                       { return kOne.m_iPriority < kOther.m_iPriority; });
    }

protected:
    void Show()
    {
        m_kListed.push_back({m_kIndex.find(cePopup)->second, 9, 0});
        Arbitrate();
    }

    void Close()
    {
        m_kListed.back().m_pkObject->m_bIsInvisible = true;
        m_kListed.pop_back();
        Arbitrate();
    }

    void Arbitrate()
    {
        const int iHighest = m_kListed.empty() ? 0 : m_kListed.back().m_iPriority;
        for (const ListedByHand_t& kListed : m_kListed)
        {
            const bool bIsInvisible = kListed.m_iPriority != iHighest;
            if (kListed.m_pkObject->m_bIsInvisible != bIsInvisible)
            {
                kListed.m_pkObject->m_bIsInvisible = bIsInvisible;
            }
        }
        Keep(m_kListed);
    }

private:
    std::vector<HandWrittenObject_t> m_kObjects;
    std::unordered_map<int, HandWrittenObject_t*> m_kIndex;
    std::list<ListedByHand_t> m_kListed;
};

class CShowAndCloseByHand : public CPopupsByHand
{
public:
    using CPopupsByHand::CPopupsByHand;

    void Do()
    {
        Show();
        Close();
    }
};

/** Keeps the remaining time of each popup when the dialog below them changes. */
class CSwitchBelowByHand : public CPopupsByHand
{
public:
    explicit CSwitchBelowByHand(unsigned uiListed) : CPopupsByHand(uiListed) {}

    void Do()
    {
        Arbitrate();
        Arbitrate();
    }
};

class CArbitrateByHand : public CPopupsByHand
{
public:
    explicit CArbitrateByHand(unsigned uiListed) : CPopupsByHand(uiListed) { Show(); }

    void Do() { Arbitrate(); }
};
} // namespace

void AddPopupComparisons(Comparisons_t& kComparisons)
{
    for (const unsigned uiListed : {0U, 1U, 10U, 100U})
    {
        kComparisons.push_back({"popup/shown-and-closed/" + std::to_string(uiListed), LOGS, 1,
                                MakerOf<CShowAndClose>(uiListed), MakerOf<CShowAndCloseByHand>(uiListed)});
    }
    for (const unsigned uiListed : {10U, 1000U})
    {
        kComparisons.push_back({"popup/switch-below-timed/" + std::to_string(uiListed), LOGS, 1,
                                MakerOf<CSwitchBelow>(uiListed), MakerOf<CSwitchBelowByHand>(uiListed)});
    }
    for (const unsigned uiListed : {1U, 10U, 100U, 1000U})
    {
        kComparisons.push_back({"popup/arbitration/" + std::to_string(uiListed), LOGS, 1,
                                MakerOf<CArbitrate>(uiListed), MakerOf<CArbitrateByHand>(uiListed)});
    }
}
