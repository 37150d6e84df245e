// SPDX-License-Identifier: MIT
#ifndef TESTS_OTHERFRAMEWORK_OTHERFRAMEWORK_H
#define TESTS_OTHERFRAMEWORK_OTHERFRAMEWORK_H

/** @file
 *  The test's view of the other framework: its services as counts and texts.
 *
 *  The headers below Include/ of this directory replace the library's headers of the same names. They offer
 *  the dialog manager what Docs/FrameworkContract.md asks for and no more, and only the library headers
 *  listed there can be included. Anything else that the sources of the manager and the animatable use does
 *  not compile here. BeyondTheContract.cpp shows what is refused.
 */

#include "Core/Control/GUI.h"
#include "Core/GUITimer.h"
#include "Core/Utils/eC_String.h"

#include <map>
#include <string>
#include <vector>

/** Records calls to the services, and controls them. */
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

    /** @return the next time, which advances by one millisecond with each call */
    static eC_UInt GetNextTime() { return ms_uiTime++; }

    /** Calls DoAnimate of the only registered animatable. */
    static void RunOnlyCallback();

    /** @return the intervals registered with the timer */
    static std::vector<eC_UInt> GetIntervals();

    /** @return a composite's children from the bottom to the top as "1 (2) 4", with invisible ones in
     *         parentheses
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
