// SPDX-License-Identifier: MIT
// What mirroring dialogs into native objects costs, apart from those of a toolkit.

#include "Adapters/Mirror/GUIMirror.h"
#include "Benchmarks/Application.h"
#include "Benchmarks/HandWritten.h"
#include "Benchmarks/Workload.h"
#include "Widgets/GUIWidgets.h"

#include <string>

namespace
{
const ObjectHandle_t ceHome = GetScreenID(0);
const ObjectHandle_t ceOther = GetScreenID(1);

/** A toolkit whose functions do nothing. */
class CNoToolkit : public CGUINativeToolkit
{
public:
    void Measure(const CGUIWidget&, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override
    {
        iWidthOUT = 1;
        iHeightOUT = 1;
    }
    void* Create(CGUIMirrored&) override { return this; }
    void* Build(CGUIMirrored&, CGUIWindowBuilder&) override { return this; }
    void Update(CGUIMirrored&, const GUIArea_t&) override {}
    void SetShown(CGUIMirrored&, eC_Bool) override { ++m_uiChanges; }
    void PutBelow(CGUIMirrored&, CGUIMirrored*) override {}
    void Delete(CGUIMirrored&) override {}
    void SetInput(CGUIMirrored*, CGUIMirrored*, CGUIMirrored*) override {}

    unsigned m_uiChanges = 0;
};

/** Mirrored dialogs, all of which have been shown once. */
class CMirrored
{
public:
    explicit CMirrored(unsigned uiDialogs)
    {
        for (unsigned uiDialog = uiDialogs; uiDialog-- > 0;)
        {
            auto* pkScreen = new CGUIScreen(&m_kRoot, GetScreenID(uiDialog));
            for (unsigned uiButton = 0; uiButton < cuiButtonsPerScreen; ++uiButton)
            {
                new CGUIButton(pkScreen, GetButtonID(GetScreenID(uiDialog), uiButton));
            }
            m_kMirror.Commit();
            pkScreen->SetInvisible(uiDialog > 0);
        }
        m_kManager.CreateDialog(ceHome, CGUIDialogManager::ODA_INVISIBLE);
        m_kMirror.Commit();
        Require(!m_kMirror.HasChanges());
    }

protected:
    CGUI m_kRoot;
    CNoToolkit m_kToolkit;
    CGUIMirror m_kMirror{m_kToolkit, 320, 240};
    CGUIDialogManager m_kManager;
};

class CCommitNothing : private CMirrored
{
public:
    using CMirrored::CMirrored;

    void Do()
    {
        m_kMirror.Commit();
        Keep(m_kMirror);
    }
};

class CSwitchAndCommit : private CMirrored
{
public:
    using CMirrored::CMirrored;

    void Do()
    {
        const unsigned uiBefore = m_kToolkit.m_uiChanges;
        m_kManager.CreateDialog(ceOther, CGUIDialogManager::ODA_INVISIBLE);
        m_kMirror.Commit();
        m_kManager.Back(false);
        m_kMirror.Commit();
        constexpr unsigned cuiShownAndHiddenTwice = 4;
        Require(m_kToolkit.m_uiChanges == uiBefore + cuiShownAndHiddenTwice);
    }
};

/** By hand: nothing has changed if a flag says so. */
class CLookAtFlag
{
public:
    void Do() { Keep(m_bIsChanged); }

private:
    bool m_bIsChanged = false;
};

/** By hand: the switch itself shows and hides. */
class CSwitchByHand
{
public:
    CSwitchByHand()
    {
        m_kScreens.Build(ceOther, cuiObjectsPerScreen, cuiButtonsPerScreen);
        m_kScreens.SwitchTo(ceHome, CHandWrittenScreens::HIDE);
    }

    void Do()
    {
        m_kScreens.SwitchTo(ceOther, CHandWrittenScreens::HIDE);
        m_kScreens.Back(false);
    }

private:
    CHandWrittenScreens m_kScreens;
};
} // namespace

void AddMirrorComparisons(Comparisons_t& kComparisons)
{
    for (const unsigned uiDialogs : {10U, 1000U})
    {
        kComparisons.push_back({"mirror/nothing-changed/" + std::to_string(uiDialogs), LOGS_NOTHING, 1,
                                MakerOf<CCommitNothing>(uiDialogs), MakerOf<CLookAtFlag>()});
        kComparisons.push_back({"mirror/switch-and-back/" + std::to_string(uiDialogs), LOGS, 1,
                                MakerOf<CSwitchAndCommit>(uiDialogs), MakerOf<CSwitchByHand>()});
    }
}
