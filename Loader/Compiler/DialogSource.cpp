#include "Loader/Compiler/DialogSource.h"

#include "Loader/DialogElements.h"

namespace
{
constexpr const eC_Char* cpcOrigin =
    "// Made by dialogc from dialog description files. Changes here are lost.\n";

/** @return a text as a C++ string literal of ASCII characters */
std::string WriteText(const std::string& kText)
{
    std::string kLiteral = "\"";
    for (const eC_Char cByte : kText)
    {
        const unsigned int uiByte = static_cast<unsigned char>(cByte);
        if (uiByte < ' ' || uiByte > '~' || cByte == '"' || cByte == '\\' || cByte == '?')
        {
            // Three octal digits end by themselves, whatever comes behind them.
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

std::string WriteElement(const CompiledElement_t& kElement)
{
    const std::string kNamed = kElement.m_uiNamedAttribute == cuiNoAttribute
                                   ? "cuiNoAttribute"
                                   : std::to_string(kElement.m_uiNamedAttribute);
    return "    {" + WriteText(kElement.m_kName) + ", " + kElement.m_kID + ", " +
           std::to_string(kElement.m_uiLevel) + ", " + std::to_string(kElement.m_kAttributes.size()) + ", " +
           kNamed + "}, // line " + std::to_string(kElement.m_kPosition.m_uiLine) + "\n";
}

std::string WriteElements(const CompiledDialog_t& kDialog, const std::string& kNumber)
{
    std::string kText = "constexpr DialogElement_t cakElements" + kNumber + "[] = {\n";
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
} // namespace

std::string WriteDialogHeader(const std::string& kName)
{
    const std::string kGuard = "DIALOGS_" + kName + "_H";
    return cpcOrigin + ("#ifndef " + kGuard + "\n#define " + kGuard + "\n\n") +
           WriteInclude("Loader/DialogROMTable.h") + "\nextern const DialogROMTables_t " + kName +
           ";\n\n#endif\n";
}

std::string WriteDialogSource(const std::string& kName, const std::string& kHeader,
                              const std::string& kHandleHeader, const std::vector<CompiledDialog_t>& kDialogs)
{
    std::string kText = cpcOrigin + WriteInclude(kHeader);
    kText += kHandleHeader.empty() ? "" : WriteInclude(kHandleHeader);
    kText += "\nnamespace\n{\n";
    std::string kTables;
    for (std::size_t uiDialog = 0; uiDialog < kDialogs.size(); ++uiDialog)
    {
        const CompiledDialog_t& kDialog = kDialogs[uiDialog];
        const std::string kNumber = std::to_string(uiDialog);
        kText += "// " + WriteText(kDialog.m_kPath) + "\n" + WriteElements(kDialog, kNumber) +
                 WriteAttributes(kDialog, kNumber) + WritePositions(kDialog, kNumber);
        kTables += WriteTable(kDialog, kNumber);
    }
    return kText + "constexpr DialogROMTable_t cakTables[] = {\n" + kTables +
           "};\n} // namespace\n\nextern const DialogROMTables_t " + kName + " = {cakTables, " +
           std::to_string(kDialogs.size()) + "};\n";
}
