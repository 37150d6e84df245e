// SPDX-License-Identifier: MIT
#include "Tests/HookMatrix/HookMatrix.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

namespace
{
class CHookMatrixTest : public ::testing::TestWithParam<eC_UInt>
{
};

TEST_P(CHookMatrixTest, EveryActInsideTheHook_HasItsOutcomeAndLeavesEverythingInOrder)
{
    const HookPlace_t& kPlace = GetHookPlaces()[GetParam()];

    EXPECT_TEXT(JoinLines(GetExpectedHookLines(kPlace)), JoinLines(PlayHookPlace(kPlace)));
}

/** @return "OnDialogAdded_CreateDialog_a_new_dialog" */
std::string NameOfPlace(const ::testing::TestParamInfo<eC_UInt>& kInfo)
{
    const HookPlace_t& kPlace = GetHookPlaces()[kInfo.param];
    std::string kName = std::string(NameOfCaller(kPlace.m_uiCaller)) + "_";
    for (const char* pcLetter = kPlace.m_pcName; *pcLetter != '\0'; ++pcLetter)
    {
        const bool bIsLetter = std::isalnum(static_cast<unsigned char>(*pcLetter)) != 0;
        if (bIsLetter || kName.back() != '_')
        {
            kName += bIsLetter ? *pcLetter : '_';
        }
    }
    return kName;
}

INSTANTIATE_TEST_SUITE_P(AllPlaces, CHookMatrixTest,
                         ::testing::Range(0U, static_cast<eC_UInt>(GetHookPlaces().size())), NameOfPlace);

TEST(CHookMatrixTableTest, EveryHookAndEveryOtherCaller_HasAPlace)
{
    std::set<eC_UInt> kCallers;
    for (const HookPlace_t& kPlace : GetHookPlaces())
    {
        kCallers.insert(kPlace.m_uiCaller);
    }

    EXPECT_EQ(static_cast<std::size_t>(CALLER_COUNT), kCallers.size());
}
} // namespace
