// SPDX-License-Identifier: MIT
#include "Mutants.h"

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

bool* MapReached()
{
    static bool s_abReached[cuiMaxMutants];
    const char* pcPath = std::getenv("MUTANTS_REACHED");
    if (pcPath == nullptr)
    {
        return s_abReached;
    }
    const int iFile = open((std::string(pcPath) + ".map").c_str(), O_RDWR | O_CREAT, 0600);
    void* pMapped = iFile >= 0 && ftruncate(iFile, cuiMaxMutants) == 0
                        ? mmap(nullptr, cuiMaxMutants, PROT_READ | PROT_WRITE, MAP_SHARED, iFile, 0)
                        : MAP_FAILED;
    if (pMapped == MAP_FAILED)
    {
        std::abort();
    }
    close(iFile);
    return static_cast<bool*>(pMapped);
}
