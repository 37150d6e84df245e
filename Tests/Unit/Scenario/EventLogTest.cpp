// SPDX-License-Identifier: MIT
#include "Scenario/EventLog.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CEventLogTest, Take_GivesAllKindsInOrderOnce)
{
    CEventLog kLog;
    kLog.Add(EVENT_HOOK, "hook");
    kLog.Add(EVENT_TRACE, "trace");
    kLog.Add(EVENT_NOTE, "note");

    EXPECT_THAT(kLog.Take(), ElementsAre("hook", "trace", "note"));
    EXPECT_THAT(kLog.Take(), IsEmpty());
}

TEST(CEventLogTest, TakeOfOneKind_LeavesTheOthersInOrder)
{
    CEventLog kLog;
    kLog.Add(EVENT_HOOK, "hook 1");
    kLog.Add(EVENT_TRACE, "trace 1");
    kLog.Add(EVENT_HOOK, "hook 2");
    kLog.Add(EVENT_TRACE, "trace 2");

    EXPECT_THAT(kLog.Take(EVENT_TRACE), ElementsAre("trace 1", "trace 2"));
    EXPECT_THAT(kLog.Take(EVENT_TRACE), IsEmpty());
    EXPECT_THAT(kLog.Take(), ElementsAre("hook 1", "hook 2"));
}

TEST(CEventLogTest, Amend_AppendsToItsEventBehindWhichOthersStand)
{
    CEventLog kLog;
    const CEventLog::Ticket_t uiFirst = kLog.Add(EVENT_HOOK, "first");
    kLog.Add(EVENT_HOOK, "second");

    kLog.Amend(uiFirst, " -> true");

    EXPECT_THAT(kLog.Take(), ElementsAre("first -> true", "second"));
}

TEST(CEventLogTest, Amend_OfATakenEventTouchesNoOther)
{
    CEventLog kLog;
    const CEventLog::Ticket_t uiTaken = kLog.Add(EVENT_HOOK, "taken");
    kLog.Take();
    kLog.Add(EVENT_HOOK, "later");

    kLog.Amend(uiTaken, " -> true");

    EXPECT_THAT(kLog.Take(), ElementsAre("later"));
}

TEST(CEventLogTest, Take_ShowsEveryLineBreakOnOneLineAndThePlaceBehindThem)
{
    CEventLog kLog;
    kLog.Add(EVENT_TRACE, "one\ntwo\n", " @here");
    kLog.Add(EVENT_TRACE, "three\n", " @there");

    EXPECT_THAT(kLog.Take(EVENT_TRACE), ElementsAre("one\\ntwo\\n @here", "three\\n @there"));
}

TEST(CEventLogTest, TakeReadable_LeavesOutTheLineBreakThatEndsTheTextAndNoOther)
{
    CEventLog kLog;
    kLog.Add(EVENT_TRACE, "one\ntwo\n\n", " @here");
    kLog.Add(EVENT_TRACE, "none", " @there");
    kLog.Add(EVENT_TRACE, "\n");
    kLog.Add(EVENT_HOOK, "");

    EXPECT_THAT(kLog.TakeReadable(), ElementsAre("one\ntwo\n @here", "none @there", "", ""));
    EXPECT_THAT(kLog.Take(), IsEmpty());
}

TEST(CEventLogTest, Clear_DropsAllEvents)
{
    CEventLog kLog;
    kLog.Add(EVENT_HOOK, "hook");
    kLog.Clear();
    EXPECT_THAT(kLog.Take(), IsEmpty());
}
