// SPDX-License-Identifier: MIT
#ifndef FLOW_FLOWCONTENTS_H
#define FLOW_FLOWCONTENTS_H

/** @file
 *  What the widgets of a flow show.
 */

#include "Flow/FlowModel.h"
#include "Widgets/GUIWidgetContents.h"

/** The contents of all widgets as long as it exists; then those of the one before it are again. Texts are
 * those of the flow. A flow has no values: every name of one is known, and shows nothing.
 */
class CFlowContents : private CGUITranslator, private CGUIValueSource
{
public:
    /** @param kFlow outlives the contents */
    explicit CFlowContents(const FlowModel_t& kFlow);
    CFlowContents(const CFlowContents&) = delete;
    CFlowContents& operator=(const CFlowContents&) = delete;
    ~CFlowContents();

private:
    eC_Bool FindText(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT) const override;
    const eC_Char* GetText(GUIContentKey_t uiKey) const override;
    eC_Bool FindValue(const eC_Char* pcName, GUIContentKey_t& uiValueOUT) const override;
    const eC_Char* GetValueText(GUIContentKey_t uiValue) const override;
    eC_Int GetValueNumber(GUIContentKey_t uiValue) const override;

    static void Use(CFlowContents* pkContents);

    static CFlowContents* ms_pkUsed;

    const FlowModel_t& m_kFlow;
    CFlowContents* m_pkBefore;
};

#endif
