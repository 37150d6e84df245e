// SPDX-License-Identifier: MIT
#include "Adapters/LVGL/dialogmanager_lvgl.h"

#include "Adapters/LVGL/GUILVGL.h"
#include "Adapters/Mirror/GUIMirroredManager.h"
#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"
#include "Loader/GUIDialogROMReader.h"
#include "Widgets/GUIWidgets.h"

#include <memory>
#include <new>

namespace
{
constexpr int ciLeastPriority = CGUIDialogManager::PRIO_LOWEST;
constexpr int ciGreatestPriority = CGUIDialogManager::PRIO_HIGHEST;

ObjectHandle_t Handle(dialogmanager_id_t iID)
{
    return static_cast<ObjectHandle_t>(iID);
}

/** @return the identifier that the application has given an object, 0 if it has none */
dialogmanager_id_t GetID(const CGUIObject* pkObject)
{
    const auto iID = static_cast<dialogmanager_id_t>(pkObject != nullptr ? pkObject->GetID() : NO_HANDLE);
    return iID <= DIALOGMANAGER_GREATEST_ID ? iID : 0;
}

/** Calls the application's functions. */
class CManager : public CGUIMirroredManager
{
public:
    using CGUIMirroredManager::CGUIMirroredManager;

    dialogmanager_hooks_t m_kHooks = {};
    eC_UInt m_uiNOFActivated = 0; ///< how many dialogs have become current

    /** Gives what has the focus an identifier if it has none. The manager would do that itself, with the
     * first one behind the handles of a table; a program in C has no table, so that one would be the first of
     * its own.
     */
    void NameFocussed()
    {
        CGUIObject* pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
        if (pkFocussed != nullptr && pkFocussed->GetID() == NO_HANDLE)
        {
            pkFocussed->SetID(static_cast<ObjectHandle_t>(++m_iLastID));
        }
    }

    dialogmanager_id_t GetHistory(std::uint32_t uiIndex) const
    {
        for (auto kEntry = GetDialogHistory().GetBegin(); kEntry.IsValid(); ++kEntry)
        {
            if (uiIndex-- == 0)
            {
                return static_cast<dialogmanager_id_t>((*kEntry).m_Dialog.m_eDialogID);
            }
        }
        return 0;
    }

protected:
    void OnDialogAdded(CGUIObject* pDialog) override { Call(m_kHooks.on_added, pDialog); }
    void OnDialogActivation(CGUIObject* pDialog) override
    {
        ++m_uiNOFActivated;
        Call(m_kHooks.on_activated, pDialog);
    }
    void OnDialogDeactivation(CGUIObject* pDialog) override { Call(m_kHooks.on_deactivated, pDialog); }
    void OnPopupActivation(CGUIObject* pPopup) override { Call(m_kHooks.on_popup_shown, pPopup); }
    void OnPopupDeactivation(CGUIObject* pPopup) override { Call(m_kHooks.on_popup_hidden, pPopup); }
    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override
    {
        return m_kHooks.may_delete == nullptr || m_kHooks.may_delete(GetID(pDialog), m_kHooks.user_data);
    }
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewID) override
    {
        if (m_kHooks.on_left != nullptr)
        {
            m_kHooks.on_left(eDeletedDialogID, eNewID, m_kHooks.user_data);
        }
    }
    void OnLastDialogDeletion() override
    {
        if (m_kHooks.on_last_left != nullptr)
        {
            m_kHooks.on_last_left(m_kHooks.user_data);
        }
    }

private:
    dialogmanager_id_t m_iLastID = DIALOGMANAGER_GREATEST_ID;

    void Call(void (*pfnHook)(dialogmanager_id_t, void*), const CGUIObject* pkObject) const
    {
        if (pfnHook != nullptr)
        {
            pfnHook(GetID(pkObject), m_kHooks.user_data);
        }
    }
};

class CListener : public CGUIWidgetListener
{
public:
    dialogmanager_listener_t m_kListener = {};

    void OnActivated(CGUIWidget& kWidget) override
    {
        if (m_kListener.on_activated != nullptr)
        {
            m_kListener.on_activated(GetID(&kWidget.GetObject()), m_kListener.user_data);
        }
    }
    void OnChanged(CGUIWidget& kWidget) override
    {
        if (m_kListener.on_changed != nullptr)
        {
            m_kListener.on_changed(GetID(&kWidget.GetObject()), kWidget.GetValue(), kWidget.GetText(),
                                   m_kListener.user_data);
        }
    }
};

class CContents : public CGUITranslator, public CGUIValueSource
{
public:
    dialogmanager_contents_t m_kContents = {};

    eC_Bool FindText(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT) const override
    {
        return Find(m_kContents.find_text, pcName, uiKeyOUT);
    }
    const eC_Char* GetText(GUIContentKey_t uiKey) const override
    {
        const eC_Char* pcText =
            m_kContents.get_text != nullptr ? m_kContents.get_text(uiKey, m_kContents.user_data) : nullptr;
        return pcText != nullptr ? pcText : "";
    }
    eC_Bool FindValue(const eC_Char* pcName, GUIContentKey_t& uiValueOUT) const override
    {
        return Find(m_kContents.find_value, pcName, uiValueOUT);
    }
    const eC_Char* GetValueText(GUIContentKey_t uiValue) const override
    {
        const eC_Char* pcText = m_kContents.get_value_text != nullptr
                                    ? m_kContents.get_value_text(uiValue, m_kContents.user_data)
                                    : nullptr;
        return pcText != nullptr ? pcText : "";
    }
    eC_Int GetValueNumber(GUIContentKey_t uiValue) const override
    {
        return m_kContents.get_value_number != nullptr
                   ? m_kContents.get_value_number(uiValue, m_kContents.user_data)
                   : 0;
    }

private:
    eC_Bool Find(std::uint16_t (*pfnFind)(const char*, void*), const eC_Char* pcName,
                 GUIContentKey_t& uiNumberOUT) const
    {
        const std::uint16_t uiNumber = pfnFind != nullptr ? pfnFind(pcName, m_kContents.user_data) : 0;
        uiNumberOUT = uiNumber != 0 ? uiNumber : uiNumberOUT;
        return uiNumber != 0;
    }
};

/** A builder of the application, in a list. */
struct Builder_t
{
    CGUILVGLBuilder m_kBuilder;
    std::unique_ptr<Builder_t> m_pkNext;
};

/** Everything, in the order in which it is made. */
class CEverything
{
public:
    explicit CEverything(const GUILVGLOptions_t& kOptions)
        : m_kLVGL(kOptions, m_kListener), m_kManager(m_kLVGL.GetMirror())
    {
        RegisterGUIWidgets(CGUIFactoryManager::GetInstance());
        CGUIWidget::SetTranslator(&m_kContents);
        CGUIWidget::SetValueSource(&m_kContents);
    }
    CEverything(const CEverything&) = delete;
    CEverything& operator=(const CEverything&) = delete;
    ~CEverything()
    {
        CGUIWidget::SetTranslator(nullptr);
        CGUIWidget::SetValueSource(nullptr);
        if (m_bLogs)
        {
            CGUITrace::GetInstance().SetSink(m_pkSinkBefore);
        }
        while (m_pkBuilders != nullptr)
        {
            m_pkBuilders = std::move(m_pkBuilders->m_pkNext);
        }
    }

    void LogToLVGL()
    {
        m_bLogs = true;
        m_pkSinkBefore = CGUITrace::GetInstance().GetSink();
        CGUITrace::GetInstance().SetSink(&m_kLog);
    }

    void AddBuilder(ObjectHandle_t eID, dialogmanager_builder_t pfnBuilder, void* pUserData)
    {
        auto pkBuilder =
            std::make_unique<Builder_t>(Builder_t{CGUILVGLBuilder(pfnBuilder, pUserData), nullptr});
        m_kLVGL.GetMirror().AddBuilder(eID, pkBuilder->m_kBuilder);
        pkBuilder->m_pkNext = std::move(m_pkBuilders);
        m_pkBuilders = std::move(pkBuilder);
    }

    /** Undoes the last AddBuilder. */
    void RemoveBuilder(ObjectHandle_t eID)
    {
        m_kLVGL.GetMirror().RemoveBuilder(eID);
        m_pkBuilders = std::move(m_pkBuilders->m_pkNext);
    }

    /** @return whether anything is registered under an identifier */
    eC_Bool IsRegistered(ObjectHandle_t eID)
    {
        return m_kLVGL.GetMirror().HasBuilder(eID) || !m_kManager.GetRegisteredPath(eID).IsEmpty();
    }

    CGUILVGLLog m_kLog;
    CContents m_kContents;
    CListener m_kListener;
    std::unique_ptr<CGUIDialogROMReader> m_pkReader;
    std::unique_ptr<Builder_t> m_pkBuilders;
    CGUI m_kRoot;
    CGUILVGL m_kLVGL;
    CManager m_kManager;

private:
    CGUITraceSink* m_pkSinkBefore = nullptr;
    eC_Bool m_bLogs = false;
};

std::unique_ptr<CEverything> g_pkEverything; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/** Runs what needs the dialog manager, and makes a result of what it throws. */
template <typename Function_t>
dialogmanager_result_t Run(const Function_t& tFunction)
{
    if (g_pkEverything == nullptr)
    {
        return DIALOGMANAGER_ERROR_STATE;
    }
    try
    {
        return tFunction(*g_pkEverything);
    }
    catch (const std::bad_alloc&)
    {
        return DIALOGMANAGER_ERROR_MEMORY;
    }
    catch (...)
    {
        return DIALOGMANAGER_ERROR_FAILED;
    }
}

dialogmanager_result_t ResultOf(eC_Bool bIsDone, dialogmanager_result_t eOtherwise)
{
    return bIsDone ? DIALOGMANAGER_OK : eOtherwise;
}

void RegisterPopup(CEverything& kAll, dialogmanager_id_t iID, int iPriority, std::uint32_t uiTime,
                   bool bDeleteOnClose, const char* pcPath)
{
    kAll.m_kManager.RegisterPopupDefinition(Handle(iID),
                                            static_cast<CGUIDialogManager::PopupPriority_t>(iPriority),
                                            uiTime, bDeleteOnClose, pcPath);
}

bool IsID(dialogmanager_id_t iID)
{
    return iID > 0 && iID <= DIALOGMANAGER_GREATEST_ID;
}

bool IsEmpty(const char* pcText)
{
    return pcText == nullptr || *pcText == '\0';
}

bool IsPriority(int iPriority)
{
    return iPriority >= ciLeastPriority && iPriority <= ciGreatestPriority;
}
} // namespace

// ---- Life ------------------------------------------------------------------------------------------

dialogmanager_result_t dialogmanager_create(const dialogmanager_config_t* pkConfig)
{
    const dialogmanager_config_t kConfig = pkConfig != nullptr ? *pkConfig : dialogmanager_config_t();
    if (g_pkEverything != nullptr || CGUI::ms_pInstance != nullptr ||
        (kConfig.display == nullptr && lv_display_get_default() == nullptr))
    {
        return DIALOGMANAGER_ERROR_STATE;
    }
    GUILVGLOptions_t kOptions;
    kOptions.m_pkDisplay = kConfig.display;
    kOptions.m_pkParent = kConfig.parent;
    kOptions.m_iWidth = kConfig.width;
    kOptions.m_iHeight = kConfig.height;
    kOptions.m_pkFont = kConfig.font;
    kOptions.m_iButtonWidth = kConfig.button_width;
    kOptions.m_iButtonHeight = kConfig.button_height;
    try
    {
        g_pkEverything = std::make_unique<CEverything>(kOptions);
    }
    catch (...)
    {
        return DIALOGMANAGER_ERROR_MEMORY;
    }
    if (kConfig.log_to_lvgl)
    {
        g_pkEverything->LogToLVGL();
    }
    return DIALOGMANAGER_OK;
}

dialogmanager_result_t dialogmanager_destroy()
{
    if (g_pkEverything == nullptr || lv_indev_active() != nullptr)
    {
        return DIALOGMANAGER_ERROR_STATE;
    }
    g_pkEverything.reset();
    return DIALOGMANAGER_OK;
}

dialogmanager_result_t dialogmanager_set_hooks(const dialogmanager_hooks_t* pkHooks)
{
    return Run(
        [pkHooks](CEverything& kAll)
        {
            kAll.m_kManager.m_kHooks = pkHooks != nullptr ? *pkHooks : dialogmanager_hooks_t();
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_set_listener(const dialogmanager_listener_t* pkListener)
{
    return Run(
        [pkListener](CEverything& kAll)
        {
            kAll.m_kListener.m_kListener = pkListener != nullptr ? *pkListener : dialogmanager_listener_t();
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_set_contents(const dialogmanager_contents_t* pkContents)
{
    return Run(
        [pkContents](CEverything& kAll)
        {
            kAll.m_kContents.m_kContents = pkContents != nullptr ? *pkContents : dialogmanager_contents_t();
            CGUIWidget::MarkTexts();
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_update_texts()
{
    return Run(
        [](CEverything&)
        {
            CGUIWidget::MarkTexts();
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_add_style(const char* pcName, const lv_style_t* pkStyle,
                                               lv_style_selector_t uiSelector)
{
    return Run(
        [=](CEverything& kAll)
        {
            if (pcName == nullptr || pkStyle == nullptr)
            {
                return DIALOGMANAGER_ERROR_ARGUMENT;
            }
            kAll.m_kLVGL.AddStyle(pcName, pkStyle, uiSelector);
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_set_transition(int iTransition, std::uint32_t uiTime, bool bOnce)
{
    return Run(
        [=](CEverything& kAll)
        {
            if (iTransition < TRANSITION_NONE || iTransition > TRANSITION_FADE)
            {
                return DIALOGMANAGER_ERROR_ARGUMENT;
            }
            kAll.m_kLVGL.SetTransition(static_cast<EGUITransition>(iTransition), uiTime, bOnce);
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_turn()
{
    return Run(
        [](CEverything& kAll)
        {
            kAll.m_kLVGL.Turn();
            return DIALOGMANAGER_OK;
        });
}

// ---- Definitions -----------------------------------------------------------------------------------

dialogmanager_result_t dialogmanager_register_dialog(dialogmanager_id_t iID,
                                                     dialogmanager_builder_t pfnBuilder, void* pUserData)
{
    return Run(
        [=](CEverything& kAll)
        {
            if (!IsID(iID) || pfnBuilder == nullptr)
            {
                return DIALOGMANAGER_ERROR_ARGUMENT;
            }
            if (kAll.IsRegistered(Handle(iID)))
            {
                return DIALOGMANAGER_ERROR_EXISTS;
            }
            kAll.AddBuilder(Handle(iID), pfnBuilder, pUserData);
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_set_tables(const struct DialogROMTables_t* pkTables)
{
    return Run(
        [pkTables](CEverything& kAll)
        {
            if (pkTables == nullptr)
            {
                return DIALOGMANAGER_ERROR_ARGUMENT;
            }
            if (kAll.m_pkReader != nullptr)
            {
                return DIALOGMANAGER_ERROR_EXISTS;
            }
            auto pkReader = std::make_unique<CGUIDialogROMReader>(*pkTables);
            if (!CGUIFactoryManager::GetInstance().RegisterReaderForFileType("xml", pkReader.get()))
            {
                return DIALOGMANAGER_ERROR_EXISTS;
            }
            kAll.m_pkReader = std::move(pkReader);
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_register_compiled_dialog(dialogmanager_id_t iID, const char* pcPath)
{
    return Run(
        [=](CEverything& kAll)
        {
            if (!IsID(iID) || IsEmpty(pcPath))
            {
                return DIALOGMANAGER_ERROR_ARGUMENT;
            }
            if (kAll.IsRegistered(Handle(iID)))
            {
                return DIALOGMANAGER_ERROR_EXISTS;
            }
            kAll.m_kManager.RegisterDialogDefinition(pcPath, Handle(iID));
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_register_popup(dialogmanager_id_t iID, int iPriority,
                                                    std::uint32_t uiTime, bool bDeleteOnClose,
                                                    dialogmanager_builder_t pfnBuilder, void* pUserData)
{
    return Run(
        [=](CEverything& kAll)
        {
            if (!IsID(iID) || pfnBuilder == nullptr || !IsPriority(iPriority))
            {
                return DIALOGMANAGER_ERROR_ARGUMENT;
            }
            if (kAll.IsRegistered(Handle(iID)))
            {
                return DIALOGMANAGER_ERROR_EXISTS;
            }
            kAll.AddBuilder(Handle(iID), pfnBuilder, pUserData);
            try
            {
                RegisterPopup(kAll, iID, iPriority, uiTime, bDeleteOnClose, "");
            }
            catch (...)
            {
                kAll.RemoveBuilder(Handle(iID));
                throw;
            }
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_register_compiled_popup(dialogmanager_id_t iID, int iPriority,
                                                             std::uint32_t uiTime, bool bDeleteOnClose,
                                                             const char* pcPath)
{
    return Run(
        [=](CEverything& kAll)
        {
            if (!IsID(iID) || IsEmpty(pcPath) || !IsPriority(iPriority))
            {
                return DIALOGMANAGER_ERROR_ARGUMENT;
            }
            if (kAll.IsRegistered(Handle(iID)))
            {
                return DIALOGMANAGER_ERROR_EXISTS;
            }
            RegisterPopup(kAll, iID, iPriority, uiTime, bDeleteOnClose, pcPath);
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_result_t dialogmanager_identify(lv_obj_t* pkObject, dialogmanager_id_t iID)
{
    return Run(
        [=](CEverything& kAll)
        {
            return pkObject == nullptr || !IsID(iID)
                       ? DIALOGMANAGER_ERROR_ARGUMENT
                       : ResultOf(kAll.m_kLVGL.Identify(pkObject, Handle(iID)), DIALOGMANAGER_ERROR_FAILED);
        });
}

// ---- Dialogs ---------------------------------------------------------------------------------------

dialogmanager_result_t dialogmanager_show(dialogmanager_id_t iID, int iAction)
{
    return Run(
        [=](CEverything& kAll)
        {
            if (!IsID(iID) || iAction < DIALOGMANAGER_ACTION_HIDE || iAction > DIALOGMANAGER_ACTION_KEEP)
            {
                return DIALOGMANAGER_ERROR_ARGUMENT;
            }
            kAll.m_kManager.NameFocussed();
            return ResultOf(kAll.m_kManager.CreateDialog(
                                Handle(iID), static_cast<CGUIDialogManager::EOldDialogAction>(iAction)) !=
                                nullptr,
                            DIALOGMANAGER_ERROR_FAILED);
        });
}

dialogmanager_result_t dialogmanager_back(bool bDelete)
{
    return Run(
        [bDelete](CEverything& kAll)
        {
            if (kAll.m_kManager.GetCurrentDialogID() == NO_HANDLE ||
                kAll.m_kManager.GetHistoryStackSize() == 0)
            {
                return DIALOGMANAGER_ERROR_UNKNOWN;
            }
            const eC_UInt uiBefore = kAll.m_kManager.m_uiNOFActivated;
            kAll.m_kManager.Back(bDelete);
            return ResultOf(kAll.m_kManager.m_uiNOFActivated != uiBefore, DIALOGMANAGER_ERROR_FAILED);
        });
}

dialogmanager_result_t dialogmanager_back_to(dialogmanager_id_t iID, bool bDelete)
{
    return Run(
        [=](CEverything& kAll)
        {
            if (!kAll.m_kManager.ContainsDialog(Handle(iID), false))
            {
                return DIALOGMANAGER_ERROR_UNKNOWN;
            }
            const eC_UInt uiBefore = kAll.m_kManager.m_uiNOFActivated;
            kAll.m_kManager.BackToDialog(Handle(iID), bDelete, false);
            return ResultOf(kAll.m_kManager.m_uiNOFActivated != uiBefore, DIALOGMANAGER_ERROR_FAILED);
        });
}

dialogmanager_result_t dialogmanager_clear(std::uint32_t uiKeep, bool bDelete, bool bWithCurrent)
{
    return Run(
        [=](CEverything& kAll)
        {
            kAll.m_kManager.ClearDialogHistory(uiKeep, bDelete, bWithCurrent);
            return DIALOGMANAGER_OK;
        });
}

dialogmanager_id_t dialogmanager_current()
{
    return g_pkEverything != nullptr
               ? static_cast<dialogmanager_id_t>(g_pkEverything->m_kManager.GetCurrentDialogID())
               : 0;
}

std::uint32_t dialogmanager_history_size()
{
    return g_pkEverything != nullptr ? g_pkEverything->m_kManager.GetHistoryStackSize() : 0;
}

dialogmanager_id_t dialogmanager_history(std::uint32_t uiIndex)
{
    return g_pkEverything != nullptr ? g_pkEverything->m_kManager.GetHistory(uiIndex) : 0;
}

// ---- Popups ----------------------------------------------------------------------------------------

dialogmanager_result_t dialogmanager_show_popup(dialogmanager_id_t iID)
{
    return Run(
        [iID](CEverything& kAll)
        {
            eC_UInt uiTime = 0;
            if (!kAll.m_kManager.GetRegisteredPopupDisplayTime(Handle(iID), uiTime))
            {
                return DIALOGMANAGER_ERROR_UNKNOWN;
            }
            kAll.m_kManager.NameFocussed();
            return ResultOf(kAll.m_kManager.ShowPopup(Handle(iID)) != nullptr, DIALOGMANAGER_ERROR_FAILED);
        });
}

dialogmanager_result_t dialogmanager_close_popup(dialogmanager_id_t iID)
{
    return Run([iID](CEverything& kAll)
               { return ResultOf(kAll.m_kManager.ClosePopup(Handle(iID)), DIALOGMANAGER_ERROR_UNKNOWN); });
}

bool dialogmanager_is_popup_shown(dialogmanager_id_t iID)
{
    return g_pkEverything != nullptr && g_pkEverything->m_kManager.IsPopupDisplayed(Handle(iID));
}

dialogmanager_result_t dialogmanager_set_popup_modal(dialogmanager_id_t iID, bool bIsModal)
{
    return Run(
        [=](CEverything& kAll)
        {
            CGUIObject* pkObject = kAll.m_kManager.IsPopupInPopupList(Handle(iID))
                                       ? kAll.m_kRoot.GetObjectByID(Handle(iID), false)
                                       : nullptr;
            CGUIWidget* pkWidget = CGUIWidget::Find(pkObject);
            if (pkWidget == nullptr)
            {
                return DIALOGMANAGER_ERROR_UNKNOWN;
            }
            eC_String kExpected;
            return ResultOf(pkObject->SetAttribute("modal", bIsModal ? "true" : "false", kExpected) ==
                                ATTRIBUTE_SET,
                            DIALOGMANAGER_ERROR_UNKNOWN);
        });
}

// ---- Focus -----------------------------------------------------------------------------------------

dialogmanager_id_t dialogmanager_focus()
{
    return GetID(CGUIEventHandler::GetInstance().GetFocussedObject());
}

dialogmanager_result_t dialogmanager_set_focus(dialogmanager_id_t iID)
{
    return Run(
        [iID](CEverything& kAll)
        {
            const CGUIObject* pkDialog = kAll.m_kManager.GetCurrentDialog();
            CGUIObject* pkObject = pkDialog != nullptr ? pkDialog->GetObjectByID(Handle(iID), true) : nullptr;
            return ResultOf(pkObject != nullptr && pkObject->RequestFocus(), DIALOGMANAGER_ERROR_UNKNOWN);
        });
}

lv_obj_t* dialogmanager_get_object(dialogmanager_id_t iID)
{
    return g_pkEverything != nullptr
               ? g_pkEverything->m_kLVGL.GetNative(g_pkEverything->m_kRoot.GetObjectByID(Handle(iID), false))
               : nullptr;
}
