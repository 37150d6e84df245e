// SPDX-License-Identifier: MIT
#include "Simulator/Terminal/Terminal.h"

#include "Simulator/ScreenPicture.h"

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
// Function-like macros of the classic interface would replace members of standard classes.
#define NCURSES_NOMACROS 1
#define NCURSES_WIDECHAR 1
#include <ncurses.h>
#include <term.h>
#include <termios.h>
#include <unistd.h>

namespace
{
constexpr int caiFaults[] = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};
constexpr int caiEnds[] = {SIGINT, SIGTERM, SIGHUP};
constexpr short ciFirstPair = 1;
constexpr eC_Int ciWheelLines = 3;
constexpr eC_UInt cuiMostInputs = 50; ///< at a time, so that the screen is shown meanwhile

/** What gives the terminal back without any function that a signal handler must not call. */
struct Restoration_t
{
    termios m_kMode;
    char m_acSequence[256];
    std::size_t m_uiLength;
};

Restoration_t s_kRestoration = {};
volatile std::sig_atomic_t s_iSignal = 0;

void Restore()
{
    const ssize_t iWritten = write(STDOUT_FILENO, s_kRestoration.m_acSequence, s_kRestoration.m_uiLength);
    static_cast<void>(iWritten);
    tcsetattr(STDIN_FILENO, TCSANOW, &s_kRestoration.m_kMode);
}

extern "C" void DieOfSignal(int iSignal)
{
    Restore();
    // The default action was restored when the handler was called.
    raise(iSignal);
}

extern "C" void NoteSignal(int iSignal)
{
    if (s_iSignal != 0)
    {
        Restore();
        _exit(128 + iSignal);
    }
    s_iSignal = iSignal;
}

void AddSequence(const char* pcSequence)
{
    const std::size_t uiLength = pcSequence != nullptr ? std::strlen(pcSequence) : 0;
    if (s_kRestoration.m_uiLength + uiLength < sizeof(s_kRestoration.m_acSequence))
    {
        std::memcpy(s_kRestoration.m_acSequence + s_kRestoration.m_uiLength, pcSequence, uiLength);
        s_kRestoration.m_uiLength += uiLength;
    }
}

void AddCapability(const char* pcName)
{
    // The function takes a text that it does not change, and returns -1 for what is no text.
    const char* const pcSequence = tigetstr(const_cast<char*>(pcName));
    if (reinterpret_cast<std::intptr_t>(pcSequence) > 0)
    {
        AddSequence(pcSequence);
    }
}

/** Bare systems name no language, but their terminals show UTF-8 all the same. */
void ChooseCharacters()
{
    std::setlocale(LC_CTYPE, "");
    const eC_Bool bIsChosen = std::getenv("LC_ALL") != nullptr || std::getenv("LC_CTYPE") != nullptr ||
                              std::getenv("LANG") != nullptr;
    if (!bIsChosen)
    {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
}

/** Characters that only terminals with UTF-8 show, and what stands for them on others. */
wchar_t GetPlain(wchar_t cCharacter)
{
    switch (cCharacter)
    {
    case 0x2500:
        return L'-';
    case 0x2502:
        return L'|';
    case 0x250C:
    case 0x2510:
    case 0x2514:
    case 0x2518:
        return L'+';
    default:
        return L'?';
    }
}

wchar_t Decode(const eC_Char* pcBytes)
{
    const auto ucFirst = static_cast<unsigned char>(*pcBytes);
    if (ucFirst < 0x80)
    {
        return static_cast<wchar_t>(ucFirst);
    }
    unsigned uiCodePoint = ucFirst & (ucFirst < 0xE0 ? 0x1FU : (ucFirst < 0xF0 ? 0xFU : 7U));
    for (++pcBytes; *pcBytes != '\0'; ++pcBytes)
    {
        uiCodePoint = (uiCodePoint << 6U) | (static_cast<unsigned char>(*pcBytes) & 0x3FU);
    }
    return static_cast<wchar_t>(uiCodePoint);
}

std::string Encode(wint_t uiCharacter)
{
    const auto uiCodePoint = static_cast<unsigned>(uiCharacter);
    const auto Tail = [uiCodePoint](unsigned uiShift)
    { return static_cast<char>(0x80U | ((uiCodePoint >> uiShift) & 0x3FU)); };
    if (uiCodePoint < 0x80)
    {
        return {static_cast<char>(uiCodePoint)};
    }
    if (uiCodePoint < 0x800)
    {
        return {static_cast<char>(0xC0U | (uiCodePoint >> 6U)), Tail(0)};
    }
    if (uiCodePoint < 0x10000)
    {
        return {static_cast<char>(0xE0U | (uiCodePoint >> 12U)), Tail(6), Tail(0)};
    }
    return {static_cast<char>(0xF0U | (uiCodePoint >> 18U)), Tail(12), Tail(6), Tail(0)};
}

std::string GetFunctionKey(wint_t uiKey)
{
    switch (static_cast<int>(uiKey))
    {
    case KEY_UP:
        return "ArrowUp";
    case KEY_DOWN:
        return "ArrowDown";
    case KEY_LEFT:
        return "ArrowLeft";
    case KEY_RIGHT:
        return "ArrowRight";
    case KEY_HOME:
        return "Home";
    case KEY_END:
        return "End";
    case KEY_PPAGE:
        return "PageUp";
    case KEY_NPAGE:
        return "PageDown";
    case KEY_BACKSPACE:
        return "Backspace";
    case KEY_DC:
        return "Delete";
    case KEY_ENTER:
        return "Enter";
    case KEY_BTAB:
        return "BackTab";
    default:
        break;
    }
    for (int iKey = 1; iKey <= 12; ++iKey)
    {
        if (static_cast<int>(uiKey) == KEY_F(iKey))
        {
            return "F" + std::to_string(iKey);
        }
    }
    return std::string();
}

std::string GetCharacterKey(wint_t uiCharacter)
{
    switch (uiCharacter)
    {
    case '\t':
        return "Tab";
    case '\r':
    case '\n':
        return "Enter";
    case 0x1B:
        return "Escape";
    case 0x08:
    case 0x7F:
        return "Backspace";
    case 0x14:
        return "Ctrl+T";
    default:
        return uiCharacter < ' ' ? std::string() : Encode(uiCharacter);
    }
}
} // namespace

/** The screen of the terminal, and what was there before. */
class CTerminal::CParts
{
public:
    CParts()
    {
        ChooseCharacters();
        tcgetattr(STDIN_FILENO, &s_kRestoration.m_kMode);
        s_kRestoration.m_uiLength = 0;
        // Before the library does, which leaves handlers alone that are there already.
        CatchSignals();
        m_pkScreen = newterm(nullptr, stdout, stdin);
        if (m_pkScreen == nullptr)
        {
            return;
        }
        set_term(m_pkScreen);
        PrepareRestoration();
        cbreak();
        noecho();
        nonl();
        curs_set(0);
        keypad(stdscr, TRUE);
        set_escdelay(25);
        mouseinterval(0);
        mousemask(BUTTON1_PRESSED | BUTTON4_PRESSED | BUTTON5_PRESSED, nullptr);
        PrepareColours();
    }

    CParts(const CParts&) = delete;
    CParts& operator=(const CParts&) = delete;

    ~CParts()
    {
        if (m_pkScreen != nullptr)
        {
            mousemask(0, nullptr);
            endwin();
            delscreen(m_pkScreen);
        }
        for (std::size_t uiSignal = 0; uiSignal < std::size(m_akBefore); ++uiSignal)
        {
            sigaction(GetHandled(uiSignal), &m_akBefore[uiSignal], nullptr);
        }
    }

    eC_Bool IsUsable() const { return m_pkScreen != nullptr; }

    attr_t GetAttributes(ETextStyle eStyle, short& iPairOUT) const
    {
        const StyleLook_t& kLook = GetStyleLook(eStyle);
        iPairOUT = static_cast<short>(m_bHasColours ? ciFirstPair + eStyle : 0);
        return (kLook.m_bIsBold ? A_BOLD : A_NORMAL) | (kLook.m_bIsUnderlined ? A_UNDERLINE : A_NORMAL) |
               (!m_bHasColours && kLook.m_bIsReversed ? A_REVERSE : A_NORMAL);
    }

private:
    static constexpr std::size_t cuiHandled = std::size(caiFaults) + std::size(caiEnds);

    static int GetHandled(std::size_t uiSignal)
    {
        return uiSignal < std::size(caiFaults) ? caiFaults[uiSignal]
                                               : caiEnds[uiSignal - std::size(caiFaults)];
    }

    static void PrepareRestoration()
    {
        AddSequence("\x1B[?1000l\x1B[?1002l\x1B[?1003l\x1B[?1006l");
        AddCapability("sgr0");
        AddCapability("cnorm");
        AddCapability("rmkx");
        AddCapability("rmcup");
    }

    void CatchSignals()
    {
        s_iSignal = 0;
        // A stack that is used up has no room for the handler.
        stack_t kStack = {};
        kStack.ss_sp = m_acStack;
        kStack.ss_size = sizeof(m_acStack);
        sigaltstack(&kStack, nullptr);
        for (std::size_t uiSignal = 0; uiSignal < cuiHandled; ++uiSignal)
        {
            struct sigaction kAction = {};
            const eC_Bool bIsFault = uiSignal < std::size(caiFaults);
            kAction.sa_handler = bIsFault ? &DieOfSignal : &NoteSignal;
            kAction.sa_flags = bIsFault ? static_cast<int>(SA_RESETHAND | SA_NODEFER | SA_ONSTACK) : 0;
            sigaction(GetHandled(uiSignal), &kAction, &m_akBefore[uiSignal]);
        }
    }

    void PrepareColours()
    {
        m_bHasColours = has_colors() && std::getenv("NO_COLOR") == nullptr;
        if (!m_bHasColours)
        {
            return;
        }
        start_color();
        use_default_colors();
        for (eC_Int iStyle = 0; iStyle < NOF_TEXT_STYLES; ++iStyle)
        {
            const StyleLook_t& kLook = GetStyleLook(static_cast<ETextStyle>(iStyle));
            init_pair(static_cast<short>(ciFirstPair + iStyle), static_cast<short>(kLook.m_iColour),
                      static_cast<short>(kLook.m_iBackground));
        }
    }

    SCREEN* m_pkScreen = nullptr;
    eC_Bool m_bHasColours = false;
    struct sigaction m_akBefore[cuiHandled] = {};
    char m_acStack[65536] = {};
};

CTerminal::CTerminal() : m_pkParts(std::make_unique<CParts>()) {}

CTerminal::~CTerminal() = default;

eC_Bool CTerminal::IsUsable() const
{
    return m_pkParts->IsUsable();
}

eC_Int CTerminal::GetWidth() const
{
    return getmaxx(stdscr);
}

eC_Int CTerminal::GetHeight() const
{
    return getmaxy(stdscr);
}

void CTerminal::Show(const CTextScreen& kScreen)
{
    werase(stdscr);
    for (eC_Int iY = 0; iY < kScreen.GetHeight(); ++iY)
    {
        wmove(stdscr, iY, 0);
        for (eC_Int iX = 0; iX < kScreen.GetWidth(); ++iX)
        {
            const TextCell_t& kCell = kScreen.GetCell(iX, iY);
            if (*kCell.m_acBytes == '\0')
            {
                continue;
            }
            const wchar_t cCharacter = Decode(kCell.m_acBytes);
            const eC_Bool bIsShown = cCharacter < 0x80 || MB_CUR_MAX > 1;
            const wchar_t acText[] = {bIsShown ? cCharacter : GetPlain(cCharacter), L'\0'};
            short iPair = 0;
            const attr_t uiAttributes = m_pkParts->GetAttributes(kCell.m_eStyle, iPair);
            cchar_t kCharacter;
            setcchar(&kCharacter, acText, uiAttributes, iPair, nullptr);
            mvwadd_wch(stdscr, iY, iX, &kCharacter);
        }
    }
    wrefresh(stdscr);
}

TerminalInput_t CTerminal::Read(eC_UInt uiMilliseconds)
{
    TerminalInput_t kInput;
    wtimeout(stdscr, static_cast<int>(uiMilliseconds));
    wint_t uiKey = 0;
    const int iKind = wget_wch(stdscr, &uiKey);
    if (iKind == OK)
    {
        kInput.m_kKey = GetCharacterKey(uiKey);
    }
    else if (iKind == KEY_CODE_YES && uiKey != KEY_MOUSE)
    {
        kInput.m_kKey = GetFunctionKey(uiKey);
    }
    kInput.m_eKind = kInput.m_kKey.empty() ? TerminalInput_t::INPUT_NONE : TerminalInput_t::INPUT_KEY;
    MEVENT kMouse;
    if (iKind == KEY_CODE_YES && uiKey == KEY_MOUSE && getmouse(&kMouse) == OK)
    {
        const eC_Bool bIsClick = (kMouse.bstate & BUTTON1_PRESSED) != 0;
        kInput.m_eKind = bIsClick ? TerminalInput_t::INPUT_CLICK : TerminalInput_t::INPUT_WHEEL;
        kInput.m_iX = kMouse.x;
        kInput.m_iY = kMouse.y;
        kInput.m_iLines = (kMouse.bstate & BUTTON4_PRESSED) != 0 ? -ciWheelLines : ciWheelLines;
    }
    return kInput;
}

int CTerminal::GetSignal()
{
    return s_iSignal;
}

eC_Bool CTerminal::IsThere()
{
    return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

void TakeTerminalInput(CTerminal& kTerminal, eC_UInt uiMilliseconds,
                       const std::function<eC_Bool(const TerminalInput_t&)>& fnTake)
{
    TerminalInput_t kInput = kTerminal.Read(uiMilliseconds);
    for (eC_UInt uiInput = 1; kInput.m_eKind != TerminalInput_t::INPUT_NONE && fnTake(kInput); ++uiInput)
    {
        if (uiInput > cuiMostInputs)
        {
            return;
        }
        kInput = kTerminal.Read(0);
    }
}
