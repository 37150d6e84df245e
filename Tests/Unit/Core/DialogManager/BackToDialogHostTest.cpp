// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <csignal>
#include <unistd.h>

namespace
{
class CBackToDialogHostTest : public CDialogTest
{
};

#if GTEST_HAS_DEATH_TEST
TEST_F(CBackToDialogHostTest, BackToDialog_Stepwise_WhenADialogOnTheWayIsGone_DoesNotEnd_Intended)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_C, ODA_INVISIBLE);
    delete Object(DLG_B);

    EXPECT_EXIT(
        {
            alarm(1);
            Manager().BackToDialog(DLG_A, true, true);
        },
        ::testing::KilledBySignal(SIGALRM), "");
}
#endif
} // namespace
