// SPDX-License-Identifier: MIT
// The coffee machine on LVGL in a window, for mouse and keys, in real time.
#include "Drawn/DrawnPlayer.h"
#include "LVGL/BoardPicture.h"
#include "LVGL/Look.h"
#include "Loader/GUIDialogXMLReader.h"

#include <SDL.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace
{
constexpr int ciWidth = 480;
constexpr int ciHeight = 320;
constexpr int ciBits = 16;
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;
constexpr unsigned cuiPause = 10;       ///< milliseconds between two looks at the events
constexpr unsigned cuiSeen = 50;        ///< milliseconds; longer than LVGL waits between two looks at a key
constexpr unsigned cuiUntilDrawn = 200; ///< milliseconds
constexpr unsigned cuiWithPicture = 120000; ///< milliseconds

constexpr const char* cpcHelp =
    "Usage: CoffeeMachineLVGLWindow [FOLDER NAME]\n"
    "\n"
    "Opens the coffee machine on LVGL in a window. Click, or press Tab, arrows and Return, Escape (back), h "
    "(home),\n"
    "s (service), and q to close it.\n"
    "\n"
    "With two arguments it writes what was shown last to a picture of that name in a folder, and closes "
    "after "
    "two\n"
    "minutes. Time passes only with keys and clicks then, so that a slow computer gives the same picture.\n";

int Fail(const char* pcMessage, int iStatus = ciFailure)
{
    std::fprintf(stderr, "CoffeeMachineLVGLWindow: %s\n", pcMessage);
    return iStatus;
}

/** A window that shows the pixels of the board. */
class CWindow
{
public:
    explicit CWindow(const CBoard& kBoard)
        : m_pkWindow(SDL_CreateWindow("Coffee machine", SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED,
                                      ciWidth, ciHeight, 0)),
          m_pkPixels(SDL_CreateRGBSurfaceWithFormatFrom(const_cast<unsigned short*>(kBoard.GetPixels()),
                                                        ciWidth, ciHeight, ciBits, ciWidth * 2,
                                                        SDL_PIXELFORMAT_RGB565))
    {
    }
    CWindow(const CWindow&) = delete;
    CWindow& operator=(const CWindow&) = delete;
    ~CWindow()
    {
        SDL_FreeSurface(m_pkPixels);
        SDL_DestroyWindow(m_pkWindow);
    }

    bool IsOpen() const { return m_pkWindow != nullptr && m_pkPixels != nullptr; }

    void Show()
    {
        SDL_BlitSurface(m_pkPixels, nullptr, SDL_GetWindowSurface(m_pkWindow), nullptr);
        SDL_UpdateWindowSurface(m_pkWindow);
    }

private:
    SDL_Window* m_pkWindow;
    SDL_Surface* m_pkPixels;
};

/** Passes on what the user does. */
class CUser
{
public:
    CUser(CBoard& kBoard, CController& kController) : m_kBoard(kBoard), m_kController(kController) {}

    /** @return false when the window is closed */
    bool Handle(const SDL_Event& kEvent)
    {
        switch (kEvent.type)
        {
        case SDL_QUIT:
            return false;
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            m_kBoard.SetFinger(kEvent.button.x, kEvent.button.y, kEvent.type == SDL_MOUSEBUTTONDOWN);
            break;
        case SDL_MOUSEMOTION:
            m_kBoard.SetFinger(kEvent.motion.x, kEvent.motion.y,
                               (kEvent.motion.state & SDL_BUTTON_LMASK) != 0);
            break;
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            if (kEvent.key.repeat != 0)
            {
                return true; // LVGL repeats by itself
            }
            PressKey(kEvent.key.keysym.sym, kEvent.type == SDL_KEYDOWN);
            break;
        default:
            return true;
        }
        // A short press must not be over before LVGL has looked.
        m_kBoard.Run(kEvent.type == SDL_MOUSEMOTION ? 0 : cuiSeen);
        return kEvent.type != SDL_KEYDOWN || kEvent.key.keysym.sym != SDLK_q;
    }

private:
    void PressKey(SDL_Keycode iKey, bool bIsPressed)
    {
        switch (iKey)
        {
        case SDLK_TAB:
        case SDLK_RIGHT:
        case SDLK_DOWN:
            m_kBoard.SetKey(LV_KEY_NEXT, bIsPressed);
            break;
        case SDLK_LEFT:
        case SDLK_UP:
            m_kBoard.SetKey(LV_KEY_PREV, bIsPressed);
            break;
        case SDLK_RETURN:
        case SDLK_SPACE:
            m_kBoard.SetKey(LV_KEY_ENTER, bIsPressed);
            break;
        case SDLK_ESCAPE:
            PressDeviceKey(KEY_BACK, bIsPressed);
            break;
        case SDLK_h:
            PressDeviceKey(KEY_HOME, bIsPressed);
            break;
        case SDLK_s:
            PressDeviceKey(KEY_SERVICE, bIsPressed);
            break;
        default:
            break;
        }
    }

    void PressDeviceKey(EKey eKey, bool bIsPressed)
    {
        if (bIsPressed)
        {
            m_kController.PressKey(eKey);
        }
    }

    CBoard& m_kBoard;
    CController& m_kController;
};

/** Runs until the window is closed. @param bIsForPicture whether time passes with events alone */
void Run(CBoard& kBoard, CUser& kUser, CWindow& kWindow, bool bIsForPicture)
{
    kBoard.Run(cuiUntilDrawn);
    const unsigned uiStart = SDL_GetTicks();
    unsigned uiShown = uiStart;
    bool bIsOpen = true;
    while (bIsOpen && (!bIsForPicture || uiShown - uiStart < cuiWithPicture))
    {
        SDL_Event kEvent;
        while (bIsOpen && SDL_PollEvent(&kEvent) != 0)
        {
            bIsOpen = kUser.Handle(kEvent);
        }
        SDL_Delay(cuiPause);
        const unsigned uiNow = SDL_GetTicks();
        kBoard.Run(bIsForPicture ? 0 : uiNow - uiShown);
        uiShown = uiNow;
        kWindow.Show();
    }
    kBoard.Run(cuiUntilDrawn);
}

/** @param ppcPicture folder and name of the picture that is written, null: none */
int OpenWindow(char** ppcPicture)
{
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CBoard kBoard(ciWidth, ciHeight);
    CLook kLook(ckSizesFor480x320);
    CRunningCoffeeMachine kCoffeeMachine(kReader);
    CPresses kPresses(kCoffeeMachine.GetController());
    CGUILVGL kLVGL(kLook.GetOptions(), kPresses);
    kLook.AddTo(kLVGL);
    CUser kUser(kBoard, kCoffeeMachine.GetController());
    CWindow kWindow(kBoard);
    if (!kWindow.IsOpen() || !kCoffeeMachine.PowerOn())
    {
        return Fail(kWindow.IsOpen() ? "the coffee machine does not start" : SDL_GetError());
    }
    Run(kBoard, kUser, kWindow, ppcPicture != nullptr);
    if (ppcPicture == nullptr)
    {
        return 0;
    }
    const std::string kError = WritePicture(TakePicture(kBoard), ppcPicture[0], ppcPicture[1]);
    return kError.empty() ? 0 : Fail(kError.c_str());
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments == 2 && std::strcmp(ppcArguments[1], "--help") == 0)
    {
        std::fputs(cpcHelp, stdout);
        return 0;
    }
    if (iArguments != 1 && iArguments != 3)
    {
        return Fail("expected no arguments, or the folder and the name of a picture; see --help",
                    ciWrongUsage);
    }
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
    {
        return Fail(SDL_GetError());
    }
    const int iStatus = OpenWindow(iArguments == 3 ? ppcArguments + 1 : nullptr);
    SDL_Quit();
    return iStatus;
}
