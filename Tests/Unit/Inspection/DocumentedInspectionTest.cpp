// SPDX-License-Identifier: MIT
// The code of Docs/Inspection.md.

#include "Inspection/HazardWatch.h"
#include "Inspection/InspectionLink.h"
#include "Inspection/InspectionRing.h"

#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

namespace
{
class CDocumentedInspectionTest : public CGUITest
{
};

TEST_F(CDocumentedInspectionTest, Inspection_SendsTakesAndWatches)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1; OBJ_1 }");
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    CRecordingDialogManager& kManager = Manager();

    static eC_Char s_acLine[256];
    static eC_Char s_acOut[512];
    CInspectionRing kRing(s_acOut, sizeof(s_acOut)); // the serial line's interrupt takes the bytes out
    CInspectionLink kLink(kManager, kRing, s_acLine, sizeof(s_acLine));

    static eC_Char s_acInput[128];
    CInspectionCommands kCommands(kManager);
    kLink.AllowInput(kCommands, s_acInput, sizeof(s_acInput));

    CHazardWatch kWatch(kLink.GetInspector(), kLink);
    kWatch.Watch(HAZARD_SAME_IDENTIFIER | HAZARD_NO_FOCUS);

    kLink.Run();    // once in every turn of the main loop
    kWatch.Check(); // after it

    eC_Char acFirst[16] = {};
    EXPECT_EQ(15U, kRing.TakeOut(acFirst, 15));
    EXPECT_STREQ("{\"type\":\"state\"", acFirst);
}
} // namespace
