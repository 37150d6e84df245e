// SPDX-License-Identifier: MIT
#include "Loader/Compiler/DialogSource.h"

#include "Loader/DialogElements.h"

#include <algorithm>

namespace
{
/** @return a text as a C++ string literal of ASCII characters */
std::string WriteText(const std::string& kText)
{
    std::string kLiteral = "\"";
    for (const eC_Char cByte : kText)
    {
        const unsigned int uiByte = static_cast<unsigned char>(cByte);
        if (uiByte < ' ' || uiByte > '~' || cByte == '"' || cByte == '\\' || cByte == '?')
        {
            // An octal escape ends after three digits, even when another digit follows.
            kLiteral += {'\\', static_cast<eC_Char>('0' + uiByte / 64),
                         static_cast<eC_Char>('0' + uiByte / 8 % 8), static_cast<eC_Char>('0' + uiByte % 8)};
        }
        else
        {
            kLiteral += cByte;
        }
    }
    return kLiteral + "\"";
}

std::string WriteInclude(const std::string& kHeader)
{
    return "#include \"" + kHeader + "\"\n";
}

/** @return a directive that numbers the lines after it as those of a file, from this line on */
std::string WriteLine(std::size_t uiLine, const std::string& kFile)
{
    return "#line " + std::to_string(uiLine) + " " + WriteText(kFile) + "\n";
}

/** @return an element with its identifier in the line and column of the description file, so that a
 *          compiler's message about it points there
 */
std::string WriteElement(const CompiledElement_t& kElement)
{
    // In a file without line breaks the tables would be mostly blanks, so this gives up the column there.
    constexpr eC_UInt cuiFarthestColumn = 120;
    const std::string kBlanks(std::min(kElement.m_kIDPosition.m_uiColumn, cuiFarthestColumn) - 1, ' ');
    const std::string kNamed = kElement.m_uiNamedAttribute == cuiNoAttribute
                                   ? "cuiNoAttribute"
                                   : std::to_string(kElement.m_uiNamedAttribute);
    return "    {" + WriteText(kElement.m_kName) + ",\n#line " +
           std::to_string(kElement.m_kIDPosition.m_uiLine) + "\n" + kBlanks + kElement.m_kID + ", " +
           std::to_string(kElement.m_uiLevel) + ", " + std::to_string(kElement.m_kAttributes.size()) + ", " +
           kNamed + "},\n";
}

std::string WriteElements(const CompiledDialog_t& kDialog, const std::string& kNumber)
{
    std::string kText =
        "constexpr DialogElement_t cakElements" + kNumber + "[] = {\n" + WriteLine(1, kDialog.m_kFile);
    for (const CompiledElement_t& kElement : kDialog.m_kElements)
    {
        kText += WriteElement(kElement);
    }
    return kText + "};\n";
}

std::string WriteAttributes(const CompiledDialog_t& kDialog, const std::string& kNumber)
{
    std::string kLines;
    for (const CompiledElement_t& kElement : kDialog.m_kElements)
    {
        for (const CompiledAttribute_t& kAttribute : kElement.m_kAttributes)
        {
            kLines +=
                "    {" + WriteText(kAttribute.m_kName) + ", " + WriteText(kAttribute.m_kValue) + "},\n";
        }
    }
    if (kLines.empty())
    {
        return "constexpr const DialogAttribute_t* cakAttributes" + kNumber + " = nullptr;\n";
    }
    return "constexpr DialogAttribute_t cakAttributes" + kNumber + "[] = {\n" + kLines + "};\n";
}

std::string WritePositions(const CompiledDialog_t& kDialog, const std::string& kNumber)
{
    constexpr std::size_t cuiBytesPerLine = 20;
    std::string kText = "constexpr unsigned char cauiPositions" + kNumber + "[] = {";
    std::size_t uiBytes = 0;
    for (const unsigned char uiByte : EncodePositions(kDialog))
    {
        kText += (uiBytes++ % cuiBytesPerLine == 0 ? "\n    " : " ") + std::to_string(uiByte) + ",";
    }
    return kText + "\n};\n\n";
}

std::string WriteTable(const CompiledDialog_t& kDialog, const std::string& kNumber)
{
    return "    {" + WriteText(kDialog.m_kPath) + ", {cakElements" + kNumber + ", " +
           std::to_string(kDialog.m_kElements.size()) + ", cakAttributes" + kNumber + "}, cauiPositions" +
           kNumber + "},\n";
}

/** The text of a source file, which counts its lines. */
class CSourceText
{
public:
    explicit CSourceText(const std::string& kFile) : m_kFile(kFile) {}

    void Add(const std::string& kText)
    {
        m_kText += kText;
        m_uiNOFLines += static_cast<std::size_t>(std::count(kText.begin(), kText.end(), '\n'));
    }

    /** Numbers the lines from here on as the source file's own. */
    void ReturnToFile() { Add(WriteLine(m_uiNOFLines + 2, m_kFile)); }

    const std::string& GetText() const { return m_kText; }

private:
    const std::string& m_kFile;
    std::string m_kText;
    std::size_t m_uiNOFLines = 0;
};
} // namespace

std::string WriteDialogHeader(const std::string& kName)
{
    const std::string kGuard = "DIALOGS_" + kName + "_H";
    return cpcDialogOrigin + ("#ifndef " + kGuard + "\n#define " + kGuard + "\n\n") +
           WriteInclude("Loader/DialogROMTable.h") + "\nextern const DialogROMTables_t " + kName +
           ";\n\n#endif\n";
}

std::string WriteDialogSource(const DialogSource_t& kSource)
{
    CSourceText kText(kSource.m_kFile);
    kText.Add(cpcDialogOrigin + WriteInclude(kSource.m_kHeader));
    kText.Add(kSource.m_kHandleHeader.empty() ? "" : WriteInclude(kSource.m_kHandleHeader));
    kText.Add("\nnamespace\n{\n");
    std::string kTables;
    for (std::size_t uiDialog = 0; uiDialog < kSource.m_kDialogs.size(); ++uiDialog)
    {
        const CompiledDialog_t& kDialog = kSource.m_kDialogs[uiDialog];
        const std::string kNumber = std::to_string(uiDialog);
        kText.Add("// " + WriteText(kDialog.m_kPath) + "\n" + WriteElements(kDialog, kNumber));
        kText.ReturnToFile();
        kText.Add(WriteAttributes(kDialog, kNumber) + WritePositions(kDialog, kNumber));
        kTables += WriteTable(kDialog, kNumber);
    }
    kText.Add("constexpr DialogROMTable_t cakTables[] = {\n" + kTables + "};\n} // namespace\n\n");
    kText.Add("extern const DialogROMTables_t " + kSource.m_kName + " = {cakTables, " +
              std::to_string(kSource.m_kDialogs.size()) + "};\n");
    return kText.GetText();
}
