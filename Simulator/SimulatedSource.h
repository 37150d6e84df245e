// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SIMULATEDSOURCE_H
#define SIMULATOR_SIMULATEDSOURCE_H

/** @file
 *  What a simulated application is made of, if that can change while it runs.
 */

#include "Simulator/Simulation.h"

#include <string>

/** Files that an application is made of. */
class CSimulatedSource
{
public:
    /** What has happened to the files. */
    enum ENews : unsigned char
    {
        NEWS_NONE,    ///< nothing since the last look
        NEWS_CHANGED, ///< the application is a new one now
        NEWS_MISTAKE  ///< they are wrong now, and the application is as it was
    };

    virtual ~CSimulatedSource() = default;

    /** Looks whether the files have changed since the last look, and if so makes the application again
     *  (CSimulation::Change).
     *  @param kTextOUT receives what has happened, for the user; untouched if nothing has
     */
    virtual ENews Look(CSimulation& kSimulation, std::string& kTextOUT) = 0;

protected:
    CSimulatedSource() = default;
    CSimulatedSource(const CSimulatedSource&) = default;            ///< for derived classes
    CSimulatedSource& operator=(const CSimulatedSource&) = default; ///< for derived classes
};

#endif
