// SPDX-License-Identifier: MIT
// What a page needs beyond the functions of BrowserExports.h to run a flow. The page has put its files into
// the file system of this program.

#include "Flow/FlowReader.h"
#include "Flow/FlowReload.h"
#include "Simulator/Browser/BrowserExports.h"

#include <emscripten.h>

namespace
{
std::unique_ptr<CFlowApplication> s_pkApplication;
std::unique_ptr<CFlowReload> s_pkReload;
std::string s_kMistake;
} // namespace

extern "C"
{
    /** Reads a flow and begins to run it; once in a program. @return the mistake in it, empty if it runs */
    EMSCRIPTEN_KEEPALIVE const char* FlowOpen(const char* pcFile)
    {
        s_kMistake.clear();
        const std::shared_ptr<const FlowModel_t> pkFlow = ReadFlow(pcFile, s_kMistake);
        if (pkFlow != nullptr)
        {
            s_pkApplication = std::make_unique<CFlowApplication>(pkFlow);
            s_pkReload = std::make_unique<CFlowReload>(*s_pkApplication);
            RunInBrowser(*s_pkApplication, {nullptr, 0});
        }
        return s_kMistake.c_str();
    }

    /** Looks at the files again. @return the answer of CBrowserSession::Look */
    EMSCRIPTEN_KEEPALIVE const char* FlowLook()
    {
        return LookInBrowser(*s_pkReload);
    }
}
