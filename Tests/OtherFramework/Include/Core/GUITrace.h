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

#define GUILOG(Level, Message) GUILOG_##Level(Message)
#define GUILOG_GUI_TRACE_ERROR(Message)                                                                      \
    CGUITrace::GetInstance().Log("ERROR: ", Message, eC_String(__FILE__), eC_String(__LINE__))
#define GUILOG_GUI_TRACE_WARNING(Message) CGUITrace::GetInstance().Log("WARNING: ", Message)
#define GUILOG_GUI_TRACE_DEBUG(Message) CGUITrace::GetInstance().Log("DEBUG: ", Message)
#define GUILOGMESSAGE(Message) CGUITrace::GetInstance().Log("INFO: ", Message)

#endif
