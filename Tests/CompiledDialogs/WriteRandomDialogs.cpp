// SPDX-License-Identifier: MIT
// Writes well-formed but otherwise arbitrary dialog description files: WriteRandomDialogs <directory>
// <number>. The same arguments give the same files. Some files use classes, handles and attributes that the
// test program does not have, or values that it refuses.

#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <random>
#include <string>

namespace
{
class CRandomDialog
{
public:
    explicit CRandomDialog(unsigned int uiSeed) : m_kRandom(uiSeed) {}

    std::string Write()
    {
        m_uiEnough = 1 + Pick(60);
        m_uiMistakesIn = Pick(3) == 0 ? 1 + Pick(30) : 0;
        std::string kText = Pick(4) == 0 ? "\xEF\xBB\xBF" : "";
        kText += Pick(2) == 0 ? "<?xml version='1.0'?>" + WriteGap() : "";
        return kText + WriteElement(1) + WriteGap();
    }

private:
    using Choices_t = std::initializer_list<const char*>;

    unsigned int Pick(unsigned int uiChoices) { return static_cast<unsigned int>(m_kRandom() % uiChoices); }

    std::string PickOf(Choices_t kChoices)
    {
        return kChoices.begin()[Pick(static_cast<unsigned int>(kChoices.size()))];
    }

    /** @return true once, in a file that is meant to have a mistake */
    bool IsMistakeDue()
    {
        m_uiMistakesIn -= m_uiMistakesIn > 0 ? 1 : 0;
        const bool bIsDue = m_uiMistakesIn == 1;
        m_uiMistakesIn -= bIsDue ? 1 : 0;
        return bIsDue;
    }

    std::string WriteGap()
    {
        std::string kText;
        for (unsigned int i = Pick(4); i > 0; --i)
        {
            kText += PickOf({" ", "\n", "\r\n", "\t", "\r", "<!-- \xC3\xA4 -->", "<?go?>", "\n  "});
        }
        return kText;
    }

    std::string WriteSeparator() { return PickOf({" ", "\n", "\r\n  ", "\t", "  "}); }

    std::string WriteElement(unsigned int uiLevel)
    {
        constexpr unsigned int cuiDeepest = 32;
        ++m_uiNOFElements;
        const bool bIsGroup =
            uiLevel < cuiDeepest && m_uiNOFElements < m_uiEnough && Pick(uiLevel < 3 ? 8 : 2) > 0;
        const std::string kName = IsMistakeDue() ? "Strange"
                                  : bIsGroup     ? PickOf({"Composite", "Dialog", "Popup"})
                                                 : PickOf({"Object", "Leaf", "Button"});
        std::string kText = "<" + kName + WriteIdentifier() + WriteAttributes(kName);
        const bool bIsOuter = bIsGroup || (kName == "Leaf" && IsMistakeDue());
        if (!bIsOuter && Pick(2) == 0)
        {
            return kText + WriteEndOfTag() + "/>";
        }
        kText += WriteEndOfTag() + ">" + WriteGap();
        for (unsigned int i = bIsOuter ? 1 + Pick(4) : 0; i > 0; --i)
        {
            kText += WriteElement(uiLevel + 1) + WriteGap();
        }
        return kText + "</" + kName + WriteEndOfTag() + ">";
    }

    std::string WriteEndOfTag() { return PickOf({"", "", "", " ", "\n"}); }

    std::string WriteAttribute(const std::string& kName, const std::string& kValue)
    {
        const std::string kQuote = kValue.find('"') != std::string::npos || Pick(3) == 0 ? "'" : "\"";
        return WriteSeparator() + kName + PickOf({"=", "=", " = ", "\n="}) + kQuote + kValue + kQuote;
    }

    std::string WriteIdentifier()
    {
        const std::string kValue = IsMistakeDue()
                                       ? PickOf({"DLG_NONE", "True", "_", "G\xC3\xB6tter"})
                                       : PickOf({"DLG_HOME", "BTN_BACK", "OBJ_MSGBOX_OK", "NO_HANDLE", "0",
                                                 "-12", "7", "2147483647", "-2147483648", "BTN&#x5F;HOME"});
        return Pick(2) == 0 ? WriteAttribute("id", kValue) : "";
    }

    std::string WriteAttributes(const std::string& kName)
    {
        std::string kText;
        if (Pick(3) == 0)
        {
            kText += WriteAttribute("focusable", PickOf({"true", "false"}));
        }
        if (Pick(3) == 0)
        {
            kText += WriteAttribute("invisible", PickOf({"true", "fals&#101;"}));
        }
        const bool bIsOfTheFramework = kName == "Composite" || kName == "Object";
        if (!bIsOfTheFramework && Pick(2) == 0)
        {
            kText += WriteAttribute("text", WriteValue());
        }
        if (!bIsOfTheFramework && Pick(4) == 0)
        {
            kText += IsMistakeDue() ? WriteAttribute("width", PickOf({"", "wide", "\n1"}))
                                    : WriteAttribute("width", std::to_string(Pick(100)));
        }
        return kText + (!bIsOfTheFramework && IsMistakeDue() ? WriteAttribute("strange", WriteValue()) : "");
    }

    std::string WriteValue()
    {
        std::string kValue;
        for (unsigned int i = Pick(12); i > 0; --i)
        {
            kValue += PickOf({"a",
                              "7",
                              " ",
                              "\t",
                              "\n",
                              "\r\n",
                              "\r",
                              "\\",
                              "\\n",
                              "?",
                              "?\?/",
                              "%s",
                              "\x7F",
                              "&lt;",
                              "&gt;",
                              "&amp;",
                              "&quot;",
                              "&apos;",
                              "&#10;",
                              "&#x1F600;",
                              ">",
                              "\"",
                              "//",
                              "*/",
                              "\xC3\xA4",
                              "\xE2\x82\xAC",
                              "\xF0\x9F\x98\x80",
                              "R\"(",
                              "#",
                              "#define"});
        }
        return kValue;
    }

    std::mt19937 m_kRandom;
    unsigned int m_uiNOFElements = 0; ///< so far
    unsigned int m_uiEnough = 0;      ///< from this many elements on, new ones have no children
    unsigned int m_uiMistakesIn = 0;  ///< how many chances for a mistake to pass before making it
};
} // namespace

int main(int iNOFArguments, char** ppcArguments)
{
    if (iNOFArguments != 3)
    {
        return 2;
    }
    const unsigned int uiNOFDialogs = static_cast<unsigned int>(std::strtoul(ppcArguments[2], nullptr, 10));
    for (unsigned int uiNumber = 1; uiNumber <= uiNOFDialogs; ++uiNumber)
    {
        std::ofstream kFile(std::string(ppcArguments[1]) + "/" + std::to_string(uiNumber) + ".xml",
                            std::ios::binary);
        kFile << CRandomDialog(uiNumber).Write();
    }
    return 0;
}
