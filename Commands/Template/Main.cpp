// MyApplication in a terminal: a letter and the return key stand for a key of the device.

#include "Application/Application.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"

#include <cstdio>

namespace
{
/** Prints errors only. Without this sink every step is logged to standard error. */
void WriteErrors(void*, const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                 const eC_String& kLine)
{
    if (kPrefix == "ERROR: ")
    {
        std::fputs(FormatTraceEntry(kPrefix, kMessage, kFile, kLine).GetText(), stderr);
    }
}

/** @return false if the letter means quit */
bool PressKey(CApplication& kApplication, char cLetter)
{
    switch (cLetter)
    {
    case 'n':
        kApplication.PressKey(KEY_NEXT);
        break;
    case 'o':
        kApplication.PressKey(KEY_OK);
        break;
    case 'b':
        kApplication.PressKey(KEY_BACK);
        break;
    default:
        break;
    }
    return cLetter != 'q';
}
} // namespace

int main()
{
    CGUITraceFunction kErrors(&WriteErrors, nullptr);
    CGUITrace::GetInstance().SetSink(&kErrors);

    CApplication kApplication;
    if (!kApplication.Start())
    {
        std::fputs("MyApplication: the first dialog cannot be shown\n", stderr);
        return 1;
    }

    char acLine[80];
    do
    {
        // A device waits for a key at most as long as GetTimeUntilNextCallback says.
        GETTIMER.ProcessCallbacks();
        std::printf("\n%sn: next, o: press, b: back, q: quit? ", kApplication.GetScreen().c_str());
    } while (std::fgets(acLine, sizeof(acLine), stdin) != nullptr && PressKey(kApplication, acLine[0]));
    return 0;
}
