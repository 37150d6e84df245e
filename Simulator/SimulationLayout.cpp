// SPDX-License-Identifier: MIT
#include "Simulator/SimulationLayout.h"

CSimulationLayout::CSimulationLayout(const Device_t& kDevice)
    : m_kMetrics(kDevice.m_iColumnWidth, kDevice.m_iRowHeight),
      m_kLayout(kDevice.m_iWidth, kDevice.m_iHeight, &m_kMetrics)
{
}
