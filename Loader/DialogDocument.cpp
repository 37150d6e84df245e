#include "Loader/DialogDocument.h"

#include "Loader/XMLSyntaxCheck.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

namespace
{
struct FileCloser_t
{
    void operator()(std::FILE* pkFile) const { std::fclose(pkFile); }
};

eC_Bool FailOnFile(const eC_String& kFound, DialogFileError_t& kErrorOUT)
{
    kErrorOUT.m_kPosition = TextPosition_t();
    kErrorOUT.m_kFound = kFound;
    kErrorOUT.m_kExpected = "a readable file";
    return false;
}

eC_Bool FailOnFile(const eC_Char* pcFound, const std::error_code& kReason, DialogFileError_t& kErrorOUT)
{
    return FailOnFile(eC_String(pcFound) + " (" + kReason.message().c_str() + ")", kErrorOUT);
}

std::error_code GetLastError()
{
    return std::error_code(errno, std::generic_category());
}

eC_Bool ReadFile(const std::filesystem::path& kFile, std::string& kTextOUT, DialogFileError_t& kErrorOUT)
{
    std::error_code kReason;
    const std::filesystem::file_status kStatus = std::filesystem::status(kFile, kReason);
    if (!std::filesystem::exists(kStatus))
    {
        return FailOnFile("cannot open", kReason, kErrorOUT);
    }
    if (!std::filesystem::is_regular_file(kStatus))
    {
        return FailOnFile("not a file", kErrorOUT);
    }
    const std::unique_ptr<std::FILE, FileCloser_t> kStream(std::fopen(kFile.c_str(), "rb"));
    if (!kStream)
    {
        return FailOnFile("cannot open", GetLastError(), kErrorOUT);
    }
    eC_Char acBlock[4096];
    while (const std::size_t uiLength = std::fread(acBlock, 1, sizeof acBlock, kStream.get()))
    {
        kTextOUT.append(acBlock, uiLength);
        if (kTextOUT.size() > cuiMaxDialogFileSize)
        {
            FailOnFile("file too large", kErrorOUT);
            kErrorOUT.m_kExpected =
                eC_String("at most ") + eC_String(static_cast<eC_UInt>(cuiMaxDialogFileSize)) + " bytes";
            return false;
        }
    }
    return std::ferror(kStream.get()) == 0 || FailOnFile("cannot read", GetLastError(), kErrorOUT);
}
} // namespace

eC_Bool CDialogDocument::Load(const std::filesystem::path& kFile, DialogFileError_t& kErrorOUT)
{
    m_kTree.reset();
    std::string kText;
    return ReadFile(kFile, kText, kErrorOUT) && Parse(std::move(kText), kErrorOUT);
}

eC_Bool CDialogDocument::Parse(std::string kText, DialogFileError_t& kErrorOUT)
{
    m_kTree.reset();
    m_kText = std::move(kText);
    XMLSyntaxError_t kError;
    if (!CheckXMLSyntax(m_kText, kError))
    {
        kErrorOUT.m_kPosition = LocateInText(m_kText, kError.m_uiOffset);
        kErrorOUT.m_kFound = kError.m_kFound;
        kErrorOUT.m_kExpected = kError.m_kExpected;
        return false;
    }
    // Every text that passed the check can be parsed, so that only memory can be wanting.
    constexpr unsigned int cuiOptions = pugi::parse_escapes | pugi::parse_wconv_attribute;
    if (!m_kTree.load_buffer(m_kText.data(), m_kText.size(), cuiOptions, pugi::encoding_utf8))
    {
        throw std::bad_alloc();
    }
    return true;
}

DialogFileError_t CDialogDocument::MakeErrorAt(const pugi::xml_node& kElement, const eC_String& kFound,
                                               const eC_String& kExpected) const
{
    return MakeErrorAtParsed(kElement.name() - 1, kFound, kExpected);
}

DialogFileError_t CDialogDocument::MakeErrorAtName(const pugi::xml_attribute& kAttribute,
                                                   const eC_String& kFound, const eC_String& kExpected) const
{
    return MakeErrorAtParsed(kAttribute.name(), kFound, kExpected);
}

DialogFileError_t CDialogDocument::MakeErrorAtValue(const pugi::xml_attribute& kAttribute,
                                                    const eC_String& kFound, const eC_String& kExpected) const
{
    return MakeErrorAtParsed(kAttribute.value(), kFound, kExpected);
}

DialogFileError_t CDialogDocument::MakeErrorAtParsed(const pugi::char_t* pcParsed, const eC_String& kFound,
                                                     const eC_String& kExpected) const
{
    // Names, and the beginnings of values, stand in the parser's copy where they stand in the text.
    const pugi::xml_node kTop = GetTopElement();
    const pugi::char_t* pcCopy = kTop.name() - kTop.offset_debug();
    DialogFileError_t kError;
    kError.m_kPosition = LocateInText(m_kText, static_cast<std::size_t>(pcParsed - pcCopy));
    kError.m_kFound = kFound;
    kError.m_kExpected = kExpected;
    return kError;
}
