// SPDX-License-Identifier: MIT
#include "Flow/Check/CheckCommand.h"
#include "Flow/Check/FlowSubject.h"
#include "Flow/FlowReader.h"
#include "Flow/Programs/HeapCount.h"

#include <cstdio>
#include <exception>

namespace
{
int Check(const std::vector<std::string>& kArguments)
{
    CheckOptions_t kOptions;
    kOptions.m_pfnHeap = &GetHeapInUse;
    std::string kError;
    if (!ReadCheckOptions(kArguments, kOptions, kError))
    {
        std::fprintf(stderr, "dialogcheck: %s; usage: dialogcheck %s <flow>\n", kError.c_str(),
                     cpcCheckOptions);
        return CHECK_WRONG_USE;
    }
    if (kOptions.m_kFile.empty())
    {
        std::fprintf(stderr, "usage: dialogcheck %s <flow>\n", cpcCheckOptions);
        return CHECK_WRONG_USE;
    }
    const std::shared_ptr<const FlowModel_t> pkFlow = ReadFlow(kOptions.m_kFile, kError);
    if (pkFlow == nullptr)
    {
        std::fprintf(stderr, "%s\n", kError.c_str());
        return CHECK_WRONG_USE;
    }
    CFlowApplication kApplication(pkFlow);
    CFlowSubject kSubject(kApplication);
    return RunCheck(kSubject, kOptions);
}
} // namespace

int main(int iNOFArguments, char* apcArguments[])
{
    try
    {
        return Check(std::vector<std::string>(apcArguments + 1, apcArguments + iNOFArguments));
    }
    catch (const std::exception& kException)
    {
        std::fprintf(stderr, "dialogcheck: %s\n", kException.what());
        return CHECK_WRONG_USE;
    }
}
