// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_OPERATIONFORM_H
#define SIMULATOR_OPERATIONFORM_H

/** @file
 *  A form for the arguments of a command.
 */

#include "Simulator/InspectorText.h"
#include "Simulator/LineEditor.h"

#include <string>
#include <vector>

/** Asks for the arguments of a command, each with its choices: the dialogs, popups and objects that there
 * are, the actions, the priorities, true and false. Anything else can be typed as well.
 */
class COperationForm
{
public:
    /** @param kUsage the command and its arguments: "CreateDialog <dialog> <action>"
     *  @param kNames what there is to choose from
     */
    COperationForm(const std::string& kUsage, const StateNames_t& kNames);

    /** Handles a key: Tab, BackTab and Enter go from field to field, the arrows up and down choose, and the
     *  others edit.
     *  @return true if it is Enter in the last field: the line is complete
     */
    eC_Bool PressKey(const std::string& kKey);

    /** Makes a field the one that keys edit. @param uiField less than the number of fields */
    void Select(std::size_t uiField) { m_uiSelected = uiField; }

    /** @return the command with its arguments; empty fields of optional arguments are left out */
    std::string GetLine() const;

    const std::string& GetCommand() const { return m_kCommand; }
    std::size_t GetCount() const { return m_kFields.size(); }
    std::size_t GetSelected() const { return m_uiSelected; }
    const std::string& GetLabel(std::size_t uiField) const { return m_kFields[uiField].m_kLabel; }
    const CLineEditor& GetEditor(std::size_t uiField) const { return m_kFields[uiField].m_kEditor; }

    /** @return the choices of the selected field that contain what was typed into it */
    std::vector<std::string> GetChoices() const;

private:
    struct Field_t
    {
        std::string m_kLabel;
        std::vector<std::string> m_kChoices;
        CLineEditor m_kEditor;
        std::string m_kTyped; ///< empty until somebody has typed something
    };

    void Choose(eC_Bool bNext);

    std::string m_kCommand;
    std::vector<Field_t> m_kFields;
    std::size_t m_uiSelected = 0;
};

#endif
