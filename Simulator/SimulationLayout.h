// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SIMULATIONLAYOUT_H
#define SIMULATOR_SIMULATIONLAYOUT_H

/** @file
 *  Where the widgets are on a simulated device.
 */

#include "Simulator/CharacterMetrics.h"
#include "Simulator/SimulatedApplication.h"

/** The layout that all front ends use, with the sizes of CCharacterMetrics. */
class CSimulationLayout
{
public:
    /** @param kDevice its size and that of its characters count; not kept */
    explicit CSimulationLayout(const Device_t& kDevice);

    CSimulationLayout(const CSimulationLayout&) = delete;
    CSimulationLayout& operator=(const CSimulationLayout&) = delete;

    /** @return the layout, which is computed on request */
    const CGUIWidgetLayout& Get() const { return m_kLayout; }

private:
    CCharacterMetrics m_kMetrics;
    CGUIWidgetLayout m_kLayout;
};

#endif
