// SPDX-License-Identifier: MIT
#include "Simulator/Browser/BrowserExports.h"

#include <emscripten.h>
#include <memory>

namespace
{
std::unique_ptr<CBrowserSession> s_pkSession;
}

void RunInBrowser(CSimulatedApplication& kApplication, const OfferedLines_t& kOffered)
{
    s_pkSession = std::make_unique<CBrowserSession>(kApplication, kOffered);
}

const eC_Char* LookInBrowser(CSimulatedSource& kSource)
{
    return s_pkSession->Look(kSource).c_str();
}

extern "C"
{
    EMSCRIPTEN_KEEPALIVE const char* SimulationDescribe()
    {
        return s_pkSession->Describe().c_str();
    }

    EMSCRIPTEN_KEEPALIVE const char* SimulationRun(const char* pcLine)
    {
        return s_pkSession->Run(pcLine).c_str();
    }

    EMSCRIPTEN_KEEPALIVE const char* SimulationAdvance(unsigned uiMilliseconds)
    {
        return s_pkSession->Advance(uiMilliseconds).c_str();
    }

    EMSCRIPTEN_KEEPALIVE const char* SimulationGoTo(unsigned uiPosition)
    {
        return s_pkSession->GoTo(uiPosition).c_str();
    }

    EMSCRIPTEN_KEEPALIVE const char* SimulationRestart()
    {
        return s_pkSession->Restart().c_str();
    }

    EMSCRIPTEN_KEEPALIVE const char* SimulationGetLines()
    {
        return s_pkSession->GetLines().c_str();
    }
}
