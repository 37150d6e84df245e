// SPDX-License-Identifier: MIT
#ifndef TESTS_OTHERFRAMEWORK_OTHERFRAMEWORK_H
#define TESTS_OTHERFRAMEWORK_OTHERFRAMEWORK_H

/** @file
 *  The test's view of the other framework: its services in counts and texts.
 *
 *  The headers below Include/ of this directory stand in for the library's own headers of the same names. To
 *  the dialog manager they offer what Docs/FrameworkContract.md asks for and no more, and of the library's
 *  own headers only those are found that come along: what the manager's and the animatable's sources use
 *  beyond that does not compile here. BeyondTheContract.cpp shows what is refused.
 */

#include "Core/Control/GUI.h"
#include "Core/GUITimer.h"
#include "Core/Utils/eC_String.h"

#include <map>
#include <string>
#include <vector>

/** What the services did, and what drives them. */
class COtherFramework
{
public:
    /** Forgets all calls and entries, and sets the time to 0. */
    static void Reset();

    /** Counts one call of an operation. */
    static void CountCall(const std::string& kOperation) { ++ms_kCalls[kOperation]; }

    /** @return how often an operation of the timer or the factory was called since Reset */
    static int GetNOFCalls(const std::string& kOperation) { return ms_kCalls[kOperation]; }

    /** Adds an entry to the trace. */
    static void AddTrace(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                         const eC_String& kLine);

    /** @return the entries since the last call, the four texts separated by bars */
    static std::vector<std::string> TakeTrace();

    /** @return the next time; every call takes one millisecond */
    static eC_UInt GetNextTime() { return ms_uiTime++; }

    /** Calls DoAnimate of the only animatable that is registered. */
    static void RunOnlyCallback();

    /** @return the intervals that are registered with the timer */
    static std::vector<eC_UInt> GetIntervals();

    /** @return a composite's children from the bottom to the top as "1 (2) 4", with parentheses around the
     *          invisible ones
     */
    static std::string DescribeChildren(const CGUICompositeObject& kComposite);

    /** @return the text of a string */
    static const std::string& GetText(const eC_String& kString) { return kString.m_kText; }

private:
    static inline std::map<std::string, int> ms_kCalls;
    static inline std::vector<std::string> ms_kTrace;
    static inline eC_UInt ms_uiTime = 0;
};

#endif
