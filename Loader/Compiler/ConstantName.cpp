// SPDX-License-Identifier: MIT
#include "Loader/Compiler/ConstantName.h"

#include "GUIConfig/GUIObjectHandleResource.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr std::string_view cakKeywords[] = {
    "alignas",     "alignof",  "and",        "and_eq",    "asm",       "auto",         "bitand",
    "bitor",       "bool",     "break",      "case",      "catch",     "char",         "char16_t",
    "char32_t",    "char8_t",  "class",      "co_await",  "co_return", "co_yield",     "compl",
    "concept",     "const",    "const_cast", "consteval", "constexpr", "constinit",    "continue",
    "decltype",    "default",  "delete",     "do",        "double",    "dynamic_cast", "else",
    "enum",        "explicit", "export",     "extern",    "false",     "float",        "for",
    "friend",      "goto",     "if",         "inline",    "int",       "long",         "mutable",
    "namespace",   "new",      "noexcept",   "not",       "not_eq",    "nullptr",      "operator",
    "or",          "or_eq",    "private",    "protected", "public",    "register",     "reinterpret_cast",
    "requires",    "return",   "short",      "signed",    "sizeof",    "static",       "static_assert",
    "static_cast", "struct",   "switch",     "template",  "this",      "thread_local", "throw",
    "true",        "try",      "typedef",    "typeid",    "typename",  "union",        "unsigned",
    "using",       "virtual",  "void",       "volatile",  "wchar_t",   "while",        "xor",
    "xor_eq"};

/** Names at global scope of a source file of compiled dialogs that are neither handles nor types. */
constexpr std::string_view cakTakenNames[] = {"CORE_UTILS_EC_TYPES_H",
                                              "GUICONFIG_GUIOBJECTHANDLERESOURCE_H",
                                              "GUI_API",
                                              "GUI_DECLARE_OBJECT_HANDLES",
                                              "GUI_DEFINE_OBJECT_HANDLES",
                                              "GUI_HANDLE_AS_CONSTANT_",
                                              "GUI_HANDLE_AS_ENUMERATOR_",
                                              "GUI_HANDLE_AS_LINE_",
                                              "GUI_MOST_DIALOG_LEVELS",
                                              "GUI_SHARED_LIBRARIES",
                                              "GetObjectHandleByName",
                                              "GetObjectHandleName",
                                              "LOADER_DIALOGELEMENTS_H",
                                              "LOADER_DIALOGROMTABLE_H",
                                              "NOF_OBJECTHANDLES",
                                              "NULL",
                                              "OBJ_START_TAG",
                                              "ParseObjectHandle",
                                              "QUORVANE_INTERNAL_ID",
                                              "cakTables",
                                              "cpkApplicationHandles",
                                              "cuiMaxElementDepth",
                                              "cuiMaxNOFAttributes",
                                              "cuiNOFApplicationHandles",
                                              "cuiNOFFrameworkHandles",
                                              "cuiNOFObjectHandles",
                                              "cuiNoAttribute",
                                              "eC_Bool",
                                              "eC_Char",
                                              "eC_Int",
                                              "eC_UInt",
                                              "eC_Value",
                                              "main",
                                              "std"};

/** What the tables of the single dialogs are called, in front of their numbers. */
constexpr std::string_view cakNumberedNames[] = {"cakElements", "cakAttributes", "cauiPositions"};

eC_Bool IsDigit(eC_Char cByte)
{
    return cByte >= '0' && cByte <= '9';
}

eC_Bool IsLetter(eC_Char cByte)
{
    return (cByte >= 'A' && cByte <= 'Z') || (cByte >= 'a' && cByte <= 'z') || cByte == '_';
}

eC_Bool IsIdentifier(std::string_view kName)
{
    return !kName.empty() && IsLetter(kName[0]) &&
           std::all_of(kName.begin(), kName.end(),
                       [](eC_Char cByte) { return IsLetter(cByte) || IsDigit(cByte); });
}

eC_Bool IsReserved(std::string_view kName)
{
    return kName[0] == '_' || kName.find("__") != std::string_view::npos;
}

/** @return whether compilers for Linux and Unix define a name as a macro unless told to follow the standard
 */
eC_Bool IsMacro(std::string_view kName)
{
    return kName == "linux" || kName == "unix";
}

eC_Bool IsNumberedName(std::string_view kName)
{
    return std::any_of(std::begin(cakNumberedNames), std::end(cakNumberedNames),
                       [kName](std::string_view kBeginning)
                       {
                           return kName.substr(0, kBeginning.size()) == kBeginning &&
                                  std::all_of(kName.begin() + kBeginning.size(), kName.end(), IsDigit);
                       });
}

eC_Bool IsTypeName(std::string_view kName)
{
    return kName.size() >= 2 && kName.substr(kName.size() - 2) == "_t";
}

eC_Bool IsTaken(const std::string& kName)
{
    ObjectHandle_t eHandle = NO_HANDLE;
    return GetObjectHandleByName(kName.c_str(), eHandle) || IsNumberedName(kName) || IsTypeName(kName) ||
           std::find(std::begin(cakTakenNames), std::end(cakTakenNames), kName) != std::end(cakTakenNames);
}
} // namespace

eC_Bool IsKeyword(std::string_view kWord)
{
    return std::find(std::begin(cakKeywords), std::end(cakKeywords), kWord) != std::end(cakKeywords);
}

std::string FindNameFault(const std::string& kName)
{
    return !IsIdentifier(kName) ? "it is no identifier of letters, digits and '_'"
           : IsKeyword(kName)   ? "it is a keyword of C++"
           : IsReserved(kName)  ? "C++ reserves names that begin with '_' or contain '__'"
           : IsMacro(kName)     ? "some compilers define it as a macro"
           : IsTaken(kName)     ? "the headers of the tables use that name themselves"
                                : "";
}
