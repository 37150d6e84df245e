// SPDX-License-Identifier: MIT
#include "LVGL/LVGLPlayer.h"

#include "Core/Control/GUI.h"
#include "LVGL/Picture.h"

#include <cerrno>
#include <cstring>
#include <utility>

namespace
{
constexpr unsigned cuiUntilDrawn = 100; ///< milliseconds
} // namespace

CLVGLPlayer::CLVGLPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                         LineWriter_t kWriter, CBoard& kBoard, CGUILVGL& kLVGL, CPresses& kPresses,
                         std::string kPictures)
    : CSimulationPlayer(kCoffeeMachine, kClock, kEventLog, std::move(kWriter)),
      m_kController(kCoffeeMachine.GetController()),
      m_kBoard(kBoard),
      m_kLVGL(kLVGL),
      m_kPresses(kPresses),
      m_kPictures(std::move(kPictures))
{
    AddCommand("touch <object>", [this](const CScenarioArguments& kArguments)
               { return std::string(Touch(kArguments.GetHandle(0)) ? "" : "no effect"); });
    AddCommand("key <key>",
               [this](const CScenarioArguments& kArguments)
               {
                   const eC_UInt uiKey = kArguments.GetChoice(0, {"next", "ok", "back", "home", "service"});
                   PressKey(static_cast<EKey>(uiKey));
                   return std::string();
               });
    AddCommand("picture <name>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kBoard.Run(cuiUntilDrawn);
                   const std::string kPath = m_kPictures + "/" + kArguments.GetText(0) + ".png";
                   return WritePicture(m_kBoard, kPath)
                              ? std::string()
                              : "cannot write " + kPath + ": " + std::strerror(errno);
               });
}

lv_obj_t* CLVGLPlayer::FindButton(ObjectHandle_t eButton) const
{
    // Several dialogs have a button of that identifier: the topmost one that is shown.
    lv_obj_t* pkFound = nullptr;
    for (const CGUIObject* pkWindow = CGUI::GetInstance().GetFirstChild(); pkWindow != nullptr;
         pkWindow = pkWindow->GetNextSibling())
    {
        const CGUIObject* pkButton = pkWindow->GetObjectByID(eButton, true);
        pkFound = pkButton != nullptr && m_kLVGL.GetNative(pkButton) != nullptr ? m_kLVGL.GetNative(pkButton)
                                                                                : pkFound;
    }
    return pkFound;
}

eC_Bool CLVGLPlayer::Touch(ObjectHandle_t eButton)
{
    m_kBoard.Run(cuiUntilDrawn);
    const lv_obj_t* pkButton = FindButton(eButton);
    if (pkButton == nullptr)
    {
        return false;
    }
    lv_area_t kArea;
    lv_obj_get_coords(pkButton, &kArea);
    m_kPresses.m_bIsPressed = false;
    m_kBoard.Touch((kArea.x1 + kArea.x2) / 2, (kArea.y1 + kArea.y2) / 2);
    return m_kPresses.m_bIsPressed;
}

void CLVGLPlayer::PressKey(EKey eKey)
{
    m_kBoard.Run(cuiUntilDrawn);
    switch (eKey)
    {
    case KEY_NEXT:
        m_kBoard.PressKey(LV_KEY_NEXT);
        break;
    case KEY_OK:
        m_kBoard.PressKey(LV_KEY_ENTER);
        break;
    default:
        // These keys are not for what is on the display.
        m_kController.PressKey(eKey);
        break;
    }
}

std::string CLVGLPlayer::GetState()
{
    m_kBoard.Run(cuiUntilDrawn);
    return CSimulationPlayer::GetState();
}
