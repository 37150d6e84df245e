#include "Application/Application.h"

#include "Application/Handles.h"
#include "Core/GUIFactoryManager.h"
#include "Widgets/GUIWidgets.h"

namespace
{
constexpr eC_UInt cuiMostBrightness = 100; ///< percent
constexpr eC_UInt cuiBrightnessStep = 10;  ///< percent
constexpr eC_UInt cuiMessageTime = 2000;   ///< milliseconds
} // namespace

CApplication::CApplication() : m_kReader(APPLICATION_DIRECTORY), m_kInput(*this)
{
    CGUIFactoryManager& kFactory = CGUIFactoryManager::CreateInstance();
    kFactory.RegisterReaderForFileType("xml", &m_kReader);
    RegisterGUIWidgets(kFactory);
}

CApplication::~CApplication()
{
    CGUIFactoryManager::DestroyInstance();
}

eC_Bool CApplication::Start()
{
    m_kManager.RegisterDialogDefinition("Dialogs/Home.xml", DLG_HOME);
    m_kManager.RegisterDialogDefinition("Dialogs/Settings.xml", DLG_SETTINGS);
    m_kManager.RegisterPopupDefinition(POP_SAVED, CGUIDialogManager::PRIO_MEDIUM, cuiMessageTime, true,
                                       "Dialogs/Saved.xml");
    // m_kIdleHome.Start();
    return m_kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_NOTHING) != nullptr;
}

eC_Bool CApplication::PressKey(EKey eKey)
{
    // m_kIdleHome.NoteInput();
    switch (eKey)
    {
    case KEY_NEXT:
        return m_kInput.PressKey(GUIKEY_NEXT);
    case KEY_OK:
        return m_kInput.PressKey(GUIKEY_ACTIVATE);
    case KEY_BACK:
        if (m_kManager.GetHistoryStackSize() > 0)
        {
            m_kManager.Back(true);
            return true;
        }
        break;
    }
    return false;
}

void CApplication::OnActivated(CGUIWidget& kWidget)
{
    const ObjectHandle_t eButton = kWidget.GetObject().GetID();
    if (eButton == BTN_SETTINGS)
    {
        // The home screen stays in memory, hidden.
        m_kManager.CreateDialog(DLG_SETTINGS, CGUIDialogManager::ODA_INVISIBLE);
    }
    else if (eButton == BTN_BRIGHTER)
    {
        const eC_UInt uiBrightness = m_kManager.GetBrightness();
        m_kManager.SetBrightness(uiBrightness < cuiMostBrightness ? uiBrightness + cuiBrightnessStep : 0);
    }
    else if (eButton == BTN_DONE)
    {
        m_kManager.Back(true);
        m_kManager.ShowPopup(POP_SAVED);
    }
}
