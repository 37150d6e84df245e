// Prints the file named, which is there only if the program was told where it was built.
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
