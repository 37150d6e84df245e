#include "Application/Application.h"

#include "Application/Handles.h"
#include "Application/Text.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"

namespace
{
constexpr eC_UInt cuiMostBrightness = 100; ///< percent
constexpr eC_UInt cuiBrightnessStep = 10;  ///< percent
constexpr eC_UInt cuiMessageTime = 2000;   ///< milliseconds

std::string PrintVisibleTexts(const CGUIObject& kObject)
{
    if (kObject.IsInvisible())
    {
        return std::string();
    }
    std::string kLines;
    const auto* pkText = dynamic_cast<const CText*>(&kObject);
    if (pkText != nullptr)
    {
        const bool bHasFocus = CGUIEventHandler::GetInstance().GetFocussedObject() == &kObject;
        kLines = (bHasFocus ? "> " : "  ") + pkText->GetText() + "\n";
    }
    if (kObject.IsCompositeObject())
    {
        const auto& kComposite = static_cast<const CGUICompositeObject&>(kObject);
        for (const CGUIObject* pkChild = kComposite.GetFirstChild(); pkChild != nullptr;
             pkChild = pkChild->GetNextSibling())
        {
            kLines += PrintVisibleTexts(*pkChild);
        }
    }
    return kLines;
}
} // namespace

CApplication::CApplication() : m_kReader(APPLICATION_DIRECTORY)
{
    CGUIFactoryManager& kFactory = CGUIFactoryManager::CreateInstance();
    kFactory.RegisterReaderForFileType("xml", &m_kReader);
    kFactory.RegisterObjectClass<CText>("Text");
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
    return m_kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_NOTHING) != nullptr;
}

void CApplication::PressKey(EKey eKey)
{
    const CGUIObject* pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    switch (eKey)
    {
    case KEY_NEXT:
        CGUIEventHandler::GetInstance().FocusNext(m_kManager.GetCurrentDialog());
        break;
    case KEY_OK:
        if (pkFocussed != nullptr)
        {
            OnButton(pkFocussed->GetID());
        }
        break;
    case KEY_BACK:
        m_kManager.Back(true);
        break;
    }
}

void CApplication::OnButton(ObjectHandle_t eButton)
{
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

std::string CApplication::GetScreen() const
{
    return PrintVisibleTexts(CGUI::GetInstance());
}
