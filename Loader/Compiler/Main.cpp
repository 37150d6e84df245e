// SPDX-License-Identifier: MIT
// dialogc: compiles dialog description files to C++ tables of constants.

#include "Core/GUIFactoryManager.h"
#include "Core/GUIVersion.h"
#include "Core/Utils/eC_String.h"
#include "Loader/Compiler/CompilerTask.h"
#include "Loader/Compiler/DialogCompiler.h"
#include "Loader/Compiler/DialogSource.h"
#include "Loader/Compiler/OutputFiles.h"
#include "Loader/UTF8Text.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
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
  --include <directory>
                       another directory that may contain that header, besides the current one and that of
                       the output; may be given more than once
  --help, -h           prints this
  --version            prints the version

A value may also be given as --option=value. An error in a file is reported with its line and column. Whatever
fails, no output is left, not even that of an earlier run. dialogc never touches files that it did not write,
except an empty one with the name of an output, which it overwrites.
The status is 0 when all files were compiled, 1 when a file is wrong or cannot be read or written, 2 when the
arguments are wrong.
)";

enum EStatus : unsigned char
{
    STATUS_DONE = 0,
    STATUS_BAD_FILE = 1,
    STATUS_BAD_ARGUMENTS = 2
};

/** @return the text in one line: control characters and malformed bytes become \x and two digits */
std::string MakeLine(std::string_view kText)
{
    constexpr const eC_Char* cpcDigits = "0123456789ABCDEF";
    std::string kLine;
    while (!kText.empty())
    {
        char32_t cCharacter = 0;
        const std::size_t uiLength = DecodeUTF8(kText, cCharacter);
        if (uiLength == 0 || cCharacter < ' ' || cCharacter == '\x7F')
        {
            const unsigned int uiByte = static_cast<unsigned char>(kText[0]);
            kLine += {'\\', 'x', cpcDigits[uiByte / 16], cpcDigits[uiByte % 16]};
        }
        else
        {
            kLine += kText.substr(0, uiLength);
        }
        kText.remove_prefix(std::max<std::size_t>(uiLength, 1));
    }
    return kLine;
}

void Complain(const std::string& kMessage)
{
    std::fprintf(stderr, "dialogc: %s\n", MakeLine(kMessage).c_str());
}

EStatus Print(const std::string& kText)
{
    const eC_Bool bIsWritten = std::fputs(kText.c_str(), stdout) != EOF && std::fflush(stdout) == 0;
    if (!bIsWritten)
    {
        Complain("cannot write to the standard output; give it another place");
    }
    return bIsWritten ? STATUS_DONE : STATUS_BAD_FILE;
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

eC_Bool CompileFiles(const CompilerTask_t& kTask, std::vector<CompiledDialog_t>& kDialogsOUT)
{
    const EHandleNames eHandleNames =
        kTask.m_kHandleHeader.empty() ? HANDLES_WHEN_LOADED : HANDLES_WHEN_COMPILED;
    for (const DialogFile_t& kFile : kTask.m_kFiles)
    {
        CompiledDialog_t& kDialog = kDialogsOUT.emplace_back();
        kDialog.m_kPath = kFile.m_kPath;
        kDialog.m_kFile = kFile.m_kFile;
        if (!CompileFile(kFile.m_kFile, eHandleNames, kDialog))
        {
            return false;
        }
    }
    return true;
}

/** @return the file of a dialog that uses a constant as a handle; empty when none does */
std::string FindFileWithHandle(const std::vector<CompiledDialog_t>& kDialogs, const std::string& kName)
{
    for (const CompiledDialog_t& kDialog : kDialogs)
    {
        if (std::any_of(kDialog.m_kElements.begin(), kDialog.m_kElements.end(),
                        [&kName](const CompiledElement_t& kElement) { return kElement.m_kID == kName; }))
        {
            return kDialog.m_kFile;
        }
    }
    return "";
}

EStatus Compile(const CompilerTask_t& kTask, COutputFiles& kOutput)
{
    const std::string kSourceFile = kTask.m_kStem + ".cpp";
    const std::string kHeader = std::filesystem::path(kTask.m_kStem + ".h").filename().string();
    DialogSource_t kSource = {kTask.m_kName, kSourceFile, kHeader, kTask.m_kHandleHeader, {}};
    if (!CompileFiles(kTask, kSource.m_kDialogs))
    {
        return STATUS_BAD_FILE;
    }
    const std::string kFile = FindFileWithHandle(kSource.m_kDialogs, kTask.m_kName);
    if (!kFile.empty())
    {
        Complain("'" + kTask.m_kName + "' cannot be the name of the constant: it is a handle in '" + kFile +
                 "'; give another one with --name");
        return STATUS_BAD_ARGUMENTS;
    }
    const std::string kFault = kOutput.Write(WriteDialogHeader(kTask.m_kName), WriteDialogSource(kSource));
    if (!kFault.empty())
    {
        Complain(kFault);
        return STATUS_BAD_FILE;
    }
    return STATUS_DONE;
}

EStatus Run(const std::vector<std::string>& kTexts)
{
    CompilerArguments_t kArguments;
    CompilerTask_t kTask;
    std::string kFault = ReadArguments(kTexts, kArguments);
    if (kFault.empty() && kArguments.m_bHelp)
    {
        return Print(cpcHelp);
    }
    if (kFault.empty() && kArguments.m_bVersion)
    {
        return Print("dialogc " GUI_VERSION "\n");
    }
    COutputFiles kOutput(kArguments.m_kOutputs);
    kFault = kFault.empty() ? MakeTask(kArguments, kTask) : kFault;
    if (!kFault.empty())
    {
        Complain(kFault);
        return STATUS_BAD_ARGUMENTS;
    }
    return Compile(kTask, kOutput);
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
