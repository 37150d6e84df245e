// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONCOMMANDS_H
#define INSPECTION_INSPECTIONCOMMANDS_H

/** @file
 *  Executes the lines that come in, in fixed memory.
 */

#include "Scenario/ManagerCommands.h"

/** What is answered to one line. A text that is longer than its memory is cut between two characters. */
class CInspectionReply : public CCommandResult
{
public:
    void Add(const eC_Char* pcText) override;

    /** Replaces what was added by what is wrong: "expected ..., found '...'".
     *  @param pcExpected what was expected
     *  @param pcFound the word that was found, of which the beginning is told; null: the end of the line
     */
    void Refuse(const eC_Char* pcExpected, const eC_Char* pcFound);

    /** Likewise, without a word that was found. */
    void Refuse(const eC_Char* pcExpected);

    /** Likewise, in other words. @param pcWhy what is wrong */
    void RefuseWith(const eC_Char* pcWhy);

    eC_Bool IsRefusal() const { return m_bIsRefusal; }
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

/** Executes lines. An application allows input by giving one to CInspectionLink::AllowInput. */
class CInspectionHandler
{
public:
    virtual ~CInspectionHandler() = default;

    /** Executes a line.
     *  @param pcLine printable UTF-8, zero-terminated, neither empty nor a comment; may be changed
     *  @param kReply takes the result, or why the line is refused; then nothing has changed. What is thrown
     *         passes to the link, which replies with it.
     */
    virtual void Execute(eC_Char* pcLine, CInspectionReply& kReply) = 0;
};

/** The commands of scenarios that need neither a heap nor a clock of their own (see ManagerCommands.h), and
 * those of the application. Executing allocates nothing but what the operation does.
 */
class CInspectionCommands : public CInspectionHandler
{
public:
    /** @param kManager what the commands work on; not owned
     *  @param pkOwn commands of the application, in the same form; they come first. Not owned.
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
