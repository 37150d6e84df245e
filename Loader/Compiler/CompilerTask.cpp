// SPDX-License-Identifier: MIT
#include "Loader/Compiler/CompilerTask.h"

#include "Loader/Compiler/ConstantName.h"
#include "Loader/UTF8Text.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>

namespace
{
namespace fs = std::filesystem;

using Values_t = std::vector<std::string>;

/** An option that has a value. */
struct Option_t
{
    const eC_Char* m_pcName;
    Values_t CompilerArguments_t::*m_pkValues;
    eC_Bool m_bMayBeRepeated;
};

constexpr Option_t cakOptions[] = {{"--output", &CompilerArguments_t::m_kOutputs, false},
                                   {"--name", &CompilerArguments_t::m_kNames, false},
                                   {"--base", &CompilerArguments_t::m_kBases, false},
                                   {"--handles", &CompilerArguments_t::m_kHandles, false},
                                   {"--include", &CompilerArguments_t::m_kIncludes, true}};

/** @return why a text cannot be part of paths, messages and C++ sources; empty when it can */
std::string FindTextFault(std::string_view kText)
{
    while (!kText.empty())
    {
        char32_t cCharacter = 0;
        const std::size_t uiLength = DecodeUTF8(kText, cCharacter);
        if (uiLength == 0)
        {
            return "is not in UTF-8; rename it";
        }
        if (cCharacter < ' ' || cCharacter == '\x7F')
        {
            return "has a control character in it; rename it";
        }
        kText.remove_prefix(uiLength);
    }
    return "";
}

/** @return why a name cannot be part of an #include directive; empty when it can */
std::string FindIncludeFault(const std::string& kName)
{
    const eC_Bool bIsQuoted = kName.find_first_of("\"\\") != std::string::npos;
    return bIsQuoted ? "has a quote or a backslash in it, which #include does not take; rename it" : "";
}

/** @return a fault of something that was given, quoted; empty without a fault */
std::string Quote(const std::string& kGiven, const std::string& kFault)
{
    return kFault.empty() ? "" : "'" + kGiven + "' " + kFault;
}

/** Reads one argument after the other. */
class CArgumentReader
{
public:
    CArgumentReader(const Values_t& kArguments, CompilerArguments_t& kArgumentsOUT)
        : m_kArguments(kArguments), m_kArgumentsOUT(kArgumentsOUT)
    {
    }

    std::string Read()
    {
        std::string kFault;
        const auto Note = [&kFault](const std::string& kNext) { kFault = kFault.empty() ? kNext : kFault; };
        while (m_uiNext < m_kArguments.size())
        {
            Note(ReadArgument(TakeNext()));
            if (kFault.empty() && (m_kArgumentsOUT.m_bHelp || m_kArgumentsOUT.m_bVersion))
            {
                break;
            }
        }
        return kFault;
    }

private:
    const std::string& TakeNext() { return m_kArguments[m_uiNext++]; }

    std::string ReadArgument(const std::string& kArgument)
    {
        if (kArgument == "--help" || kArgument == "-h")
        {
            m_kArgumentsOUT.m_bHelp = true;
            return "";
        }
        if (kArgument == "--version")
        {
            m_kArgumentsOUT.m_bVersion = true;
            return "";
        }
        if (!kArgument.empty() && kArgument[0] == '-')
        {
            return ReadOption(kArgument);
        }
        m_kArgumentsOUT.m_kFiles.push_back(kArgument);
        return kArgument.empty() ? "'' is no file; leave the empty argument out"
                                 : Quote(kArgument, FindTextFault(kArgument));
    }

    std::string ReadOption(const std::string& kArgument)
    {
        const std::size_t uiNameLength = std::min(kArgument.find('='), kArgument.size());
        const std::string kName = kArgument.substr(0, uiNameLength);
        const Option_t* pkOption =
            std::find_if(std::begin(cakOptions), std::end(cakOptions),
                         [&kName](const Option_t& kOption) { return kName == kOption.m_pcName; });
        if (pkOption == std::end(cakOptions))
        {
            return "there is no option '" + kArgument + "'; dialogc --help lists them";
        }
        const eC_Bool bHasValueInside = uiNameLength < kArgument.size();
        if (!bHasValueInside && m_uiNext == m_kArguments.size())
        {
            return kName + " lacks its value; dialogc --help tells which";
        }
        Values_t& kValues = m_kArgumentsOUT.*pkOption->m_pkValues;
        kValues.push_back(bHasValueInside ? kArgument.substr(uiNameLength + 1) : TakeNext());
        if (kValues.size() > 1 && !pkOption->m_bMayBeRepeated)
        {
            return kName + " is given twice; give it once";
        }
        return kValues.back().empty() ? kName + " lacks its value; dialogc --help tells which"
                                      : Quote(kValues.back(), FindTextFault(kValues.back()));
    }

    const Values_t& m_kArguments;
    CompilerArguments_t& m_kArgumentsOUT;
    std::size_t m_uiNext = 0;
};

/** @return the value of an option that is given once at most, empty without it */
std::string GetValue(const Values_t& kValues)
{
    return kValues.empty() ? "" : kValues.front();
}

std::string MakeOutput(const CompilerArguments_t& kArguments, CompilerTask_t& kTask)
{
    if (kArguments.m_kOutputs.empty())
    {
        return "--output is missing; say where the two files go";
    }
    kTask.m_kStem = GetValue(kArguments.m_kOutputs);
    const std::string kLast = fs::path(kTask.m_kStem).filename().string();
    if (kLast.empty() || kLast == "." || kLast == "..")
    {
        return "--output '" + kTask.m_kStem + "' names a directory; add the name of the two files";
    }
    return Quote(kTask.m_kStem, FindIncludeFault(kLast));
}

std::string MakeName(const CompilerArguments_t& kArguments, CompilerTask_t& kTask)
{
    const eC_Bool bIsGiven = !kArguments.m_kNames.empty();
    kTask.m_kName =
        bIsGiven ? GetValue(kArguments.m_kNames) : "ck" + fs::path(kTask.m_kStem).filename().string();
    const std::string kFault = FindNameFault(kTask.m_kName);
    return Quote(kTask.m_kName, kFault.empty() ? ""
                                               : "cannot be the name of the constant: " + kFault +
                                                     "; give another one with --name");
}

std::string MakeHandleHeader(const CompilerArguments_t& kArguments, CompilerTask_t& kTask)
{
    kTask.m_kHandleHeader = GetValue(kArguments.m_kHandles);
    if (kTask.m_kHandleHeader.empty())
    {
        return "";
    }
    const std::string kFault = FindIncludeFault(kTask.m_kHandleHeader);
    if (!kFault.empty())
    {
        return Quote(kTask.m_kHandleHeader, kFault);
    }
    Values_t kDirectories = {fs::path(kTask.m_kStem).parent_path().string(), ""};
    kDirectories.insert(kDirectories.end(), kArguments.m_kIncludes.begin(), kArguments.m_kIncludes.end());
    const eC_Bool bIsThere =
        std::any_of(kDirectories.begin(), kDirectories.end(),
                    [&kTask](const std::string& kDirectory)
                    {
                        std::error_code kIgnored;
                        return fs::is_regular_file(fs::path(kDirectory) / kTask.m_kHandleHeader, kIgnored);
                    });
    return bIsThere ? ""
                    : "there is no header '" + kTask.m_kHandleHeader +
                          "'; give the directory from which it is included with --include";
}

/** @return the path by which the application loads a file, with '/' between its parts; one that begins with
 *          the element ".." when the file is not below the directory
 */
fs::path FindPathBelow(const fs::path& kDirectory, const fs::path& kFile)
{
    // A file that is a link itself keeps the link's name, by which the application knows it.
    const fs::path kPlace = fs::weakly_canonical(fs::absolute(kFile).parent_path()) / kFile.filename();
    return kPlace.lexically_relative(fs::canonical(kDirectory));
}

std::string MakeFile(const std::string& kFile, const std::string& kBase, CompilerTask_t& kTask)
{
    std::string kPath = kFile;
    if (!kBase.empty())
    {
        fs::path kBelow;
        try
        {
            kBelow = FindPathBelow(kBase, kFile);
        }
        catch (const fs::filesystem_error& kError)
        {
            return "cannot find out where '" + kFile + "' lies below '" + kBase + "' (" +
                   kError.code().message() + "); give paths that exist";
        }
        if (kBelow.empty() || *kBelow.begin() == "..")
        {
            return "'" + kFile + "' does not lie below '" + kBase + "'; give another --base";
        }
        kPath = kBelow.generic_string();
    }
    kTask.m_kFiles.push_back({kPath, kFile});
    return Quote(kPath, FindTextFault(kPath));
}

std::string MakeFiles(const CompilerArguments_t& kArguments, CompilerTask_t& kTask)
{
    if (kArguments.m_kFiles.empty())
    {
        return "there is no file to compile; name one or more";
    }
    const std::string kBase = GetValue(kArguments.m_kBases);
    std::error_code kIgnored;
    if (!kBase.empty() && !fs::is_directory(kBase, kIgnored))
    {
        return "--base '" + kBase + "' is no directory; give the one that the paths of dialogs begin in";
    }
    for (const std::string& kFile : kArguments.m_kFiles)
    {
        std::string kFault = MakeFile(kFile, kBase, kTask);
        if (!kFault.empty())
        {
            return kFault;
        }
    }
    std::vector<DialogFile_t>& kFiles = kTask.m_kFiles;
    std::sort(kFiles.begin(), kFiles.end(),
              [](const DialogFile_t& kFirst, const DialogFile_t& kSecond)
              { return kFirst.m_kPath < kSecond.m_kPath; });
    const auto kTwice = std::adjacent_find(kFiles.begin(), kFiles.end(),
                                           [](const DialogFile_t& kFirst, const DialogFile_t& kSecond)
                                           { return kFirst.m_kPath == kSecond.m_kPath; });
    return kTwice == kFiles.end() ? "" : "'" + kTwice->m_kPath + "' is given twice; give each file once";
}
} // namespace

std::string ReadArguments(const std::vector<std::string>& kArguments, CompilerArguments_t& kArgumentsOUT)
{
    return CArgumentReader(kArguments, kArgumentsOUT).Read();
}

std::string MakeTask(const CompilerArguments_t& kArguments, CompilerTask_t& kTaskOUT)
{
    for (const auto Make : {MakeOutput, MakeFiles, MakeName, MakeHandleHeader})
    {
        std::string kFault = Make(kArguments, kTaskOUT);
        if (!kFault.empty())
        {
            return kFault;
        }
    }
    return "";
}
