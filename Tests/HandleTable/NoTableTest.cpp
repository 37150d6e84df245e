// SPDX-License-Identifier: MIT
#include "GUIConfig/GUIObjectHandleResource.h"

#include <gtest/gtest.h>

TEST(CNoHandleTableTest, Counts_AreThoseOfTheFramework)
{
    EXPECT_EQ(9u, cuiNOFObjectHandles);
    EXPECT_EQ(0u, cuiNOFApplicationHandles);
}

TEST(CNoHandleTableTest, NamesOfTheFramework_AreFound)
{
    ObjectHandle_t eHandle = NO_HANDLE;

    EXPECT_TRUE(GetObjectHandleByName("OBJ_MSGBOX_OK", eHandle));
    EXPECT_EQ(OBJ_MSGBOX_OK, eHandle);
    EXPECT_STREQ("OBJ_MSGBOX_OK", GetObjectHandleName(OBJ_MSGBOX_OK));
}

TEST(CNoHandleTableTest, NothingElse_IsFound)
{
    ObjectHandle_t eHandle = NO_HANDLE;

    EXPECT_FALSE(GetObjectHandleByName("DLG_HOME", eHandle));
    EXPECT_EQ(nullptr, GetObjectHandleName(static_cast<ObjectHandle_t>(1)));
}
