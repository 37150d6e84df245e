// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_TRACEMOMENT_H
#define TESTS_UNIT_TRACEMOMENT_H

/** @file
 *  Lets a test see the state at the moment when something is logged.
 */

#include "Core/GUITrace.h"

#include <functional>
#include <string>
#include <utility>

/** Replaces the trace's sink while it exists, and runs an action before every entry that contains a certain
 *  text.
 */
class CTraceMoment : public CGUITraceSink
{
public:
    /** @param kText what the message of the entry contains */
    CTraceMoment(std::string kText, std::function<void()> kAction)
        : m_kText(std::move(kText)),
          m_kAction(std::move(kAction)),
          m_pkSink(CGUITrace::GetInstance().GetSink())
    {
        CGUITrace::GetInstance().SetSink(this);
    }

    CTraceMoment(const CTraceMoment&) = delete;
    CTraceMoment& operator=(const CTraceMoment&) = delete;

    ~CTraceMoment() override { CGUITrace::GetInstance().SetSink(m_pkSink); }

    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override
    {
        if (std::string(kMessage.GetText()).find(m_kText) != std::string::npos)
        {
            ++m_iEntries;
            Act(kPrefix, kMessage, kFile, kLine);
        }
        m_pkSink->Write(kPrefix, kMessage, kFile, kLine);
    }

    /** @return the number of such entries */
    int GetEntries() const { return m_iEntries; }

private:
    /** Writes the entry even if the action throws. */
    void Act(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
             const eC_String& kLine)
    {
        try
        {
            m_kAction();
        }
        catch (...)
        {
            m_pkSink->Write(kPrefix, kMessage, kFile, kLine);
            throw;
        }
    }

    std::string m_kText;
    std::function<void()> m_kAction;
    CGUITraceSink* m_pkSink;
    int m_iEntries = 0;
};

#endif
