#include "Application/Application.h"

#include "Application/Handles.h"
#include "Core/GUIFactoryManager.h"
#include "Widgets/GUIWidgetLayout.h"
#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/GUIWidgets.h"

namespace
{
constexpr eC_UInt cuiMostBrightness = 100; ///< percent
constexpr eC_UInt cuiBrightnessStep = 10;  ///< percent
constexpr eC_UInt cuiMessageTime = 2000;   ///< milliseconds

/** A front end: it writes down what widgets show. Widgets/GUIWidgetVisitor.h has a function for each class.
 */
class CTextFrontEnd : public CGUIWidgetVisitor
{
public:
    std::string m_kLines;

    void OnWidget(const CGUIWidget& kWidget, const GUIArea_t&) override
    {
        eC_Char acContent[80];
        if (kWidget.CopyContent(acContent, sizeof(acContent)) > 0)
        {
            m_kLines += (kWidget.HasFocus() ? "> " : "  ") + std::string(acContent) + "\n";
        }
    }
};
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

void CApplication::PressKey(EKey eKey)
{
    // m_kIdleHome.NoteInput();
    switch (eKey)
    {
    case KEY_NEXT:
        m_kInput.PressKey(GUIKEY_NEXT);
        break;
    case KEY_OK:
        m_kInput.PressKey(GUIKEY_ACTIVATE);
        break;
    case KEY_BACK:
        m_kManager.Back(true);
        break;
    }
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

std::string CApplication::GetScreen() const
{
    CTextFrontEnd kFrontEnd;
    CGUIWidgetLayout(80, 25).Visit(kFrontEnd);
    return kFrontEnd.m_kLines;
}
