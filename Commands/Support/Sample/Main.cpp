// Prints a file, which it finds only if it was compiled with the right directory.
#include <cstdio>
#include <cstring>

int main(int iCount, char**)
{
    if (iCount != 1 || std::strcmp(__FILE__, "Main.cpp") != 0)
        return 1;
    std::FILE* pkFile = std::fopen(SAMPLE_DIRECTORY "/Examples/CoffeeMachine/Tour.scenario", "r");
    if (!pkFile)
        return 1;
    for (int iCharacter = std::fgetc(pkFile); iCharacter != EOF; iCharacter = std::fgetc(pkFile))
        std::putchar(iCharacter);
    std::fclose(pkFile);
    return 0;
}
