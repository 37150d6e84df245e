// SPDX-License-Identifier: MIT
#include "GUIConfig/GUIObjectHandleResource.h"

#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace
{
/** A value that no test expects, to detect what is left untouched. */
constexpr ObjectHandle_t eUntouched = static_cast<ObjectHandle_t>(-777);

constexpr eC_Int iLowest = -2147483647 - 1;

/** @return the handle for a text, or eUntouched if the text is refused */
ObjectHandle_t Parse(const std::string& kText)
{
    ObjectHandle_t eHandle = eUntouched;
    const eC_Bool bFound = ParseObjectHandle(kText.c_str(), eHandle);
    EXPECT_EQ(bFound, eHandle != eUntouched) << kText;
    return eHandle;
}

std::string GetName(eC_Int iHandle)
{
    const eC_Char* pcName = GetObjectHandleName(static_cast<ObjectHandle_t>(iHandle));
    return pcName == nullptr ? "(none)" : pcName;
}
} // namespace

TEST(CObjectHandleTest, FrameworkHandles_HaveTheirValues)
{
    EXPECT_EQ(-9, static_cast<eC_Int>(OBJ_START_TAG));
    EXPECT_EQ(-8, static_cast<eC_Int>(OBJ_MSGBOX_SAVEAS));
    EXPECT_EQ(-7, static_cast<eC_Int>(OBJ_MSGBOX_SAVE));
    EXPECT_EQ(-6, static_cast<eC_Int>(OBJ_MSGBOX_CANCEL));
    EXPECT_EQ(-5, static_cast<eC_Int>(OBJ_MSGBOX_OK));
    EXPECT_EQ(-4, static_cast<eC_Int>(OBJ_KEYBOARD_LAYOUT_ABC_CAPITAL));
    EXPECT_EQ(-3, static_cast<eC_Int>(OBJ_KEYBOARD_LAYOUT_ABC));
    EXPECT_EQ(-2, static_cast<eC_Int>(OBJ_KEYBOARD_LAYOUT_123));
    EXPECT_EQ(-1, static_cast<eC_Int>(OBJ_KEYBOARD_LAYOUT_SYM));
    EXPECT_EQ(0, static_cast<eC_Int>(NO_HANDLE));
    EXPECT_EQ(1, static_cast<eC_Int>(NOF_OBJECTHANDLES));
    EXPECT_EQ(0x7FFFFFFF, static_cast<eC_Int>(QUORVANE_INTERNAL_ID));
}

TEST(CObjectHandleTest, AnyValueOf32Bits_CanBeStored)
{
    EXPECT_EQ(4u, sizeof(ObjectHandle_t));
    EXPECT_TRUE((std::is_same<eC_Int, std::underlying_type<ObjectHandle_t>::type>::value));
    EXPECT_EQ(iLowest, static_cast<eC_Int>(static_cast<ObjectHandle_t>(iLowest)));
}

TEST(CObjectHandleTest, ApplicationHandles_CountFromOneInTheTablesOrder)
{
    EXPECT_TRUE((std::is_same<const ObjectHandle_t, decltype(DLG_A)>::value));
    EXPECT_EQ(1, static_cast<eC_Int>(DLG_A));
    EXPECT_EQ(2, static_cast<eC_Int>(DLG_B));
    EXPECT_EQ(9, static_cast<eC_Int>(POP_1));
    EXPECT_EQ(28, static_cast<eC_Int>(OBJ_12));
}

TEST(CObjectHandleTest, Counts_ComeFromTheTable)
{
    EXPECT_EQ(9u, cuiNOFFrameworkHandles);
    EXPECT_EQ(28u, cuiNOFApplicationHandles);
    EXPECT_EQ(37u, cuiNOFObjectHandles);
}

TEST(CObjectHandleTest, TableOfTheApplication_HasItsNamesAndValues)
{
    EXPECT_STREQ("DLG_A", cpkApplicationHandles[0].m_pcName);
    EXPECT_EQ(DLG_A, cpkApplicationHandles[0].m_eHandle);
    EXPECT_STREQ("OBJ_12", cpkApplicationHandles[27].m_pcName);
    EXPECT_EQ(OBJ_12, cpkApplicationHandles[27].m_eHandle);
}

TEST(CObjectHandleTest, Name_OfEveryHandle)
{
    const eC_Char* const apcNames[] = {"OBJ_MSGBOX_SAVEAS",
                                       "OBJ_MSGBOX_SAVE",
                                       "OBJ_MSGBOX_CANCEL",
                                       "OBJ_MSGBOX_OK",
                                       "OBJ_KEYBOARD_LAYOUT_ABC_CAPITAL",
                                       "OBJ_KEYBOARD_LAYOUT_ABC",
                                       "OBJ_KEYBOARD_LAYOUT_123",
                                       "OBJ_KEYBOARD_LAYOUT_SYM",
                                       "NO_HANDLE",
                                       "DLG_A",
                                       "DLG_B",
                                       "DLG_C",
                                       "DLG_D",
                                       "DLG_E",
                                       "DLG_F",
                                       "DLG_G",
                                       "DLG_H",
                                       "POP_1",
                                       "POP_2",
                                       "POP_3",
                                       "POP_4",
                                       "POP_5",
                                       "POP_6",
                                       "POP_7",
                                       "POP_8",
                                       "OBJ_1",
                                       "OBJ_2",
                                       "OBJ_3",
                                       "OBJ_4",
                                       "OBJ_5",
                                       "OBJ_6",
                                       "OBJ_7",
                                       "OBJ_8",
                                       "OBJ_9",
                                       "OBJ_10",
                                       "OBJ_11",
                                       "OBJ_12"};
    eC_Int iHandle = -8;
    for (const eC_Char* pcName : apcNames)
    {
        EXPECT_EQ(pcName, GetName(iHandle));

        ObjectHandle_t eHandle = eUntouched;
        EXPECT_TRUE(GetObjectHandleByName(pcName, eHandle)) << pcName;
        EXPECT_EQ(iHandle, static_cast<eC_Int>(eHandle)) << pcName;
        ++iHandle;
    }
    EXPECT_EQ(29, iHandle);
}

TEST(CObjectHandleTest, Name_OfAnyOtherValue_IsNull)
{
    EXPECT_EQ("(none)", GetName(iLowest));
    EXPECT_EQ("(none)", GetName(-9));
    EXPECT_EQ("(none)", GetName(29));
    EXPECT_EQ("(none)", GetName(0x7FFFFFFF));
}

TEST(CObjectHandleTest, Name_IsFoundOnlyWhole_AndCaseCounts)
{
    for (const eC_Char* pcName : {"", "DLG_", "DLG_AA", "dlg_a", " DLG_A", "DLG_A ", "1"})
    {
        ObjectHandle_t eHandle = eUntouched;
        EXPECT_FALSE(GetObjectHandleByName(pcName, eHandle)) << pcName;
        EXPECT_EQ(eUntouched, eHandle) << pcName;
    }
}

TEST(CObjectHandleTest, ConstantsThatNameNoObject_AreNotFoundByName)
{
    for (const eC_Char* pcName : {"OBJ_START_TAG", "NOF_OBJECTHANDLES", "QUORVANE_INTERNAL_ID"})
    {
        ObjectHandle_t eHandle = eUntouched;
        EXPECT_FALSE(GetObjectHandleByName(pcName, eHandle)) << pcName;
        EXPECT_EQ(eUntouched, eHandle) << pcName;
    }
}

TEST(CObjectHandleTest, NullText_NamesNothing)
{
    ObjectHandle_t eHandle = eUntouched;

    EXPECT_FALSE(GetObjectHandleByName(nullptr, eHandle));
    EXPECT_FALSE(ParseObjectHandle(nullptr, eHandle));
    EXPECT_EQ(eUntouched, eHandle);
}

TEST(CObjectHandleTest, Parse_ReadsNames)
{
    EXPECT_EQ(POP_3, Parse("POP_3"));
    EXPECT_EQ(OBJ_MSGBOX_OK, Parse("OBJ_MSGBOX_OK"));
    EXPECT_EQ(NO_HANDLE, Parse("NO_HANDLE"));
}

TEST(CObjectHandleTest, Parse_ReadsDecimalNumbers)
{
    EXPECT_EQ(0, static_cast<eC_Int>(Parse("0")));
    EXPECT_EQ(0, static_cast<eC_Int>(Parse("-0")));
    EXPECT_EQ(1, static_cast<eC_Int>(Parse("1")));
    EXPECT_EQ(-8, static_cast<eC_Int>(Parse("-8")));
    EXPECT_EQ(4711, static_cast<eC_Int>(Parse("4711")));
    EXPECT_EQ(42, static_cast<eC_Int>(Parse("00000000000042")));
    EXPECT_EQ(2147483647, static_cast<eC_Int>(Parse("2147483647")));
    EXPECT_EQ(iLowest, static_cast<eC_Int>(Parse("-2147483648")));
}

TEST(CObjectHandleTest, Parse_RefusesNumbersOutOfRange)
{
    for (const eC_Char* pcText : {"2147483648", "-2147483649", "2147483650", "-2147483650", "4294967296",
                                  "4294967297", "21474836470", "99999999999999999999", "-4294967297"})
    {
        EXPECT_EQ(eUntouched, Parse(pcText)) << pcText;
    }
}

TEST(CObjectHandleTest, Parse_RefusesEverythingElse)
{
    for (const eC_Char* pcText :
         {"",    "-",   "+1",     "--1",    " 1",    "1 ",     "1\n",   "1.0",    "0x10", "1e3",
          "12a", "a12", "0DLG_A", "9DLG_A", "DLG_Z", "-DLG_A", "dlg_a", "DLG_A;", "/",    ":"})
    {
        EXPECT_EQ(eUntouched, Parse(pcText)) << pcText;
    }
}
