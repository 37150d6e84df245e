// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONCOMMANDS_H
#define INSPECTION_INSPECTIONCOMMANDS_H

/** @file
 *  Executes input lines in fixed memory.
 */

#include "Scenario/ManagerCommands.h"

/** The reply to one line. A text longer than its memory is cut between two characters. */
class CInspectionReply : public CCommandResult
{
public:
    void Add(const eC_Char* pcText) override;

    /** Replaces the text with what is wrong: "expected ..., found '...'".
     *  @param pcExpected what was expected
     *  @param pcFound the word that was found, of which the beginning is quoted; null: the end of the line
     */
    void Refuse(const eC_Char* pcExpected, const eC_Char* pcFound);

    /** The same, without a word that was found. */
    void Refuse(const eC_Char* pcExpected);

    /** The same, in other words. @param pcWhy what is wrong */
    void RefuseWith(const eC_Char* pcWhy);

    /** @return true if the line was refused */
    eC_Bool IsRefusal() const { return m_bIsRefusal; }

    /** @return true if the text was too long and its end is missing */
    eC_Bool IsCut() const { return m_bIsCut; }
    const eC_Char* GetText() const { return m_acText; } ///< zero-terminated

private:
    void AddSome(const eC_Char* pcText, eC_UInt uiMost);

    static constexpr eC_UInt cuiSize = 160;

    eC_Char m_acText[cuiSize] = {};
    eC_UInt m_uiLength = 0;
    eC_Bool m_bIsRefusal = false;
    eC_Bool m_bIsCut = false;
};

/** Executes lines. An application allows input by passing a handler to CInspectionLink::AllowInput. */
class CInspectionHandler
{
public:
    virtual ~CInspectionHandler() = default;

    /** Executes a line.
     *  @param pcLine printable UTF-8, zero-terminated, neither empty nor a comment; may be modified
     *  @param kReply receives the result, or why the line is refused; a refused line changes nothing. The
     *         link catches exceptions and replies with them.
     */
    virtual void Execute(eC_Char* pcLine, CInspectionReply& kReply) = 0;
};

/** The scenario commands that need neither a heap nor a clock of their own (see ManagerCommands.h), and the
 *  application's own commands. Executing a command allocates only what its operation does.
 */
class CInspectionCommands : public CInspectionHandler
{
public:
    /** @param kManager the manager that the commands control; not owned
     *  @param pkOwn commands of the application, in the same form; they take precedence. Not owned.
     *  @param uiOwn how many
     */
    explicit CInspectionCommands(CGUIDialogManager& kManager, const ManagerCommand_t* pkOwn = nullptr,
                                 eC_UInt uiOwn = 0)
        : m_kManager(kManager), m_pkOwn(pkOwn), m_uiOwn(uiOwn)
    {
    }

    void Execute(eC_Char* pcLine, CInspectionReply& kReply) override;

private:
    const ManagerCommand_t* FindCommand(const eC_Char* pcName) const;

    CGUIDialogManager& m_kManager;
    const ManagerCommand_t* m_pkOwn;
    eC_UInt m_uiOwn;
};

#endif
