// SPDX-License-Identifier: MIT
#ifndef SCENARIO_SCENARIOARGUMENTS_H
#define SCENARIO_SCENARIOARGUMENTS_H

/** @file
 *  The words of one line of a scenario.
 */

#include "Core/GUIDialogManager.h"
#include "Scenario/ManagerCommands.h"

#include <string>
#include <vector>

/** Thrown for a wrong line. Deliberately not a std::exception, because the operations of a script may throw
 *  these.
 */
struct ScenarioError_t
{
    std::string m_kText; ///< what was expected and what was found
};

/** A line of a scenario, split into words that a command reads as what it needs.
 *
 *  Words are separated by blanks. A word with blanks and the empty word are in double quotes. All operations
 *  that read a word throw ScenarioError_t if it is missing or wrong.
 */
class CScenarioArguments
{
public:
    /** @throws ScenarioError_t if a quote is not closed */
    explicit CScenarioArguments(const std::string& kLine);

    /** @return the first word, the command, or the empty string */
    std::string GetCommand() const { return m_kWords.empty() ? std::string() : m_kWords.front().m_kText; }

    /** @return the number of words after the command */
    eC_UInt GetCount() const { return m_kWords.empty() ? 0 : static_cast<eC_UInt>(m_kWords.size()) - 1; }

    /** @param uiIndex which argument, 0 for the first after the command */
    const std::string& GetText(eC_UInt uiIndex) const;

    /** @return the rest of the line as it is written, from that argument on */
    std::string GetRest(eC_UInt uiIndex) const;

    /** @return the handle of that name or number */
    ObjectHandle_t GetHandle(eC_UInt uiIndex) const;

    /** @return the object below the root, visible or not, that has the handle */
    CGUIObject* GetObject(eC_UInt uiIndex) const;

    /** @return the action of that name, or any number up to 255 */
    CGUIDialogManager::EOldDialogAction GetAction(eC_UInt uiIndex) const;

    /** @return the priority of that name, or any number up to 255 */
    CGUIDialogManager::PopupPriority_t GetPriority(eC_UInt uiIndex) const;

    /** @return a number up to 4294967295 */
    eC_UInt GetNumber(eC_UInt uiIndex) const;

    /** @return true or false */
    eC_Bool GetFlag(eC_UInt uiIndex) const;

    /** @return the word as a value of any kind; its text is that of GetText */
    WordValue_t GetValue(eC_UInt uiIndex, EWordKind eKind) const;

    /** @return the index of the word among the choices
     *  @param kChoices all words that are accepted
     */
    eC_UInt GetChoice(eC_UInt uiIndex, const std::vector<std::string>& kChoices) const;

private:
    struct Word_t
    {
        std::string m_kText;
        std::size_t m_uiBegin; ///< where the word begins in the line, including its quote
    };

    [[noreturn]] void Fail(eC_UInt uiIndex, const std::string& kExpected) const;

    std::string m_kLine;
    std::vector<Word_t> m_kWords;
};

#endif
