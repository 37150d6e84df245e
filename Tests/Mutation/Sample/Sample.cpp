#include "Sample.h"

const char* g_pcLogged = "";

void Log(const char* pcLevel, const char* pcMessage)
{
    g_pcLogged = pcMessage;
    if (pcLevel[0] == 'E')
    {
        g_pcLogged = "an error";
    }
}

int SumUpTo(int iLast)
{
    int iSum = 0;
    for (int iNumber = 1; iNumber <= iLast; ++iNumber)
    {
        iSum += iNumber;
    }
    return iSum;
}

int Difference(int iFrom, int iTo)
{
    return iTo - iFrom;
}

const char* NameOf(Colour_t eColour)
{
    switch (eColour)
    {
    case RED:
        return "red";
    case GREEN:
        GUILOG(GUI_TRACE_DEBUG, "green was asked for");
        break;
    }
    return "green";
}

int NobodyTestsThis(int iNumber)
{
    return Difference(iNumber, 2);
}
