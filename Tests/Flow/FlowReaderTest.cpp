// SPDX-License-Identifier: MIT
#include "Flow/FlowHandles.h"
#include "FlowTexts.h"

#include <gtest/gtest.h>

namespace
{
struct Mistake_t
{
    const eC_Char* m_pcStatement; ///< on line 7 of the flow
    const eC_Char* m_pcMessage;
};

std::ostream& operator<<(std::ostream& kStream, const Mistake_t& kMistake)
{
    return kStream << kMistake.m_pcStatement;
}

class CFlowMistakeTest : public testing::TestWithParam<Mistake_t>
{
};
} // namespace

TEST_P(CFlowMistakeTest, IsReportedWithItsPlaceAndWhatWasExpected)
{
    EXPECT_EQ(std::string("Test.xml:") + GetParam().m_pcMessage,
              GetMistake(MakeFlow(GetParam().m_pcStatement)));
}

const Mistake_t cakMistakes[] = {
    {"<On", "8:1: '<'; expected an attribute name, '>' or '/>'"},
    {"<Until/>",
     "7:1: unknown element 'Until'; expected one of Key, Signal, Flag, Timer, Handle, Text, "
     "DialogDefinition, PopupDefinition, Start, On, At, Never, Always, Within, LeftAlone, Harmless, "
     "AtMost, Expect"},
    {"<On button='BTN_A' kye='back'/>",
     "7:20: unknown attribute 'kye' of 'On'; expected one of button, key, signal, timer, when"},
    {"<On/>", "7:1: element 'On' with 0 occasions; expected one of button, key, signal, timer"},
    {"<On button='BTN_A' key='back'/>",
     "7:1: element 'On' with 2 occasions; expected one of button, key, signal, timer"},
    {"<On button='BTN_X'/>",
     "7:13: bad value 'BTN_X' of attribute 'button'; expected the id of an object in a dialog or popup"},
    {"<On key='next'/>",
     "7:10: bad value 'next' of attribute 'key'; expected the name of a Key without the attribute input"},
    {"<On signal='back'/>", "7:13: bad value 'back' of attribute 'signal'; expected the name of a Signal"},
    {"<On timer='back'/>", "7:12: bad value 'back' of attribute 'timer'; expected the name of a Timer"},
    {"<On key='back' when='DLG_A  !DLG_X'/>", "7:29: unknown word '!DLG_X'; expected the name of a Flag, the "
                                              "id of a dialog or popup, past: and the id "
                                              "of a dialog, or ! and one of these"},
    {"<On key='back' when='past:POP_P'/>", "7:22: unknown word 'past:POP_P'; expected the name of a Flag, "
                                           "the id of a dialog or popup, past: and the "
                                           "id of a dialog, or ! and one of these"},
    {"<On key='back'><go/></On>", "7:16: unknown action 'go'; expected one of create, back, back-to, clear, "
                                  "show-popup, close-popup, focus, "
                                  "hide, destroy, set, start, stop"},
    {"<On key='back'><create/></On>",
     "7:16: element 'create' without attribute 'dialog'; expected the id of a DialogDefinition or a Handle"},
    {"<On key='back'><create dialog='POP_P'/></On>",
     "7:32: bad value 'POP_P' of attribute 'dialog'; expected the id of a DialogDefinition or a Handle"},
    {"<On key='back'><create dialog='DLG_B' action='HIDE'/></On>",
     "7:47: bad value 'HIDE' of attribute 'action'; expected one of ODA_INVISIBLE, ODA_INVISIBLE_ALL, "
     "ODA_DELETE, ODA_DELETE_ALL, ODA_NOTHING"},
    {"<On key='back'><back delete='yes'/></On>",
     "7:30: bad value 'yes' of attribute 'delete'; expected one of true, false"},
    {"<On key='back'><clear keep='-1'/></On>",
     "7:29: bad value '-1' of attribute 'keep'; expected a number from 0 to 2147483647"},
    {"<On key='back'><back><back/></back></On>",
     "7:22: element 'back' inside 'back'; expected no elements here"},
    {"<On key='back'><set flag='f'/></On>",
     "7:27: bad value 'f' of attribute 'flag'; expected the name of a Flag"},
    {"<Flag name='f'/><On key='back'><set flag='f' value='on'/></On>",
     "7:53: bad value 'on' of attribute 'value'; expected one of true, false, toggle"},
    {"<Flag name='back'/>", "7:13: second declaration of 'back'; expected a name that nothing else has"},
    {"<Flag name='1'/>",
     "7:13: bad value '1' of attribute 'name'; expected a name of letters, digits, hyphens and underscores"},
    {"<Handle id='POP_P'/>", "7:13: second declaration of 'POP_P'; expected a name that nothing else has"},
    {"<Timer name='t'/>", "7:1: element 'Timer' without attribute 'time'; expected milliseconds"},
    {"<Timer name='t' time='0'/>",
     "7:23: bad value '0' of attribute 'time'; expected a number from 1 to 2147483647"},
    {"<Timer name='t' time='4294967297'/>",
     "7:23: bad value '4294967297' of attribute 'time'; expected a number from 1 to 2147483647"},
    {"<At time='5'/><At time='5'/>",
     "7:25: second point in time of at-5; expected one element At for each time"},
    {"<DialogDefinition id='DLG C'><Screen/></DialogDefinition>",
     "7:23: bad value 'DLG C' of attribute 'id'; expected the name of a handle: letters, digits and "
     "underscores, no digit first"},
    {"<DialogDefinition id='DLG_C'/>", "7:1: 0 elements inside 'DLG_C'; expected one, or the attribute file"},
    {"<DialogDefinition id='DLG_C' file='C.xml'><Screen/></DialogDefinition>",
     "7:1: 1 elements inside 'DLG_C'; expected none, because the dialog has a file"},
    {"<DialogDefinition id='DLG_C'><Screen><Buton/></Screen></DialogDefinition>",
     "7:38: unknown element 'Buton'; expected one of Object, Composite, Screen, Popup, Container, Label, "
     "Image, Button, CheckBox, Bar, Slider, List, TextField"},
    {"<DialogDefinition id='DLG_C'><Screen wide='1'/></DialogDefinition>",
     "7:38: unknown attribute 'wide' of 'Screen'; expected one of id, layout, gap, padding, x, y, width, "
     "height, textkey, text, source, style, invisible, focusable"},
    {"<DialogDefinition id='DLG_C'><Screen x='a'/></DialogDefinition>",
     "7:41: bad value 'a' of attribute 'x'; expected a number from -32768 to 32767"},
    {"<PopupDefinition id='POP_Q' priority='10'><Popup/></PopupDefinition>",
     "7:39: bad value '10' of attribute 'priority'; expected a number from 1 to 9, or PRIO_LOWEST to "
     "PRIO_HIGHEST"},
    {"<Never/>", "7:1: element 'Never' without attribute 'when'; expected a condition that no state fulfils"},
    {"<Within reach='DLG_A' keys='2000'/>",
     "7:29: bad value '2000' of attribute 'keys'; expected a number from 0 to 1000"},
    {"<Harmless key='back' button='BTN_A'/>",
     "7:1: element 'Harmless' without a key; expected either key or button"},
    {"<AtMost name='nothing'/>",
     "7:1: element 'AtMost' without a limit; expected objects, bytes, entries or popups"},
    {"<AtMost popups='-1'/>",
     "7:17: bad value '-1' of attribute 'popups'; expected a number from 0 to 1000000000"},
    {"<Expect property='P13' reason='r'/>",
     "7:19: bad value 'P13' of attribute 'property'; expected P1 to P12"},
    {"<Expect property='P3'/>",
     "7:1: element 'Expect' without attribute 'reason'; expected why the violation is right"},
    {"<Expect property='P3' reason=''/>",
     "7:31: bad value '' of attribute 'reason'; expected why the violation is right"},
};

INSTANTIATE_TEST_SUITE_P(Statements, CFlowMistakeTest, testing::ValuesIn(cakMistakes));

TEST(CFlowReaderTest, WithoutAnElementStart_IsAMistakeOfTheWhole)
{
    EXPECT_EQ("Test.xml:1:1: no element 'Start'; expected one, with the first dialog",
              GetMistake("<Flow name='Test'/>"));
}

TEST(CFlowReaderTest, AnotherElementAtTheTop_IsAMistake)
{
    EXPECT_EQ("Test.xml:1:1: element 'Screen' at the top; expected Flow", GetMistake("<Screen/>"));
}

TEST(CFlowReaderTest, AHomeThatIsNoDialog_IsAMistake)
{
    EXPECT_EQ(
        "Test.xml:1:25: bad value 'DLG_X' of attribute 'home'; expected the id of a DialogDefinition or "
        "a Handle",
        GetMistake("<Flow name='Test' home='DLG_X'><Start/></Flow>"));
}

TEST(CFlowReaderTest, AFileThatIsNotThere_IsAMistake)
{
    std::string kError;
    EXPECT_EQ(nullptr, ReadFlow("/nowhere/Flow.xml", kError));
    EXPECT_EQ("/nowhere/Flow.xml:1:1: cannot open (No such file or directory); expected a readable file",
              kError);
}

TEST(CFlowReaderTest, ADialogFileThatIsNotThere_IsKeptAsTheErrorOfItsDialog)
{
    const auto pkFlow = ReadText(
        MakeFlow("<DialogDefinition id='DLG_C' file='/nowhere/C.xml'/><On button='BTN_OF_C'><back/></On>"));
    ASSERT_NE(nullptr, pkFlow);
    EXPECT_EQ("/nowhere/C.xml:1:1: cannot open (No such file or directory); expected a readable file",
              pkFlow->m_kDialogs.back().m_kScreen.m_kError);
}

TEST(CFlowReaderTest, SignalsComeAfterTheKeys)
{
    const auto pkFlow = ReadText(MakeFlow("<Signal name='s' label='It comes'/><Key name='home'/>"));
    ASSERT_NE(nullptr, pkFlow);
    ASSERT_EQ(5U, pkFlow->m_kKeys.size());
    EXPECT_EQ("home", pkFlow->m_kKeys[3].m_kName);
    EXPECT_EQ("s", pkFlow->m_kKeys[4].m_kName);
    EXPECT_EQ("It comes", pkFlow->m_kKeys[4].m_kLabel);
    EXPECT_TRUE(pkFlow->m_kKeys[4].m_bIsSignal);
}

TEST(CFlowReaderTest, APointInTime_IsATimerThatRunsFromTheBeginning)
{
    const auto pkFlow = ReadText(MakeFlow("<At time='500'><back/></At>"));
    ASSERT_NE(nullptr, pkFlow);
    ASSERT_EQ(1U, pkFlow->m_kTimers.size());
    EXPECT_EQ("at-500", pkFlow->m_kTimers[0].m_kName);
    EXPECT_TRUE(pkFlow->m_kTimers[0].m_bStarts);
    EXPECT_FALSE(pkFlow->m_kTimers[0].m_bRepeats);
}

TEST(CFlowReaderTest, TheExamplesAreRight)
{
    for (const eC_Char* pcExample : {"CoffeeMachine", "WashingMachine", "InfusionPump", "CarSettings"})
    {
        const std::string kPath =
            std::string(DIALOGMANAGER_SOURCE_DIRECTORY) + "/Examples/Flows/" + pcExample + ".xml";
        std::string kError;
        const auto pkFlow = ReadFlow(kPath, kError);
        ASSERT_NE(nullptr, pkFlow) << kError;
        for (const FlowDialog_t& kDialog : pkFlow->m_kDialogs)
        {
            EXPECT_EQ("", kDialog.m_kScreen.m_kError);
        }
        for (const FlowPopup_t& kPopup : pkFlow->m_kPopups)
        {
            EXPECT_EQ("", kPopup.m_kScreen.m_kError);
        }
    }
}

TEST(CFlowHandlesTest, ANameKeepsItsHandle)
{
    const ObjectHandle_t eFirst = GetFlowHandle("DLG_OF_THIS_TEST");
    EXPECT_EQ(eFirst, GetFlowHandle("DLG_OF_THIS_TEST"));
    EXPECT_NE(eFirst, GetFlowHandle("DLG_OF_THIS_TEST_2"));
    EXPECT_STREQ("DLG_OF_THIS_TEST", GetObjectHandleName(eFirst));
    EXPECT_EQ(OBJ_MSGBOX_OK, GetFlowHandle("OBJ_MSGBOX_OK"));
}
