// SPDX-License-Identifier: MIT
#include "RandomFlow.h"

#include <random>
#include <vector>

namespace
{
constexpr const eC_Char* capcActions[] = {"ODA_INVISIBLE", "ODA_INVISIBLE_ALL", "ODA_DELETE",
                                          "ODA_DELETE_ALL", "ODA_NOTHING"};

/** Writes one flow. */
class CRandomFlow
{
public:
    explicit CRandomFlow(eC_UInt uiSeed) : m_kRandom(uiSeed)
    {
        m_uiDialogs = Choose(2, 6);
        m_uiPopups = Choose(0, 3);
        m_bCutsAtDialog = Choose(0, 1) == 0;
    }

    std::string Write()
    {
        std::string kText = "<Flow name='Random' home='DLG_0'><Key name='next' input='next'/>"
                            "<Key name='ok' input='activate'/><Key name='back'/><Signal name='s'/>";
        for (eC_UInt uiDialog = 0; uiDialog < m_uiDialogs; ++uiDialog)
        {
            const std::string kNumber = std::to_string(uiDialog);
            // Two buttons in every dialog would make too many states.
            m_kHasSecond.push_back(Choose(0, 3) == 0);
            kText.append("<DialogDefinition id='DLG_").append(kNumber).append("'><Screen><Button id='BTN_");
            kText.append(kNumber).append("A'/>");
            kText += m_kHasSecond.back() ? "<Button id='BTN_" + kNumber + "B'/>" : "";
            kText += "</Screen></DialogDefinition>";
        }
        for (eC_UInt uiPopup = 0; uiPopup < m_uiPopups; ++uiPopup)
        {
            kText += "<PopupDefinition id='POP_" + std::to_string(uiPopup) + "' priority='" +
                     std::to_string(Choose(1, 3)) + "' time='" + std::to_string(1000 * Choose(0, 2)) +
                     "' delete-on-close='" + (Choose(0, 1) == 0 ? "true" : "false") +
                     "'><Popup/></PopupDefinition>";
        }
        kText += "<Start><create dialog='DLG_0' action='ODA_NOTHING'/></Start>";
        for (eC_UInt uiDialog = 0; uiDialog < m_uiDialogs; ++uiDialog)
        {
            kText += "<On button='BTN_" + std::to_string(uiDialog) + "A'>" + WriteAction() + "</On>";
            if (m_kHasSecond[uiDialog])
            {
                kText += "<On button='BTN_" + std::to_string(uiDialog) + "B'>" + WriteAction() + "</On>";
            }
        }
        kText = kText + "<On key='back'><back delete='" + (Choose(0, 1) == 0 ? "true" : "false") +
                "'/></On>" + "<On signal='s'>" + WriteAction() + "</On>";
        return kText + WriteTimer() + WriteClaims() + "</Flow>";
    }

private:
    eC_UInt Choose(eC_UInt uiLeast, eC_UInt uiMost)
    {
        return std::uniform_int_distribution<eC_UInt>(uiLeast, uiMost)(m_kRandom);
    }

    std::string ChooseDialog() { return "dialog='DLG_" + std::to_string(Choose(0, m_uiDialogs - 1)) + "'"; }

    /** Every fourth flow has a timer, which a key starts. */
    std::string WriteTimer()
    {
        return Choose(0, 3) != 0 ? ""
                                 : "<Timer name='t' time='1500'/><Key name='timer'/>"
                                   "<On key='timer'><start timer='t'/></On><On timer='t'>" +
                                       WriteAction() + "</On>";
    }

    std::string WriteClaims()
    {
        const std::string kOne = std::to_string(Choose(0, m_uiDialogs - 1));
        const std::string kOther = std::to_string(Choose(0, m_uiDialogs - 1));
        std::string kText = "<Never when='DLG_" + kOne + " past:DLG_" + kOther + "'/>";
        kText += "<Always from='DLG_" + kOther + "' when='!past:DLG_" + kOne + "'/>";
        kText += "<Within reach='DLG_" + kOne + "' keys='" + std::to_string(Choose(1, 4)) + "'/>";
        kText += "<LeftAlone from='DLG_" + kOther + "' reach='!DLG_" + kOther + "'/>";
        return kText + "<Harmless key='back' from='DLG_" + kOne + "'/><Harmless button='BTN_" + kOther +
               "A'/>";
    }

    std::string WriteAction()
    {
        switch (Choose(0, 9))
        {
        case 0:
            return m_bCutsAtDialog ? "<back-to " + ChooseDialog() + "/>"
                                   : "<clear keep='" + std::to_string(Choose(0, 2)) + "'/>";
        case 1:
            return "<back/>";
        case 2:
        case 3:
            return m_uiPopups == 0
                       ? ""
                       : "<show-popup popup='POP_" + std::to_string(Choose(0, m_uiPopups - 1)) + "'/>";
        case 4:
            return m_uiPopups == 0
                       ? ""
                       : "<close-popup popup='POP_" + std::to_string(Choose(0, m_uiPopups - 1)) + "'/>";
        default:
            return "<create " + ChooseDialog() + " action='" + capcActions[Choose(0, 4)] + "'/>";
        }
    }

    std::mt19937 m_kRandom;
    eC_UInt m_uiDialogs;
    eC_UInt m_uiPopups;
    eC_Bool m_bCutsAtDialog;
    std::vector<eC_Bool> m_kHasSecond;
};
} // namespace

std::string MakeRandomFlow(eC_UInt uiSeed)
{
    return CRandomFlow(uiSeed).Write();
}
