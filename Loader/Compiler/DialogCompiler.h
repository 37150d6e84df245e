// SPDX-License-Identifier: MIT
#ifndef LOADER_COMPILER_DIALOGCOMPILER_H
#define LOADER_COMPILER_DIALOGCOMPILER_H

/** @file
 *  Compiles the elements of a dialog description.
 */

#include "Core/Utils/eC_Types.h"
#include "Loader/DialogDocument.h"

#include <string>
#include <vector>

/** An attribute of the table. */
struct CompiledAttribute_t
{
    std::string m_kName;
    std::string m_kValue;
    TextPosition_t m_kNamePosition;
    TextPosition_t m_kValuePosition;
};

/** An element of the table. */
struct CompiledElement_t
{
    std::string m_kName;
    std::string m_kID;            ///< its identifier as a C++ expression
    TextPosition_t m_kIDPosition; ///< of the value that gives its identifier, else of the element
    unsigned char m_uiLevel = 0;
    unsigned char m_uiNamedAttribute = 0; ///< as in DialogElement_t
    TextPosition_t m_kPosition;
    std::vector<CompiledAttribute_t> m_kAttributes;
};

/** A dialog description, ready to become a table. */
struct CompiledDialog_t
{
    std::string m_kPath;                        ///< by which the application loads it
    std::string m_kFile;                        ///< from which it was compiled
    std::vector<CompiledElement_t> m_kElements; ///< an element first, then the elements inside it
};

/** When the name of a handle becomes its number. */
enum EHandleNames : unsigned char
{
    HANDLES_WHEN_COMPILED, ///< the table has the constant, which the C++ compiler must know
    HANDLES_WHEN_LOADED    ///< the table has the name, which the reader looks up
};

/** Compiles a description and checks what does not depend on the application: elements of the framework's own
 *  object classes with all that is in them, and identifiers that no application can have. The factory must
 *  exist.
 *  @param kDocument a parsed document
 *  @param eHandleNames what becomes of names that are not the framework's
 *  @param kDialogOUT receives the elements; its path and its file are untouched
 *  @param kErrorOUT receives the first error; untouched on success
 *  @return true on success
 */
eC_Bool CompileDialog(const CDialogDocument& kDocument, EHandleNames eHandleNames,
                      CompiledDialog_t& kDialogOUT, DialogFileError_t& kErrorOUT);

/** @return the positions of a dialog as DialogROMTable_t has them */
std::vector<unsigned char> EncodePositions(const CompiledDialog_t& kDialog);

#endif
