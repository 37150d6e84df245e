// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_CORE_GUITRACE_H
#define OTHERFRAMEWORK_CORE_GUITRACE_H

#include "Core/Utils/eC_String.h"

/** A trace that keeps its entries for the test. */
class CGUITrace
{
public:
    static CGUITrace& GetInstance();

    void Log(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile = eC_String(),
             const eC_String& kLine = eC_String());
};

/** The macros pass a message through this; it is a string or a text. */
inline const eC_String& GetTraceMessage(const eC_String& kMessage)
{
    return kMessage;
}
inline eC_String GetTraceMessage(const eC_Char* pcMessage)
{
    return eC_String(pcMessage, 0, eC_String::eASCII);
}

#define GUILOG(Level, Message) GUILOG_##Level(Message)
#define GUILOG_GUI_TRACE_ERROR(Message)                                                                      \
    CGUITrace::GetInstance().Log(GetTraceMessage("ERROR: "), GetTraceMessage(Message),                       \
                                 GetTraceMessage(__FILE__), eC_String(__LINE__))
#define GUILOG_GUI_TRACE_WARNING(Message)                                                                    \
    CGUITrace::GetInstance().Log(GetTraceMessage("WARNING: "), GetTraceMessage(Message))
#define GUILOG_GUI_TRACE_DEBUG(Message)                                                                      \
    CGUITrace::GetInstance().Log(GetTraceMessage("DEBUG: "), GetTraceMessage(Message))
#define GUILOGMESSAGE(Message)                                                                               \
    CGUITrace::GetInstance().Log(GetTraceMessage("INFO: "), GetTraceMessage(Message))

#endif
