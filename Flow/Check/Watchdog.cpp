// SPDX-License-Identifier: MIT
#include "Flow/Check/Watchdog.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <sys/time.h>
#include <unistd.h>

namespace
{
constexpr std::size_t cuiMostText = 1U << 16U;

// What the signal's handler reads. It may interrupt anything, so it allocates nothing.
eC_Char s_acLines[cuiMostText];
std::size_t s_uiLines = 0;
eC_Bool s_bWritesJSON = false;
volatile std::sig_atomic_t s_iMost = 0;    // seconds; 0: there is no watchdog
volatile std::sig_atomic_t s_iPassed = -1; // seconds of the operation; -1: there is none

void Write(const eC_Char* pcText, std::size_t uiLength)
{
    while (uiLength != 0)
    {
        const ssize_t iWritten = write(STDOUT_FILENO, pcText, uiLength);
        if (iWritten <= 0)
        {
            return;
        }
        pcText += iWritten;
        uiLength -= static_cast<std::size_t>(iWritten);
    }
}

void Write(const eC_Char* pcText)
{
    Write(pcText, std::strlen(pcText));
}

void WriteReport()
{
    Write(s_bWritesJSON ? "{\"complete\": false, \"exact\": false, \"properties\": [\n{\"property\": \"P8\", "
                          "\"violations\": 1, \"findings\": [{\"text\": \"an operation does not end\", "
                          "\"scenario\": ["
                        : "P8  every stepwise way back ends: 1 violation, hangs\n    violation: an operation "
                          "does not end\n");
    const eC_Char* pcLine = s_acLines;
    while (pcLine < s_acLines + s_uiLines)
    {
        const auto uiLength = static_cast<std::size_t>(std::strchr(pcLine, '\n') - pcLine);
        Write(!s_bWritesJSON ? "      > " : pcLine == s_acLines ? "\"" : ", \"");
        Write(pcLine, uiLength);
        Write(s_bWritesJSON ? "\"" : "\n");
        pcLine += uiLength + 1;
    }
    Write(s_bWritesJSON ? "]}]}\n]}\n" : "");
}

extern "C" void OnSecond(int /*iSignal*/)
{
    if (s_iPassed >= 0)
    {
        s_iPassed = s_iPassed + 1;
        if (s_iPassed > s_iMost)
        {
            WriteReport();
            _exit(1);
        }
    }
}

void SetTimer(eC_UInt uiSeconds)
{
    itimerval kInterval{};
    kInterval.it_interval.tv_sec = uiSeconds;
    kInterval.it_value.tv_sec = uiSeconds;
    setitimer(ITIMER_PROF, &kInterval, nullptr);
}
} // namespace

CWatchdog::CWatchdog(eC_UInt uiSeconds, eC_Bool bWritesJSON)
{
    s_iMost = static_cast<std::sig_atomic_t>(uiSeconds);
    s_bWritesJSON = bWritesJSON;
    s_iPassed = -1;
    struct sigaction kAction = {};
    kAction.sa_handler = &OnSecond;
    kAction.sa_flags = SA_RESTART;
    sigaction(SIGPROF, &kAction, nullptr);
    SetTimer(1);
}

CWatchdog::~CWatchdog()
{
    SetTimer(0);
    s_iMost = 0;
}

CWatchdog::COperation::COperation(const eC_Char* pcLine)
{
    if (s_iMost == 0)
    {
        return;
    }
    s_uiLines = std::strcmp(pcLine, "power-on") == 0 ? 0 : s_uiLines;
    const std::size_t uiLength = std::strlen(pcLine);
    if (s_uiLines + uiLength + 1 < cuiMostText)
    {
        std::copy_n(pcLine, uiLength, s_acLines + s_uiLines);
        s_acLines[s_uiLines + uiLength] = '\n';
        s_uiLines += uiLength + 1;
    }
    s_iPassed = 0;
}

CWatchdog::COperation::~COperation()
{
    s_iPassed = -1;
}
