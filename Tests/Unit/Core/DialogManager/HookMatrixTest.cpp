#include "Tests/Unit/Core/DialogManager/HookMatrix.h"

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
    std::string kName = std::string(NameOfHook(kPlace.m_eHook)) + "_";
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

TEST(CHookMatrixTableTest, EveryHook_HasAPlace)
{
    std::set<EHook> kHooks;
    for (const HookPlace_t& kPlace : GetHookPlaces())
    {
        kHooks.insert(kPlace.m_eHook);
    }

    EXPECT_EQ(cuiNOFHooks, kHooks.size());
}
} // namespace
