// SPDX-License-Identifier: MIT
#ifndef SCENARIO_MANAGERCOMMANDS_H
#define SCENARIO_MANAGERCOMMANDS_H

/** @file
 *  The commands for a dialog manager and for objects below the root, as a table. It needs neither a heap nor
 *  texts of the standard library, so a device can execute the lines of a scenario, too.
 */

#include "Core/GUIDialogManager.h"

/** The kind of a word in a line; ManagerCommand_t refers to it by its letter. */
enum EWordKind : eC_Char
{
    WORD_TEXT = 't',
    WORD_HANDLE = 'h',   ///< the name of a handle or a number
    WORD_OBJECT = 'o',   ///< likewise, of an object under the root, invisible or not
    WORD_ACTION = 'a',   ///< the name of an action or a number up to 255
    WORD_PRIORITY = 'p', ///< the name of a priority or a number up to 255
    WORD_NUMBER = 'n',   ///< up to 4294967295
    WORD_FLAG = 'f'      ///< true or false
};

/** The value of a word. */
struct WordValue_t
{
    const eC_Char* m_pcText = nullptr;    ///< of WORD_TEXT
    ObjectHandle_t m_eHandle = NO_HANDLE; ///< of WORD_HANDLE
    CGUIObject* m_pkObject = nullptr;     ///< of WORD_OBJECT

    /** Of WORD_ACTION. */
    CGUIDialogManager::EOldDialogAction m_eAction = CGUIDialogManager::ODA_NOTHING;

    /** Of WORD_PRIORITY. */
    CGUIDialogManager::PopupPriority_t m_ePriority = CGUIDialogManager::PRIO_LOWEST;
    eC_UInt m_uiNumber = 0;  ///< of WORD_NUMBER
    eC_Bool m_bFlag = false; ///< of WORD_FLAG
};

/** Reads a word.
 *  @param pcWord the word, zero-terminated
 *  @param kValueOUT receives the text and, if it is of that kind, the value
 *  @return null, or what was expected, as it follows "expected " in a message
 */
const eC_Char* ReadWord(EWordKind eKind, const eC_Char* pcWord, WordValue_t& kValueOUT);

/** Receives the result of a command in pieces. */
class CCommandResult
{
public:
    virtual ~CCommandResult() = default;

    /** Receives a piece of the text, zero-terminated. */
    virtual void Add(const eC_Char* pcText) = 0;

    void AddNumber(eC_UInt uiNumber);           ///< in decimal
    void AddInteger(eC_Int iNumber);            ///< likewise, with a minus if it is negative
    void AddHandle(ObjectHandle_t eHandle);     ///< the constant's name, or the number
    void AddObject(const CGUIObject* pkObject); ///< its identifier, or "null"
    void AddFlag(eC_Bool bFlag);                ///< "true" or "false"
    void AddQuoted(const eC_Char* pcText);      ///< in double quotes
};

/** The largest number of words after the name of a command in the table. */
constexpr eC_UInt cuiMostCommandWords = 5;

/** A command. */
struct ManagerCommand_t
{
    const eC_Char* m_pcUsage; ///< the name, and the arguments in angle brackets
    const eC_Char* m_pcKinds; ///< an EWordKind for each argument

    /** Executes it. Exceptions of the operation reach the caller. */
    void (*m_pfnExecute)(CGUIDialogManager& kManager, const WordValue_t* pkWords, CCommandResult& kResult);
    eC_Bool m_bIsPreparation; ///< it changes nothing but definitions
};

/** @param uiCountOUT receives how many there are
 *  @return the table: every public operation of CGUIDialogManager, then what an application does to its
 * objects
 */
const ManagerCommand_t* GetManagerCommands(eC_UInt& uiCountOUT);

#endif
