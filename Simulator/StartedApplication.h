// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_STARTEDAPPLICATION_H
#define SIMULATOR_STARTEDAPPLICATION_H

/** @file
 *  What a program that runs a simulated application undoes at the end, also after an exception.
 */

#include "Core/GUITrace.h"
#include "Simulator/SimulatedApplication.h"

/** An application that runs as long as this exists. */
class CStartedApplication
{
public:
    /** Starts the application; if that throws, stops it and passes the exception on.
     *  @param kApplication stopped; not owned
     */
    explicit CStartedApplication(CSimulatedApplication& kApplication) : m_kApplication(kApplication)
    {
        try
        {
            m_kApplication.Start();
        }
        catch (...)
        {
            m_kApplication.Stop();
            throw;
        }
    }

    CStartedApplication(const CStartedApplication&) = delete;
    CStartedApplication& operator=(const CStartedApplication&) = delete;

    /** Stops it. */
    ~CStartedApplication() { m_kApplication.Stop(); }

private:
    CSimulatedApplication& m_kApplication;
};

/** Sets the sink of the trace, and restores it at the end. */
class CTraceSinkScope
{
public:
    /** @param pkSink takes the messages, null for none; not owned */
    explicit CTraceSinkScope(CGUITraceSink* pkSink) : m_pkPreviousSink(CGUITrace::GetInstance().GetSink())
    {
        CGUITrace::GetInstance().SetSink(pkSink);
    }

    CTraceSinkScope(const CTraceSinkScope&) = delete;
    CTraceSinkScope& operator=(const CTraceSinkScope&) = delete;

    /** Sets the sink that was set before. */
    ~CTraceSinkScope() { CGUITrace::GetInstance().SetSink(m_pkPreviousSink); }

private:
    CGUITraceSink* m_pkPreviousSink;
};

#endif
