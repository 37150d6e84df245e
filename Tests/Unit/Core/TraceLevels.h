// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_CORE_TRACELEVELS_H
#define TESTS_UNIT_CORE_TRACELEVELS_H

/** @file
 *  The same log statements, compiled at every trace level. Each function is in its own source file, which
 *  sets the level; it logs "<its level>: text of ERROR" and so on at all levels.
 */

#include "Core/Utils/eC_Types.h"

/** @param iEvaluated is incremented for every message that is evaluated
 *  @throws int 7 at the end
 */
void LogInBuildOff(eC_Int& iEvaluated);
void LogInBuildError(eC_Int& iEvaluated);
void LogInBuildWarning(eC_Int& iEvaluated);
void LogInBuildDebug(eC_Int& iEvaluated);

/** @return the text, after counting it */
inline const eC_Char* Evaluate(eC_Int& iEvaluated, const eC_Char* pcText)
{
    ++iEvaluated;
    return pcText;
}

#define LOG_AT_ALL_LEVELS(Build)                                                                             \
    GUILOG(GUI_TRACE_ERROR, Evaluate(iEvaluated, Build ": text of ERROR"));                                  \
    GUILOG(GUI_TRACE_WARNING, Evaluate(iEvaluated, Build ": text of WARNING"));                              \
    GUILOG(GUI_TRACE_DEBUG, Evaluate(iEvaluated, Build ": text of DEBUG"));                                  \
    GUILOGMESSAGE(Evaluate(iEvaluated, Build ": text of INFO"));                                             \
    GUILOG_THROW_EXCEPTION(7, Evaluate(iEvaluated, Build ": text of EXCEPTION"))

#endif
