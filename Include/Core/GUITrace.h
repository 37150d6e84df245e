// SPDX-License-Identifier: MIT
#ifndef CORE_GUITRACE_H
#define CORE_GUITRACE_H

/** @file
 *  The framework's trace: the log, its sinks and the macros through which everything is logged.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"

/** Where log entries go. An application derives its own from it or uses one of those below. */
class GUI_API CGUITraceSink
{
public:
    /** Do not destroy a sink that is set: set another one first. */
    virtual ~CGUITraceSink() = default;

    /** Takes one entry. An exception that it throws is swallowed by CGUITrace.
     *  @param kPrefix the level: "ERROR: ", "WARNING: ", "DEBUG: " or "INFO: "
     *  @param kMessage the message with its own line breaks
     *  @param kFile the source file of an ERROR entry, otherwise empty
     *  @param kLine the source line of an ERROR entry in decimal, otherwise empty
     */
    virtual void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                       const eC_String& kLine) = 0;
};

/** @return the entry as one text: prefix and message, for an entry with a file " (file:line)" before the
 *          final line break, and exactly one line break at the end. Line breaks inside the message
 *          stay; any number of final ones becomes one.
 */
GUI_API eC_String FormatTraceEntry(const eC_String& kPrefix, const eC_String& kMessage,
                                   const eC_String& kFile, const eC_String& kLine);

/** Writes every entry to standard error, as FormatTraceEntry formats it. Writing allocates nothing. */
class GUI_API CGUITraceStandardError : public CGUITraceSink
{
public:
    /** Writes the entry to standard error. */
    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override;
};

/** Keeps the newest entries, as FormatTraceEntry formats them, in memory that the application provides.
 *  Writing allocates nothing; an entry that is longer than the memory keeps its end.
 */
class GUI_API CGUITraceRing : public CGUITraceSink
{
public:
    /** Makes an empty ring.
     *  @param pcMemory the memory, not owned; it must outlive the ring
     *  @param uiSize its size in bytes; with 0 nothing is kept
     */
    CGUITraceRing(eC_Char* pcMemory, eC_UInt uiSize);

    /** Keeps the entry and overwrites the oldest text. */
    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override;

    /** @return the text kept, oldest first. If older text was overwritten, it begins with the first line
     *          that is still complete; if none is, with the rest of the newest one.
     */
    eC_String GetText() const;

    /** Forgets everything. */
    void Clear();

private:
    void Append(const eC_Char* pcText, eC_UInt uiLength);
    void Overwrite(const eC_Char* pcText, eC_UInt uiLength);

    eC_Char* m_pcMemory;
    eC_UInt m_uiSize;
    mutable eC_UInt m_uiNext; ///< where the next byte goes; GetText rotates the memory
    eC_Bool m_bIsFull;        ///< the oldest byte kept is where the next one goes, no longer at the front
    eC_Char m_cForgotten;     ///< the byte before the oldest one kept; a line break before the first entry
};

/** Calls a function for every entry. */
class GUI_API CGUITraceFunction : public CGUITraceSink
{
public:
    /** Takes the four texts of an entry as CGUITraceSink::Write does, and the pointer given to the sink. */
    using Function_t = void (*)(void* pContext, const eC_String& kPrefix, const eC_String& kMessage,
                                const eC_String& kFile, const eC_String& kLine);

    /** @param pfnFunction the function, not null
     *  @param pContext passed to the function with every entry
     */
    CGUITraceFunction(Function_t pfnFunction, void* pContext)
        : m_pfnFunction(pfnFunction), m_pContext(pContext)
    {
    }

    /** Calls the function. */
    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override
    {
        m_pfnFunction(m_pContext, kPrefix, kMessage, kFile, kLine);
    }

private:
    Function_t m_pfnFunction;
    void* m_pContext;
};

/** The framework's log. Entries go to one sink; a failure to write never reaches the caller. */
class GUI_API CGUITrace
{
public:
    /** @return the framework's one trace; usable at any time, also by static objects */
    static CGUITrace& GetInstance();

    /** Writes one entry to the sink. A sink that throws is ignored, and so is an entry logged from
     *  inside a sink.
     *  @param kPrefix the level: "ERROR: ", "WARNING: ", "DEBUG: " or "INFO: "
     *  @param kMessage the message
     *  @param kFile the source file, for the ERROR level only
     *  @param kLine the source line in decimal, for the ERROR level only
     */
    void Log(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile = eC_String(),
             const eC_String& kLine = eC_String());

    /** Logs one entry of a level, as the macros below do: to the instance, with the level's prefix.
     *  @param kMessage the message
     */
    static void LogWarning(const eC_String& kMessage) noexcept;
    static void LogDebug(const eC_String& kMessage) noexcept;       ///< the same with "DEBUG: "
    static void LogInformation(const eC_String& kMessage) noexcept; ///< the same with "INFO: "

    /** The same with "ERROR: ".
     *  @param kMessage the message
     *  @param pcFile the source file, zero-terminated UTF-8, passed on unchecked; null: none
     *  @param uiLine the line in it
     */
    static void LogError(const eC_String& kMessage, const eC_Char* pcFile, eC_UInt uiLine) noexcept;

    /** The same for a text, which is not copied when it is ASCII: such an entry needs no memory. Any other
     *  text is converted as eC_String does it, which may throw std::bad_alloc.
     *  @param pcMessage zero-terminated UTF-8, not in the memory to which the sink writes; null: an empty
     *         message
     */
    static void LogWarning(const eC_Char* pcMessage);
    static void LogDebug(const eC_Char* pcMessage);                                        ///< the same
    static void LogInformation(const eC_Char* pcMessage);                                  ///< the same
    static void LogError(const eC_Char* pcMessage, const eC_Char* pcFile, eC_UInt uiLine); ///< the same

    /** Sets the sink.
     *  @param pkSink the sink, not owned, which must stay until another one is set; null: entries are
     *         dropped. The default is standard error.
     */
    void SetSink(CGUITraceSink* pkSink);

    /** @return the sink that is set, or null. Set it again to end the use of a temporary one. */
    CGUITraceSink* GetSink() const { return m_pkSink; }

private:
    explicit CGUITrace(CGUITraceSink* pkSink) : m_pkSink(pkSink), m_bIsWriting(false) {}

    static void LogWithoutPlace(const eC_Char* pcPrefix, const eC_String& kMessage) noexcept;

    CGUITraceSink* m_pkSink;
    eC_Bool m_bIsWriting;
};

// Levels of GUI_TRACE_LEVEL. A message above the level of the build is compiled away, its text and the
// evaluation of its arguments included.
#define GUI_TRACE_OFF (-1)  ///< no messages
#define GUI_TRACE_ERROR 0   ///< errors
#define GUI_TRACE_WARNING 1 ///< errors and warnings
#define GUI_TRACE_DEBUG 2   ///< all messages

#ifndef GUI_TRACE_LEVEL
#define GUI_TRACE_LEVEL GUI_TRACE_DEBUG ///< the level of this build
#endif

/** Logs a message when the build's level is not below the one given.
 *  @param Level GUI_TRACE_ERROR, GUI_TRACE_WARNING or GUI_TRACE_DEBUG
 *  @param Message a zero-terminated UTF-8 text, or anything that converts to eC_String
 */
#define GUILOG(Level, Message) GUILOG_##Level(Message)

/** Logs with the prefix "ERROR: ", the source file's path and the line. */
#define GUILOG_GUI_TRACE_ERROR(Message) GUILOG_IF_(GUI_TRACE_ERROR, LogError(Message, __FILE__, __LINE__))

/** Logs with the prefix "WARNING: " and empty file and line. */
#define GUILOG_GUI_TRACE_WARNING(Message) GUILOG_IF_(GUI_TRACE_WARNING, LogWarning(Message))

/** Logs with the prefix "DEBUG: " and empty file and line. */
#define GUILOG_GUI_TRACE_DEBUG(Message) GUILOG_IF_(GUI_TRACE_DEBUG, LogDebug(Message))

/** Logs with the prefix "INFO: " and empty file and line; kept in builds that keep the DEBUG level. */
#define GUILOGMESSAGE(Message) GUILOG_IF_(GUI_TRACE_DEBUG, LogInformation(Message))

/** Logs as the ERROR level does, then throws. */
#define GUILOG_THROW_EXCEPTION(Exception, ErrorMessage)                                                      \
    do                                                                                                       \
    {                                                                                                        \
        GUILOG_GUI_TRACE_ERROR(ErrorMessage);                                                                \
        throw Exception;                                                                                     \
    } while (false)

// The condition is a constant, so that compilers drop the whole call in builds of a lower level while
// the names in the message still count as used. A short call keeps the code at each log statement small.
#define GUILOG_IF_(Level, Call)                                                                              \
    do                                                                                                       \
    {                                                                                                        \
        if (GUI_TRACE_LEVEL >= (Level))                                                                      \
        {                                                                                                    \
            CGUITrace::Call;                                                                                 \
        }                                                                                                    \
    } while (false)

#endif
