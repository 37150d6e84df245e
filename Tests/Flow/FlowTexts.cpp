// SPDX-License-Identifier: MIT
#include "FlowTexts.h"

#include <gtest/gtest.h>

std::string MakeFlow(const std::string& kStatements)
{
    return "<Flow name='Test' home='DLG_A'>\n"
           "<Key name='next' input='next'/><Key name='ok' input='activate'/><Key name='back'/>\n"
           "<DialogDefinition id='DLG_A'><Screen><Button id='BTN_A'/><Button id='BTN_A2'/></Screen>"
           "</DialogDefinition>\n"
           "<DialogDefinition id='DLG_B'><Screen><Button id='BTN_B'/></Screen></DialogDefinition>\n"
           "<PopupDefinition id='POP_P'><Popup/></PopupDefinition>\n"
           "<Start><create dialog='DLG_A' action='ODA_NOTHING'/></Start>\n" +
           kStatements + "\n</Flow>";
}

std::shared_ptr<const FlowModel_t> ReadText(const std::string& kText)
{
    std::string kError;
    std::shared_ptr<const FlowModel_t> pkFlow = ParseFlow("Test.xml", kText, kError);
    EXPECT_EQ("", kError);
    return pkFlow;
}

std::string GetMistake(const std::string& kText)
{
    std::string kError;
    EXPECT_EQ(nullptr, ParseFlow("Test.xml", kText, kError));
    return kError;
}
