// Prints a file, which it finds only if it was compiled with the right directory.
#include <cstdio>
#include <cstring>

int main(int iCount, char** ppcArguments)
{
    if (iCount != 2 || std::strcmp(__FILE__, "Main.cpp") != 0)
        return 1;
    char acPath[4096];
    std::snprintf(acPath, sizeof acPath, "%s/%s", SAMPLE_DIRECTORY, ppcArguments[1]);
    std::FILE* pkFile = std::fopen(acPath, "r");
    if (!pkFile)
        return 1;
    for (int iCharacter = std::fgetc(pkFile); iCharacter != EOF; iCharacter = std::fgetc(pkFile))
        std::putchar(iCharacter);
    std::fclose(pkFile);
    return 0;
}
