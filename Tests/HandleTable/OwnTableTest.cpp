// SPDX-License-Identifier: MIT
#include "Tests/HandleTable/Handles.h"

#include <gtest/gtest.h>

TEST(COwnHandleTableTest, Constants_CountFromOne)
{
    EXPECT_EQ(1, static_cast<eC_Int>(DLG_HOME));
    EXPECT_EQ(2, static_cast<eC_Int>(DLG_SETTINGS));
    EXPECT_EQ(3, static_cast<eC_Int>(POP_SAVED));
}

TEST(COwnHandleTableTest, Counts_IncludeTheTable)
{
    EXPECT_EQ(12u, cuiNOFObjectHandles);
    EXPECT_EQ(3u, cuiNOFApplicationHandles);
}

TEST(COwnHandleTableTest, FirstDynamicIdentifier_LiesBehindTheLastHandle)
{
    EXPECT_EQ(4u, cuiNOFObjectHandles - 8);
}

TEST(COwnHandleTableTest, Names_AreFound)
{
    ObjectHandle_t eHandle = NO_HANDLE;

    EXPECT_TRUE(GetObjectHandleByName("POP_SAVED", eHandle));
    EXPECT_EQ(POP_SAVED, eHandle);
    EXPECT_STREQ("DLG_SETTINGS", GetObjectHandleName(DLG_SETTINGS));
    EXPECT_EQ(nullptr, GetObjectHandleName(static_cast<ObjectHandle_t>(4)));
}
