// SPDX-License-Identifier: MIT
// One trace entry of each kind that the library logs.

#include "Benchmarks/Workload.h"
#include "Core/GUITrace.h"

#include <cstring>

namespace
{
const int ciID = 123456;
const unsigned cuiMilliseconds = 2500;
const eC_String ckPath = "Dialogs/Settings/Language.xml";

/** A text and nothing else. */
struct CLogText
{
    void Do()
    {
        GUILOG(GUI_TRACE_DEBUG, "CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n");
    }
};

/** A text with a number in it. */
struct CLogNumber
{
    void Do()
    {
        GUILOG(GUI_TRACE_DEBUG, eC_String("CGUIDialogManager::DeleteDialog: removing dialog with ID ") +
                                    eC_String(ciID) + ".\n");
    }
};

/** A text with three numbers in it. */
struct CLogThreeNumbers
{
    void Do()
    {
        GUILOG(GUI_TRACE_DEBUG, eC_String("CGUIDialogManager::UpdateActivePopups: Popup with id ") +
                                    eC_String(ciID) + " with priority " + eC_String(9) +
                                    " is activated with a display time of " + eC_String(cuiMilliseconds) +
                                    " ms.\n");
    }
};

/** A path and a number. */
struct CLogPath
{
    void Do()
    {
        GUILOGMESSAGE(eC_String("Time for loading ") + ckPath + ": " + eC_String(cuiMilliseconds) + ".\n");
    }
};

/** A text with a number, logged with its place in the source. */
struct CLogError
{
    void Do()
    {
        GUILOG(GUI_TRACE_ERROR,
               eC_String("CGUIDialogManager::RegisterDialogDefinition: Dialog or popup with id ") +
                   eC_String(ciID) + " already registered.\n");
    }
};

/** The floor: a line that is composed in a buffer and copied to a ring. */
class CLineByHand
{
protected:
    void Begin() { m_uiLength = 0; }

    void Put(const char* pcText)
    {
        const std::size_t uiLength = std::strlen(pcText);
        std::memcpy(m_acLine + m_uiLength, pcText, uiLength);
        m_uiLength += uiLength;
    }

    void Put(unsigned uiNumber)
    {
        char acDigits[10];
        std::size_t uiDigits = 0;
        do
        {
            acDigits[uiDigits++] = static_cast<char>('0' + uiNumber % 10);
            uiNumber /= 10;
        } while (uiNumber != 0);
        while (uiDigits > 0)
        {
            m_acLine[m_uiLength++] = acDigits[--uiDigits];
        }
    }

    void End()
    {
        if (m_uiNext + m_uiLength > sizeof m_acRing)
        {
            m_uiNext = 0;
        }
        std::memcpy(m_acRing + m_uiNext, m_acLine, m_uiLength);
        m_uiNext += m_uiLength;
        Keep(m_acRing);
    }

private:
    char m_acLine[256];
    char m_acRing[16384];
    std::size_t m_uiLength = 0;
    std::size_t m_uiNext = 0;
};

struct CTextByHand : private CLineByHand
{
    void Do()
    {
        Begin();
        Put("DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n");
        End();
    }
};

struct CNumberByHand : private CLineByHand
{
    void Do()
    {
        Begin();
        Put("DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID ");
        Put(ciID);
        Put(".\n");
        End();
    }
};

struct CThreeNumbersByHand : private CLineByHand
{
    void Do()
    {
        Begin();
        Put("DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id ");
        Put(ciID);
        Put(" with priority ");
        Put(9U);
        Put(" is activated with a display time of ");
        Put(cuiMilliseconds);
        Put(" ms.\n");
        End();
    }
};

struct CPathByHand : private CLineByHand
{
    void Do()
    {
        Begin();
        Put("INFO: Time for loading ");
        Put(ckPath.GetText());
        Put(": ");
        Put(cuiMilliseconds);
        Put(".\n");
        End();
    }
};

struct CErrorByHand : private CLineByHand
{
    void Do()
    {
        Begin();
        Put("ERROR: CGUIDialogManager::RegisterDialogDefinition: Dialog or popup with id ");
        Put(ciID);
        Put(" already registered. (");
        Put(__FILE__);
        Put(":");
        Put(static_cast<unsigned>(__LINE__));
        Put(")\n");
        End();
    }
};
} // namespace

void AddTraceComparisons(Comparisons_t& kComparisons)
{
    kComparisons.push_back({"log/text", LOGS_ONLY, 1, MakerOf<CLogText>(), MakerOf<CTextByHand>()});
    kComparisons.push_back({"log/number", LOGS_ONLY, 1, MakerOf<CLogNumber>(), MakerOf<CNumberByHand>()});
    kComparisons.push_back(
        {"log/three-numbers", LOGS_ONLY, 1, MakerOf<CLogThreeNumbers>(), MakerOf<CThreeNumbersByHand>()});
    kComparisons.push_back({"log/path", LOGS_ONLY, 1, MakerOf<CLogPath>(), MakerOf<CPathByHand>()});
    kComparisons.push_back({"log/error", LOGS_ONLY, 1, MakerOf<CLogError>(), MakerOf<CErrorByHand>()});
}
