// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using ::testing::ElementsAre;

class CCodeFactoryTest : public CGUITest
{
protected:
    static std::unique_ptr<CGUIObject> Load(const char* pcPath)
    {
        return std::unique_ptr<CGUIObject>(CGUIFactoryManager::GetInstance().LoadDialogFromFile(pcPath));
    }
};

TEST_F(CCodeFactoryTest, Read_CallsTheBuilderOfThePath)
{
    CodeFactory().RegisterBuilder("code:One", [] { return new CGUIObject(nullptr, OBJ_1); });
    CodeFactory().RegisterTree("code:Two", "DLG_B { OBJ_2 }");

    EXPECT_EQ(OBJ_1, Load("code:One")->GetID());
    const auto pkTwo = Load("code:Two");
    EXPECT_EQ(DLG_B, pkTwo->GetID());
    EXPECT_NE(nullptr, pkTwo->GetObjectByID(OBJ_2, false));
    EXPECT_EQ(nullptr, pkTwo->GetParent());
}

TEST_F(CCodeFactoryTest, Register_ReplacesWhatWasRegistered)
{
    CodeFactory().RegisterTree("code:One", "DLG_A");
    CodeFactory().RegisterTree("code:One", "DLG_B");
    EXPECT_EQ(DLG_B, Load("code:One")->GetID());
}

TEST_F(CCodeFactoryTest, RegisterTree_RefusesAWrongDescriptionAndKeepsTheOldOne)
{
    CodeFactory().RegisterTree("code:One", "DLG_A");
    EXPECT_THROW(CodeFactory().RegisterTree("code:One", "DLG_A {"), std::invalid_argument);
    EXPECT_THROW(CodeFactory().RegisterTree("code:One", "Nonsense DLG_A"), std::invalid_argument);
    EXPECT_EQ(DLG_A, Load("code:One")->GetID());
}

TEST_F(CCodeFactoryTest, Read_OfAPathWithoutBuilderGivesNullAndOneError)
{
    CodeFactory().RegisterTree("code:One", "DLG_A");
    CodeFactory().Unregister("code:One");

    EXPECT_EQ(nullptr, Load("code:One"));
    EXPECT_THAT(TakeEvents(), ElementsAre("ERROR: CCodeFactory::Read: There is no builder for code:One.\\n "
                                          "@TestSupport/CodeFactory.cpp:#"));
}

TEST_F(CCodeFactoryTest, GetLoads_CountsAllLoadsAndThoseOfOnePath)
{
    CodeFactory().RegisterTree("code:One", "DLG_A");
    Load("code:One");
    Load("code:Missing");
    Load("code:One");

    EXPECT_EQ(3U, CodeFactory().GetLoads());
    EXPECT_EQ(2U, CodeFactory().GetLoads("code:One"));
    EXPECT_EQ(0U, CodeFactory().GetLoads("code:Other"));
}

TEST_F(CCodeFactoryTest, FailLoad_CountsFromTheNextLoadAndFailsOnce)
{
    CodeFactory().RegisterTree("code:One", "DLG_A");
    Load("code:One");

    CodeFactory().FailLoad(2, FAILURE_NULL);

    EXPECT_NE(nullptr, Load("code:One"));
    EXPECT_EQ(nullptr, Load("code:One"));
    EXPECT_NE(nullptr, Load("code:One"));
}

TEST_F(CCodeFactoryTest, FailLoad_ThrowsAnIntOrAnException)
{
    CodeFactory().RegisterTree("code:One", "DLG_A");
    CodeFactory().FailLoad(1, FAILURE_INT);
    CodeFactory().FailLoad(2, FAILURE_EXCEPTION);

    EXPECT_THROW(CodeFactory().Read("code:One"), int);
    EXPECT_THROW(CodeFactory().Read("code:One"), std::runtime_error);
    EXPECT_EQ(2U, CodeFactory().GetLoads());
}

TEST_F(CCodeFactoryTest, ClearFailures_ForgetsThoseToCome)
{
    CodeFactory().RegisterTree("code:One", "DLG_A");
    CodeFactory().FailLoad(1, FAILURE_INT);
    CodeFactory().ClearFailures();
    EXPECT_NE(nullptr, Load("code:One"));
}

TEST_F(CCodeFactoryTest, Read_LetsABuilderRegisterOthers)
{
    CodeFactory().RegisterBuilder("code:One",
                                  [this]
                                  {
                                      for (int iOther = 0; iOther < 100; ++iOther)
                                      {
                                          CodeFactory().RegisterTree("code:" + std::to_string(iOther),
                                                                     "DLG_B");
                                      }
                                      return new CGUIObject(nullptr, DLG_A);
                                  });
    EXPECT_EQ(DLG_A, Load("code:One")->GetID());
}
