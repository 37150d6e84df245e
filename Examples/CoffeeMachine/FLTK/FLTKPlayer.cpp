// SPDX-License-Identifier: MIT
#include "FLTK/FLTKPlayer.h"

#include <FL/Fl.H>
#include <FL/fl_draw.H>
#include <FL/x.H>

#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <utility>

namespace
{
constexpr double cdPause = 0.02; ///< seconds
constexpr std::chrono::seconds ckLongestWait(60);

constexpr const char* cpcNextKey = "Tab";
constexpr const char* cpcOKKey = "Return";
constexpr const char* cpcBackKey = "Escape";
constexpr const char* cpcHomeKey = "Home";
constexpr const char* cpcServiceKey = "F12";

unsigned g_uiReleases = 0; ///< of mouse buttons
unsigned g_uiKeysUp = 0;

const char* NameOfKey(EKey eKey)
{
    switch (eKey)
    {
    case KEY_NEXT:
        return cpcNextKey;
    case KEY_OK:
        return cpcOKKey;
    case KEY_BACK:
        return cpcBackKey;
    case KEY_HOME:
        return cpcHomeKey;
    default:
        return cpcServiceKey;
    }
}
} // namespace

CFLTKPlayer::CFLTKPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                         LineWriter_t kWriter, CMachineWindow& kWindow, CGUIFLTK& kFLTK, CPresses& kPresses,
                         const std::string& kPictures)
    : CDrawnPlayer(kCoffeeMachine, kClock, kEventLog, std::move(kWriter), kPresses,
                   [&kWindow, kPictures](const std::string& kName)
                   { return WritePicture(TakePicture(kWindow), kPictures, kName); }),
      m_kFLTK(kFLTK),
      m_kNumber(std::to_string(fl_xid(&kWindow)))
{
    // Where there is no window manager, nobody else gives the window the keys.
    Operate("windowfocus --sync " + m_kNumber + " mousemove --window " + m_kNumber + " 1 1 click 1",
            FL_RELEASE);
}

int CFLTKPlayer::CountEvents(int iEvent, Fl_Window* pkWindow)
{
    const int iIsUsed = Fl::handle_(iEvent, pkWindow);
    g_uiReleases += iEvent == FL_RELEASE ? 1 : 0;
    g_uiKeysUp += iEvent == FL_KEYUP ? 1 : 0;
    return iIsUsed;
}

void CFLTKPlayer::Operate(const std::string& kCommand, int iLastEvent)
{
    const unsigned& uiCount = iLastEvent == FL_RELEASE ? g_uiReleases : g_uiKeysUp;
    const unsigned uiBefore = uiCount;
    std::FILE* pkTool = popen(("xdotool " + kCommand).c_str(), "w");
    const int iStatus = pkTool != nullptr ? pclose(pkTool) : -1;
    const auto kEnd = std::chrono::steady_clock::now() + ckLongestWait;
    while (iStatus == 0 && uiCount == uiBefore && std::chrono::steady_clock::now() < kEnd)
    {
        Fl::wait(cdPause);
    }
    if (uiCount == uiBefore)
    {
        throw std::runtime_error("xdotool " + kCommand +
                                 (iStatus != 0 ? " fails" : " has no effect; is the window covered?"));
    }
}

void CFLTKPlayer::Draw()
{
    // What the display sends comes in a turn, and is drawn in the next one.
    Fl::check();
    Fl::check();
    Fl::flush();
}

eC_Bool CFLTKPlayer::HasNative(const CGUIObject& kObject)
{
    return m_kFLTK.GetNative(&kObject) != nullptr;
}

void CFLTKPlayer::TouchNative(const CGUIObject& kObject)
{
    const Fl_Widget& kNative = *m_kFLTK.GetNative(&kObject);
    Operate("mousemove --window " + m_kNumber + " " + std::to_string(kNative.x() + kNative.w() / 2) + " " +
                std::to_string(kNative.y() + kNative.h() / 2) + " click 1",
            FL_RELEASE);
}

void CFLTKPlayer::PressNative(EKey eKey)
{
    Operate(std::string("key ") + NameOfKey(eKey), FL_KEYUP);
}

Picture_t CFLTKPlayer::TakePicture(CMachineWindow& kWindow)
{
    Picture_t kPicture = {kWindow.w(), kWindow.h(), {}};
    kPicture.m_kBytes.resize(static_cast<std::size_t>(kWindow.w()) * static_cast<std::size_t>(kWindow.h()) *
                             3);
    kWindow.make_current();
    fl_read_image(kPicture.m_kBytes.data(), 0, 0, kWindow.w(), kWindow.h());
    return kPicture;
}
