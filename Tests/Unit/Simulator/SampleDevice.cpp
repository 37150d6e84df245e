// SPDX-License-Identifier: MIT
#include "Tests/Unit/Simulator/SampleDevice.h"

#include "Core/Control/GUI.h"
#include "Core/GUITrace.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <stdexcept>

namespace
{
constexpr DeviceKey_t cakKeys[] = {{"ok", "OK", "Enter"}, {"back", "Back", "Escape"}};
constexpr Device_t ckDevice = {"Sample", 20, 6, 1, 1, cakKeys, 2};

CGUIObject* BuildSample(ObjectHandle_t eID)
{
    CGUIScreen* const pkScreen = new CGUIScreen(&CGUI::GetInstance(), eID);
    pkScreen->SetText(eID == DLG_A ? "First" : "Second");
    CGUIButton* const pkButton = new CGUIButton(pkScreen, OBJ_1);
    pkButton->SetText("Go");
    pkButton->SetPosition(1, 2);
    if (eID == DLG_A)
    {
        CGUISlider* const pkSlider = new CGUISlider(pkScreen, OBJ_2);
        pkSlider->SetPosition(1, 3);
        CGUITextField* const pkField = new CGUITextField(pkScreen, OBJ_3);
        pkField->SetPosition(1, 4);
    }
    return pkScreen;
}

/** Gives the focus to what it shows. */
class CSampleManager : public CGUIDialogManager
{
protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) const override
    {
        return eID == DLG_A || eID == DLG_B ? BuildSample(eID) : nullptr;
    }

    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override
    {
        return new CGUIPopup(&CGUI::GetInstance(), eID);
    }

    void OnDialogActivation(CGUIObject* pDialog) override { pDialog->FocusAny(); }
};

std::string Weigh(eC_UInt uiGrams)
{
    GUILOGMESSAGE("weighs " + eC_String(uiGrams) + ".\n");
    if (uiGrams > 300)
    {
        throw 'x';
    }
    if (uiGrams > 200)
    {
        throw std::runtime_error("too heavy");
    }
    if (uiGrams > 100)
    {
        throw 5;
    }
    return std::to_string(uiGrams) + " g";
}
} // namespace

class CSampleDevice::CParts : public CGUIWidgetListener
{
public:
    CParts() : m_kInput(*this) {}
    virtual ~CParts() = default;

    void OnActivated(CGUIWidget& kWidget) override
    {
        if (kWidget.GetObject().GetID() != OBJ_1)
        {
            return;
        }
        if (m_kManager.GetCurrentDialogID() == DLG_A)
        {
            m_kManager.CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
        }
        else
        {
            m_kManager.ShowPopup(POP_1);
        }
    }

    CGUI m_kRoot;
    CSampleManager m_kManager;
    CGUIWidgetInput m_kInput;
};

const Device_t& CSampleDevice::GetDevice() const
{
    return ckDevice;
}

void CSampleDevice::Start()
{
    ++m_uiStarts;
    if (m_bMustFail)
    {
        throw 1;
    }
    m_pkParts = std::make_shared<CParts>();
}

void CSampleDevice::Stop()
{
    --m_uiStarts;
    m_pkParts.reset();
}

eC_Bool CSampleDevice::PowerOn()
{
    m_pkParts->m_kManager.RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 1000, true, "");
    return !m_bHasNoDialog &&
           m_pkParts->m_kManager.CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING) != nullptr;
}

CGUIDialogManager& CSampleDevice::GetManager()
{
    return m_pkParts->m_kManager;
}

CGUIWidgetInput& CSampleDevice::GetInput()
{
    return m_pkParts->m_kInput;
}

eC_Bool CSampleDevice::PressKey(eC_UInt uiKey)
{
    if (uiKey == 0)
    {
        return m_pkParts->m_kInput.PressKey(GUIKEY_ACTIVATE);
    }
    const eC_Bool bCanGoBack = m_pkParts->m_kManager.GetHistoryStackSize() > 0;
    m_pkParts->m_kManager.Back(true);
    return bCanGoBack;
}

void CSampleDevice::AddCommands(CSimulatedCommands& kCommands)
{
    if (!m_bHasNoScales)
    {
        kCommands.Add("weigh <grams>",
                      [](const CScenarioArguments& kArguments) { return Weigh(kArguments.GetNumber(0)); });
    }
}
