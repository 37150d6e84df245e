// SPDX-License-Identifier: MIT
#include "CheckedFlow.h"

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <iterator>
#include <set>

namespace
{
/** A defect, and how the checker reports it. */
struct Defect_t
{
    eC_UInt m_uiProperty;
    const eC_Char* m_pcName;
    const eC_Char* m_pcStatements; ///< what MakeFlow gets
    const eC_Char* m_pcFinding;    ///< one of the lines of GetFindings, with the shortest way
};

std::ostream& operator<<(std::ostream& kStream, const Defect_t& kDefect)
{
    return kStream << 'P' << kDefect.m_uiProperty << ' ' << kDefect.m_pcName;
}

class CPlantedDefectTest : public testing::TestWithParam<Defect_t>
{
};

const Defect_t cakDefects[] = {
    // --- P1: dead design ---
    {1, "DialogWithoutAWay", "<On button='BTN_A'><show-popup popup='POP_P'/></On>",
     "DLG_B cannot be reached\n"},
    {1, "PopupThatNothingShows", "<On button='BTN_A'><create dialog='DLG_B'/></On>",
     "POP_P cannot be reached\n"},
    {1, "WayThatAFlagCloses", "<Flag name='f'/><On button='BTN_A' when='f'><create dialog='DLG_B'/></On>",
     "DLG_B cannot be reached\n"},
    {1, "FileThatIsNotThere",
     "<DialogDefinition id='DLG_C' file='/nowhere/C.xml'/><On button='BTN_A'><create dialog='DLG_C'/></On>",
     "DLG_C does not load: /nowhere/C.xml:1:1: cannot open (No such file or directory); expected a readable "
     "file\n"},
    {1, "NameWithoutDefinition",
     "<Handle id='POP_OLD'/><On button='BTN_A'><show-popup popup='POP_OLD'/></On>",
     "is not registered and therefore can not be displayed: ok\n"},

    // --- P2: dead ends ---
    {2, "DialogWithoutAWayOut", "<On button='BTN_A'><create dialog='DLG_B'/></On>",
     "from DLG_B no keys lead to DLG_A: ok\n"},
    {2, "HistoryThatIsGone", "<On button='BTN_A2'><clear/></On>",
     "from NO_HANDLE no keys lead to DLG_A: next, ok\n"},
    {2, "WayBackThatAFlagCloses",
     "<Flag name='f'/><On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><set flag='f'/></On>"
     "<On key='back' when='!f'><back/></On>",
     "from DLG_B no keys lead to DLG_A: ok, ok\n"},
    {2, "ModalPopupThatNothingCloses",
     "<PopupDefinition id='POP_M'><Popup modal='true'/></PopupDefinition>"
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><back/></On>"
     "<On key='back'><show-popup popup='POP_M'/></On>",
     "from DLG_B no keys lead to DLG_A: ok, back\n"},

    // --- P3: broken undo ---
    {3, "DestroyedOnTheWay",
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><destroy object='DLG_A'/></On>",
     "back from DLG_B leads to NO_HANDLE instead of DLG_A: ok, ok\n"},
    {3, "FocusOfADeletedDialogWithoutIdentifier",
     "<DialogDefinition id='DLG_C'><Screen><Button id='BTN_C'/><Button/></Screen></DialogDefinition>"
     "<On button='BTN_A'><create dialog='DLG_C'/></On><On key='back'><create dialog='DLG_B' "
     "action='ODA_DELETE'/></On>",
     "back from DLG_B: the focus is on NO_HANDLE instead of 1001: ok, next, back\n"},
    {3, "HiddenBelow",
     "<On button='BTN_A'><create dialog='DLG_B' action='ODA_NOTHING'/></On>"
     "<On key='back'><hide object='DLG_A'/></On>",
     "back from DLG_B: DLG_A is current and not visible: ok, back\n"},
    {3, "DestroyedBelow",
     "<DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
     "<On button='BTN_A'><create dialog='DLG_B'/></On>"
     "<On button='BTN_B'><create dialog='DLG_C' action='ODA_NOTHING'/></On>"
     "<On key='back'><destroy object='DLG_B'/></On>",
     "back from DLG_C leads to NO_HANDLE instead of DLG_B: ok, ok, back\n"},

    // --- P4: growing histories ---
    {4, "ToAndFro",
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><create dialog='DLG_A'/></On>",
     "in DLG_A the last 2 steps can be repeated for ever, and each time the history grows: ok, ok, ok, ok\n"},
    {4, "ToItself", "<On key='back'><create dialog='DLG_A'/></On>",
     "in DLG_A the last step can be repeated for ever, and each time the history grows: back, back\n"},
    {4, "RoundInCircles",
     "<DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
     "<On key='back' when='DLG_A'><create dialog='DLG_B' action='ODA_DELETE'/></On>"
     "<On key='back' when='DLG_B'><create dialog='DLG_C' action='ODA_DELETE'/></On>"
     "<On key='back' when='DLG_C'><create dialog='DLG_A' action='ODA_DELETE'/></On>",
     "in DLG_B the last 3 steps can be repeated for ever, and each time the history grows: back, back, back, "
     "back\n"},
    {4, "ByItself",
     "<Timer name='t' time='1000' repeats='true' starts='true'/>"
     "<On timer='t' when='DLG_A'><create dialog='DLG_B'/></On><On timer='t'><create dialog='DLG_A'/></On>",
     "can be repeated for ever, and each time the history grows: t runs out, t runs out, t runs out"},

    // --- P5: too much of something ---
    {5, "ScreenLargerThanTheMemory",
     "<DialogDefinition id='DLG_C'><Screen><Label/><Label/><Label/></Screen></DialogDefinition>"
     "<On button='BTN_A'><create dialog='DLG_B' action='ODA_DELETE'/></On>"
     "<On button='BTN_B'><create dialog='DLG_C'/></On><AtMost objects='5'/>",
     "at most 5 objects: 6 in DLG_C: ok, ok\n"},
    {5, "HiddenInsteadOfDeleted", "<On button='BTN_A2'><create dialog='DLG_B'/></On><AtMost objects='4'/>",
     "at most 4 objects: 5 in DLG_B: next, ok\n"},
    {5, "WayThatIsTooDeep",
     "<DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><create dialog='DLG_C'/></On>"
     "<AtMost name='shallow' entries='1'/>",
     "shallow (at most 1 entries): 2 in DLG_C: ok, ok\n"},
    {5, "EntriesWithoutEnd",
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><create dialog='DLG_A'/></On>"
     "<AtMost entries='100'/>",
     "at most 100 entries: the history grows for ever: ok, ok, ok, ok\n"},
    {5, "PopupsAtTheSameTime",
     "<PopupDefinition id='POP_Q' time='1000'><Popup/></PopupDefinition><Signal name='s'/>"
     "<On button='BTN_A'><show-popup popup='POP_P'/></On><On signal='s'><show-popup popup='POP_Q'/></On>"
     "<AtMost popups='1'/>",
     "at most 1 popups: 2 in DLG_A: ok, s\n"},

    // --- P6: starvation ---
    {6, "AlwaysCovered",
     "<PopupDefinition id='POP_H' priority='9'><Popup/></PopupDefinition>"
     "<On button='BTN_A'><show-popup popup='POP_H'/><show-popup popup='POP_P'/></On>"
     "<On button='BTN_A2'><close-popup popup='POP_P'/><close-popup popup='POP_H'/></On>",
     "POP_P is listed and never shown: ok\n"},
    {6, "CoveredForEver",
     "<PopupDefinition id='POP_H' priority='9'><Popup/></PopupDefinition>"
     "<On button='BTN_A'><show-popup popup='POP_P'/></On>"
     "<On button='BTN_A2'><show-popup popup='POP_H'/></On>",
     "POP_P waits for ever: nothing shows or closes it: ok, next, ok\n"},
    {6, "CoveredAgainAndAgain",
     "<PopupDefinition id='POP_H' priority='9' time='500'><Popup/></PopupDefinition>"
     "<Timer name='t' time='300' repeats='true'/>"
     "<On button='BTN_A'><show-popup popup='POP_P'/><start timer='t'/></On>"
     "<On timer='t'><show-popup popup='POP_H'/></On><On key='back'><stop timer='t'/><close-popup "
     "popup='POP_P'/></On>",
     "POP_P waits for ever when nobody presses a key: others run out and come again: ok, t runs out, t runs "
     "out\n"},

    // --- P7: lost focus ---
    {7, "TwoOfOneName",
     "<DialogDefinition id='DLG_C'><Screen><Button id='BTN_C'/><Button "
     "id='BTN_C'/></Screen></DialogDefinition>"
     "<On button='BTN_A'><create dialog='DLG_C'/></On>",
     "in DLG_C the focus is on one of several BTN_C: ok\n"},
    {7, "WithoutName",
     "<DialogDefinition id='DLG_C'><Screen><Button/></Screen></DialogDefinition>"
     "<On button='BTN_A'><create dialog='DLG_C'/></On>",
     "in DLG_C the focus is on an object without identifier, which cannot be found again: ok\n"},
    {7, "Hidden", "<On button='BTN_A'><hide object='BTN_A'/></On>", "in DLG_A nothing has the focus: ok\n"},
    {7, "Destroyed", "<On button='BTN_A2'><destroy object='BTN_A2'/></On>",
     "in DLG_A nothing has the focus: next, ok\n"},

    // --- P8: endless ways back ---
    {8, "DestroyedOnTheWay",
     "<DialogDefinition id='DLG_C'><Screen><Button id='BTN_C'/></Screen></DialogDefinition>"
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><create dialog='DLG_C'/></On>"
     "<On button='BTN_C'><destroy object='DLG_B'/></On>"
     "<On key='back' when='past:DLG_A'><back-to dialog='DLG_A' stepwise='true'/></On>",
     "a stepwise way back never ends: ok, ok, ok, back\n"},
    {8, "TargetDestroyed",
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><destroy object='DLG_A'/></On>"
     "<On key='back' when='past:DLG_A'><back-to dialog='DLG_A' stepwise='true'/></On>",
     "a stepwise way back never ends: ok, ok, back\n"},
    {8, "LeftVisibleAndDestroyed",
     "<DialogDefinition id='DLG_C'><Screen><Button id='BTN_C'/></Screen></DialogDefinition>"
     "<On button='BTN_A' when='DLG_A'><create dialog='DLG_B' action='ODA_NOTHING'/></On>"
     "<On key='back' when='DLG_B'><create dialog='DLG_C' action='ODA_DELETE_ALL'/></On>"
     "<On key='back' when='DLG_C'><back-to dialog='DLG_B'/><destroy object='DLG_A'/></On>"
     "<On button='BTN_A2'><back-to dialog='DLG_A' stepwise='true' when='past:DLG_A'/></On>"
     "<On button='BTN_B'><back-to dialog='DLG_A' stepwise='true' when='past:DLG_A'/></On>",
     "a stepwise way back never ends: ok, back, back, next, ok\n"},

    // --- P9: stuck, or not ---
    {9, "DoesNotStay",
     "<Timer name='t' time='1000'/><On button='BTN_A'><create dialog='DLG_B'/><start timer='t'/></On>"
     "<On timer='t'><back/></On>",
     "DLG_B does not stay: t runs out, and DLG_A comes: ok, t runs out\n"},
    {9, "NothingHappens", "<On button='BTN_A'><create dialog='DLG_B'/></On><LeftAlone reach='DLG_A'/>",
     "left alone, DLG_A: DLG_B ends in DLG_B: ok\n"},
    {9, "RoundInCircles",
     "<DialogDefinition id='DLG_C'><Screen/></DialogDefinition><Timer name='t' time='1000' repeats='true'/>"
     "<On button='BTN_A'><create dialog='DLG_B'/><start timer='t'/></On>"
     "<On timer='t' when='DLG_B'><create dialog='DLG_C'/></On><On timer='t'><back/></On>"
     "<On button='BTN_B'><stop timer='t'/></On><LeftAlone from='DLG_B' reach='DLG_A'/>"
     "<LeftAlone from='DLG_C' reach='DLG_B'/>",
     "left alone from DLG_B, DLG_A: DLG_B goes round in circles: ok, t runs out\n"},
    {9, "OnlyInOneOrder",
     "<Timer name='t' time='1000'/><Timer name='u' time='3000'/>"
     "<On button='BTN_A'><start timer='u'/></On><On key='back'><create dialog='DLG_B'/><start "
     "timer='t'/></On>"
     "<On timer='t' when='past:DLG_A'><back/></On><On timer='u'><stop timer='t'/></On>"
     "<LeftAlone reach='DLG_A'/>",
     "left alone, DLG_A: DLG_B ends in DLG_B: ok, back, u runs out\n"},

    // --- P10: claims ---
    {10, "Never", "<On button='BTN_A'><create dialog='DLG_B'/></On><Never when='DLG_B'/>",
     "never DLG_B: not in DLG_B: ok\n"},
    {10, "Always",
     "<Flag name='f'/><On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><set flag='f'/></On>"
     "<Always from='DLG_B' when='!f'/>",
     "always !f from DLG_B: not in DLG_B: ok, ok\n"},
    {10, "Within",
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On key='back'><back/></On>"
     "<Within reach='DLG_B' keys='1'/>",
     "DLG_B within 1 keys: from DLG_A it takes 2 keys: next\n"},
    {10, "WithoutTheCode",
     "<Flag name='code'/><On button='BTN_A'><set flag='code'/></On>"
     "<On button='BTN_A2'><create dialog='DLG_B' when='code'/></On>"
     "<On key='back' when='DLG_A !past:DLG_A'><create dialog='DLG_B'/></On>"
     "<Never name='the code' when='DLG_B !code'/>",
     "the code (never DLG_B !code): not in DLG_B: back\n"},

    // --- P11: double taps ---
    {11, "Toggle",
     "<Flag name='f'/><On button='BTN_A'><set flag='f' value='toggle'/></On><Harmless button='BTN_A'/>",
     "BTN_A twice is harmless: the second press leads from DLG_A to DLG_A: ok, ok\n"},
    {11, "BackTwice",
     "<DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><create dialog='DLG_C'/></On>"
     "<On key='back'><back/></On><Harmless key='back'/>",
     "back twice is harmless: the second press leads from DLG_B to DLG_A: ok, ok, back, back\n"},
    {11, "WhatIsUnderTheFinger",
     "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><show-popup popup='POP_P'/></On>"
     "<Harmless button='BTN_A'/>",
     "BTN_A twice is harmless: the second press leads from DLG_B to DLG_B: ok, ok\n"},

    // --- P12: errors ---
    {12, "NotInTheHistory", "<On key='back'><back-to dialog='DLG_B'/></On>",
     "is not contained in the dialog history: back\n"},
    {12, "DoesNotLoad",
     "<DialogDefinition id='DLG_C' file='/nowhere/C.xml'/><On button='BTN_A2'><create dialog='DLG_C'/></On>",
     "CFlowDialogReader::Read: /nowhere/C.xml:1:1: cannot open (No such file or directory); expected a "
     "readable "
     "file: next, ok\n"},
    {12, "FocusOnWhatIsGone",
     "<On button='BTN_A'><destroy object='BTN_A2'/></On><On key='back'><focus object='BTN_A2'/></On>",
     "BTN_A2: the object is not there: ok, back\n"},
    {12, "PopupWhoseObjectIsGone",
     "<On button='BTN_A'><show-popup popup='POP_P'/></On><On key='back'><destroy object='POP_P'/></On>"
     "<On button='BTN_A2'><create dialog='DLG_B'/></On>",
     "The popup definition contains NULL pointer! The popup is removed from the active popup list: "},
};

std::string NameDefect(const testing::TestParamInfo<Defect_t>& kInfo)
{
    return "P" + std::to_string(kInfo.param.m_uiProperty) + "_" + kInfo.param.m_pcName;
}
} // namespace

TEST_P(CPlantedDefectTest, IsFoundByAShortestWay)
{
    CCheckedFlow kFlow(MakeFlow(GetParam().m_pcStatements));
    const std::string kFindings = kFlow.GetFindings(GetParam().m_uiProperty);
    EXPECT_NE(std::string::npos, kFindings.find(GetParam().m_pcFinding)) << kFindings;
}

TEST_P(CPlantedDefectTest, IsShownByItsScenario)
{
    CCheckedFlow kFlow(MakeFlow(GetParam().m_pcStatements));
    kFlow.ExpectThatScenariosLeadToTheirStates(GetParam().m_uiProperty);
}

TEST_P(CPlantedDefectTest, IsFoundForAllHistories)
{
    const Defect_t& kDefect = GetParam();
    CCheckedFlow kFlow(MakeFlow(kDefect.m_pcStatements));
    kFlow.ExploreExactly();
    if (!kFlow.m_kObstacle.empty())
    {
        EXPECT_EQ(8U, kDefect.m_uiProperty) << kFlow.m_kObstacle; // going back step by step is not decided
        return;
    }
    // Which of several ways is found, and so which dialog is named, may differ.
    const std::string kFinding = kDefect.m_pcFinding;
    const std::string kExpected =
        kDefect.m_uiProperty == 4 ? "the history grows" : kFinding.substr(0, kFinding.find(':'));
    const std::string kFindings = kFlow.GetFindings(kDefect.m_uiProperty);
    EXPECT_NE(std::string::npos, kFindings.find(kExpected)) << kFindings;
}

INSTANTIATE_TEST_SUITE_P(Defects, CPlantedDefectTest, testing::ValuesIn(cakDefects), NameDefect);

TEST_P(CPlantedDefectTest, IsNotFoundWithFewerSteps)
{
    const Defect_t& kDefect = GetParam();
    const std::string kFinding = kDefect.m_pcFinding;
    CCheckedFlow kFlow(MakeFlow(kDefect.m_pcStatements));
    const std::size_t uiSteps = kFlow.GetStepsOf(kDefect.m_uiProperty, kFinding);
    if (uiSteps == 0)
    {
        return; // it is there from the start
    }
    // Every way with fewer steps lies within this depth, and some longer ones.
    ExplorerBounds_t kBounds;
    kBounds.m_uiDepth = static_cast<eC_UInt>(uiSteps) - 1;
    CCheckedFlow kShorter(MakeFlow(kDefect.m_pcStatements), kBounds);
    const std::size_t uiFewer =
        kShorter.GetStepsOf(kDefect.m_uiProperty, kFinding.substr(0, kFinding.find(": ")));
    EXPECT_TRUE(uiFewer == 0 || uiFewer >= uiSteps) << kShorter.GetFindings(kDefect.m_uiProperty);
}

namespace
{
/** @return what a defect is made of: its elements and attributes, without their values, sorted */
std::multiset<std::string> GetShape(const std::string& kStatements)
{
    std::multiset<std::string> kShape;
    std::string kWord;
    eC_Bool bIsQuoted = false;
    for (const eC_Char cCharacter : kStatements)
    {
        bIsQuoted = bIsQuoted != (cCharacter == '\'');
        if (!bIsQuoted && (std::isalpha(cCharacter) != 0 || cCharacter == '-'))
        {
            kWord += cCharacter;
        }
        else if (!kWord.empty())
        {
            kShape.insert(kWord);
            kWord.clear();
        }
    }
    return kShape;
}

/** @return "DialogWithoutAWay" as "dialog without a way" */
std::string SplitWords(const std::string& kName)
{
    std::string kText;
    for (const eC_Char cCharacter : kName)
    {
        const eC_Bool bBegins = std::isupper(cCharacter) != 0;
        kText += bBegins && !kText.empty() ? " " : "";
        kText += static_cast<eC_Char>(std::tolower(cCharacter));
    }
    return kText;
}
} // namespace

TEST(CPlantedDefectsTest, EachPropertyHasThreeOfDifferentShapeOrMore)
{
    for (eC_UInt uiProperty = 1; uiProperty <= cuiProperties; ++uiProperty)
    {
        std::set<std::multiset<std::string>> kShapes;
        std::size_t uiDefects = 0;
        for (const Defect_t& kDefect : cakDefects)
        {
            if (kDefect.m_uiProperty == uiProperty)
            {
                kShapes.insert(GetShape(kDefect.m_pcStatements));
                ++uiDefects;
            }
        }
        EXPECT_EQ(uiDefects, kShapes.size()) << "P" << uiProperty;
        EXPECT_GE(kShapes.size(), 3U) << "P" << uiProperty;
    }
}

TEST(CPlantedDefectsTest, ThePageAboutFlowsListsThem)
{
    std::ifstream kFile(std::string(DIALOGMANAGER_SOURCE_DIRECTORY) + "/Docs/Flows.md");
    const std::string kPage((std::istreambuf_iterator<eC_Char>(kFile)), std::istreambuf_iterator<eC_Char>());
    for (eC_UInt uiProperty = 1; uiProperty <= cuiProperties; ++uiProperty)
    {
        std::string kLine;
        for (const Defect_t& kDefect : cakDefects)
        {
            if (kDefect.m_uiProperty == uiProperty)
            {
                kLine += (kLine.empty() ? "" : "; ") + SplitWords(kDefect.m_pcName);
            }
        }
        const std::string kRow = "| P" + std::to_string(uiProperty) + " | " + kLine + " |\n";
        EXPECT_NE(std::string::npos, kPage.find(kRow)) << kRow;
    }
}

TEST(CCleanFlowTest, HasNoFindings)
{
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>"
                                "<On button='BTN_B'><show-popup popup='POP_P'/></On>"
                                "<On key='back'><close-popup popup='POP_P'/><back/></On>"
                                "<Within reach='DLG_A' keys='1'/><Harmless key='back' from='past:DLG_A'/>"));
    EXPECT_TRUE(kFlow.m_kSpace.m_bIsComplete);
    for (eC_UInt uiProperty = 1; uiProperty <= cuiProperties; ++uiProperty)
    {
        EXPECT_EQ("", kFlow.GetFindings(uiProperty)) << "P" << uiProperty;
    }
    kFlow.ExploreExactly();
    EXPECT_TRUE(kFlow.m_kSpace.NeedsPushdown());
    for (eC_UInt uiProperty = 1; uiProperty <= cuiProperties; ++uiProperty)
    {
        EXPECT_EQ("", kFlow.GetFindings(uiProperty)) << "P" << uiProperty;
    }
}
