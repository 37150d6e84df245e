// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGFILEERROR_H
#define LOADER_DIALOGFILEERROR_H

/** @file
 *  What is wrong with a dialog description, in words. All readers describe the same error in the same way.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"
#include "Loader/UTF8Text.h"

#include <cstddef>

/** What is wrong with a description, and where. */
struct DialogFileError_t
{
    TextPosition_t m_kPosition; ///< line 1, column 1 for an error of the file as a whole
    eC_String m_kFound;         ///< what is wrong
    eC_String m_kExpected;      ///< what was expected: the text after "expected "
};

/** @param kPosition the '<' of the element's start tag
 *  @param pcElement the name of an element whose object class the factory does not know
 */
GUI_API DialogFileError_t MakeUnknownElementError(const TextPosition_t& kPosition, const eC_Char* pcElement);

/** @param kPosition the '<' of the start tag of the inner element
 *  @param pcElement the name of the inner element
 *  @param pcOuterElement the name of the element around it, whose object takes no children
 */
GUI_API DialogFileError_t MakeElementInsideError(const TextPosition_t& kPosition, const eC_Char* pcElement,
                                                 const eC_Char* pcOuterElement);

/** @param kPosition the '<' of the start tag of an element below the last level allowed */
GUI_API DialogFileError_t MakeTooDeepError(const TextPosition_t& kPosition);

/** @param kPosition the '<' of the element's start tag
 *  @param pcElement the name of an element whose creator returned null
 */
GUI_API DialogFileError_t MakeNotMadeError(const TextPosition_t& kPosition, const eC_Char* pcElement);

/** @param kPosition the first character of the value
 *  @param pcValue the value of an attribute "id" that ParseObjectHandle does not accept
 */
GUI_API DialogFileError_t MakeHandleError(const TextPosition_t& kPosition, const eC_Char* pcValue);

/** @param kPosition the first character of the attribute's name
 *  @param pcAttribute the attribute's name
 *  @param pcElement the name of the element that does not know it
 *  @param kExpected what CGUIObject::SetAttribute expected
 */
GUI_API DialogFileError_t MakeUnknownAttributeError(const TextPosition_t& kPosition,
                                                    const eC_Char* pcAttribute, const eC_Char* pcElement,
                                                    const eC_String& kExpected);

/** @param kPosition the first character of the value
 *  @param pcAttribute the attribute's name
 *  @param pcValue the value that the attribute does not accept
 *  @param kExpected what CGUIObject::SetAttribute expected
 */
GUI_API DialogFileError_t MakeBadValueError(const TextPosition_t& kPosition, const eC_Char* pcAttribute,
                                            const eC_Char* pcValue, const eC_String& kExpected);

/** @param uiMaxSize the most bytes that a description may have */
GUI_API DialogFileError_t MakeFileSizeError(std::size_t uiMaxSize);

/** @return whether a path is free of zero bytes, where systems would cut it off, and of line breaks (LF and
 *          CR), which would make two entries of one in a log
 */
GUI_API eC_Bool IsPathOfOneLine(const eC_String& kPath);

/** @return the error of any other path */
GUI_API DialogFileError_t MakePathError();

/** @return "path:line:column: found; expected what", in one line: in the path a zero byte becomes "\0", a
 *  line break "\n" or "\r"
 */
GUI_API eC_String FormatDialogFileError(const eC_String& kPath, const DialogFileError_t& kError);

/** The attribute that gives an object its identifier. */
inline constexpr const eC_Char* cpcIdentifierAttribute = "id";

#endif
