// SPDX-License-Identifier: MIT
// The tour as WebAssembly, without a page: node runs it. The scenario comes from standard input, the
// transcript goes to standard output, and the dialogs are compiled in.

#include "Core/GUIFactoryManager.h"
#include "Dialogs.h"
#include "Loader/GUIDialogROMReader.h"
#include "Tour/TourPlayer.h"

#include <cstdio>
#include <string>

int main()
{
    std::string kScript;
    char acBlock[4096];
    std::size_t uiRead = 0;
    while ((uiRead = std::fread(acBlock, 1, sizeof(acBlock), stdin)) > 0)
    {
        kScript.append(acBlock, uiRead);
    }

    CGUIDialogROMReader kReader(ckDialogs);
    CGUIFactoryManager::CreateInstance().RegisterReaderForFileType("xml", &kReader);
    const std::string kError =
        PlayTour("standard input", kScript, [](const std::string& kLine) { std::puts(kLine.c_str()); });
    CGUIFactoryManager::DestroyInstance();

    if (!kError.empty())
    {
        std::fprintf(stderr, "CoffeeMachineTour: %s\n", kError.c_str());
    }
    return kError.empty() ? 0 : 1;
}
