// dialogc: compiles dialog description files to C++ tables of constants.

#include "Core/GUIFactoryManager.h"
#include "Core/Utils/eC_String.h"
#include "Loader/Compiler/DialogCompiler.h"
#include "Loader/Compiler/DialogSource.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace
{
constexpr const eC_Char* cpcHelp =
    R"(Usage: dialogc --output <stem> [option ...] <file> ...

Compiles dialog description files to <stem>.h and <stem>.cpp: tables of constants from which
CGUIDialogROMReader builds the dialogs.

  --output <stem>      where the two files go, without their endings
  --name <constant>    the name of the constant that the header declares; without it, ck and the last part
                       of the stem
  --base <directory>   the application loads the dialogs by their paths below this directory; without it, by
                       the paths as they are given here
  --handles <header>   the header with the application's table of handles, as the source file is to include
                       it. The C++ compiler then checks the names of handles and puts their numbers into the
                       tables; without it they are looked up whenever a dialog is loaded.
  --help               prints this

A file with an error is reported with line and column, and no output is left. The status is 0 when all files
were compiled, 1 when a file is wrong or cannot be read or written, 2 when the arguments are wrong.
)";

enum EStatus : unsigned char
{
    STATUS_COMPILED = 0,
    STATUS_BAD_FILE = 1,
    STATUS_BAD_ARGUMENTS = 2
};

/** What the arguments ask for. */
struct Task_t
{
    eC_Bool m_bHelp = false;
    std::string m_kStem;
    std::string m_kName;
    std::string m_kBaseDirectory;
    std::string m_kHandleHeader;
    std::vector<std::string> m_kFiles;
};

eC_Bool Complain(const std::string& kMessage)
{
    std::fprintf(stderr, "dialogc: %s\n", kMessage.c_str());
    return false;
}

/** @return where an option keeps its value, or null when there is no such option */
std::string* FindOption(Task_t& kTask, std::string_view kOption)
{
    return kOption == "--output"    ? &kTask.m_kStem
           : kOption == "--name"    ? &kTask.m_kName
           : kOption == "--base"    ? &kTask.m_kBaseDirectory
           : kOption == "--handles" ? &kTask.m_kHandleHeader
                                    : nullptr;
}

eC_Bool IsConstantName(const std::string& kName)
{
    return !kName.empty() && (kName[0] < '0' || kName[0] > '9') &&
           std::all_of(kName.begin(), kName.end(),
                       [](eC_Char cByte)
                       {
                           return (cByte >= '0' && cByte <= '9') || (cByte >= 'A' && cByte <= 'Z') ||
                                  (cByte >= 'a' && cByte <= 'z') || cByte == '_';
                       });
}

eC_Bool ReadArguments(const std::vector<std::string>& kArguments, Task_t& kTaskOUT)
{
    for (std::size_t uiAt = 0; uiAt < kArguments.size(); ++uiAt)
    {
        const std::string& kArgument = kArguments[uiAt];
        std::string* pkValue = FindOption(kTaskOUT, kArgument);
        if (kArgument == "--help")
        {
            kTaskOUT.m_bHelp = true;
            return true;
        }
        if (pkValue != nullptr)
        {
            if (++uiAt == kArguments.size() || kArguments[uiAt].empty())
            {
                return Complain(kArgument + " wants a value");
            }
            *pkValue = kArguments[uiAt];
        }
        else if (kArgument.empty() || kArgument[0] == '-')
        {
            return Complain("there is no option '" + kArgument + "'");
        }
        else
        {
            kTaskOUT.m_kFiles.push_back(kArgument);
        }
    }
    return true;
}

eC_Bool CompleteTask(Task_t& kTask)
{
    if (kTask.m_kStem.empty())
    {
        return Complain("--output is missing");
    }
    if (kTask.m_kFiles.empty())
    {
        return Complain("there is no file to compile");
    }
    if (kTask.m_kName.empty())
    {
        kTask.m_kName = "ck" + std::filesystem::path(kTask.m_kStem).filename().string();
    }
    return IsConstantName(kTask.m_kName) ||
           Complain("'" + kTask.m_kName + "' cannot be the name of a constant");
}

/** Finds the path by which the application loads a file. */
eC_Bool MakeDialogPath(const Task_t& kTask, const std::string& kFile, std::string& kPathOUT)
{
    if (kTask.m_kBaseDirectory.empty())
    {
        kPathOUT = kFile;
        return true;
    }
    const std::filesystem::path kBase =
        std::filesystem::absolute(kTask.m_kBaseDirectory).lexically_normal() / "";
    kPathOUT = std::filesystem::absolute(kFile).lexically_normal().lexically_relative(kBase).generic_string();
    return (!kPathOUT.empty() && kPathOUT.compare(0, 2, "..") != 0) ||
           Complain(kFile + " does not lie below " + kTask.m_kBaseDirectory);
}

/** Names the dialogs of a task and sorts them as the reader looks for them. */
eC_Bool MakeDialogs(Task_t& kTask, std::vector<CompiledDialog_t>& kDialogsOUT)
{
    std::vector<std::pair<std::string, std::string>> kPaths;
    for (const std::string& kFile : kTask.m_kFiles)
    {
        std::string kPath;
        if (!MakeDialogPath(kTask, kFile, kPath))
        {
            return false;
        }
        kPaths.emplace_back(kPath, kFile);
    }
    std::sort(kPaths.begin(), kPaths.end());
    for (std::size_t uiDialog = 0; uiDialog < kPaths.size(); ++uiDialog)
    {
        if (uiDialog > 0 && kPaths[uiDialog].first == kPaths[uiDialog - 1].first)
        {
            return Complain(kPaths[uiDialog].first + " is given twice");
        }
        kDialogsOUT.push_back({kPaths[uiDialog].first, {}});
        kTask.m_kFiles[uiDialog] = kPaths[uiDialog].second;
    }
    return true;
}

eC_Bool CompileFile(const std::string& kFile, EHandleNames eHandleNames, CompiledDialog_t& kDialogOUT)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    if (kDocument.Load(kFile, kError) && CompileDialog(kDocument, eHandleNames, kDialogOUT, kError))
    {
        return true;
    }
    std::fprintf(stderr, "%s.\n", FormatDialogFileError(kFile.c_str(), kError).GetText());
    return false;
}

eC_Bool CompileFiles(const Task_t& kTask, std::vector<CompiledDialog_t>& kDialogs)
{
    const EHandleNames eHandleNames =
        kTask.m_kHandleHeader.empty() ? HANDLES_WHEN_LOADED : HANDLES_WHEN_COMPILED;
    for (std::size_t uiDialog = 0; uiDialog < kDialogs.size(); ++uiDialog)
    {
        if (!CompileFile(kTask.m_kFiles[uiDialog], eHandleNames, kDialogs[uiDialog]))
        {
            return false;
        }
    }
    return true;
}

eC_Bool WriteFile(const std::string& kFile, const std::string& kText)
{
    std::ofstream kStream(kFile, std::ios::binary);
    kStream << kText;
    kStream.close();
    return !kStream.fail() || Complain("cannot write " + kFile);
}

eC_Bool WriteFiles(const Task_t& kTask, const std::vector<CompiledDialog_t>& kDialogs)
{
    const std::string kHeader = std::filesystem::path(kTask.m_kStem + ".h").filename().string();
    return WriteFile(kTask.m_kStem + ".h", WriteDialogHeader(kTask.m_kName)) &&
           WriteFile(kTask.m_kStem + ".cpp",
                     WriteDialogSource(kTask.m_kName, kHeader, kTask.m_kHandleHeader, kDialogs));
}

/** Removes what this run, or an earlier one, wrote: nobody shall take it for the result of this one. */
void RemoveFiles(const Task_t& kTask)
{
    std::error_code kIgnored;
    std::filesystem::remove(kTask.m_kStem + ".h", kIgnored);
    std::filesystem::remove(kTask.m_kStem + ".cpp", kIgnored);
}

EStatus Run(const std::vector<std::string>& kArguments)
{
    Task_t kTask;
    std::vector<CompiledDialog_t> kDialogs;
    if (!ReadArguments(kArguments, kTask))
    {
        return STATUS_BAD_ARGUMENTS;
    }
    if (kTask.m_bHelp)
    {
        std::fputs(cpcHelp, stdout);
        return STATUS_COMPILED;
    }
    if (!CompleteTask(kTask) || !MakeDialogs(kTask, kDialogs))
    {
        return STATUS_BAD_ARGUMENTS;
    }
    if (!CompileFiles(kTask, kDialogs) || !WriteFiles(kTask, kDialogs))
    {
        RemoveFiles(kTask);
        return STATUS_BAD_FILE;
    }
    return STATUS_COMPILED;
}
} // namespace

int main(int iNOFArguments, char** ppcArguments)
{
    try
    {
        CGUIFactoryManager::CreateInstance();
        const EStatus eStatus = Run({ppcArguments + 1, ppcArguments + iNOFArguments});
        CGUIFactoryManager::DestroyInstance();
        return eStatus;
    }
    catch (const std::exception& kException)
    {
        Complain(kException.what());
        return STATUS_BAD_FILE;
    }
}
