#ifndef APPLICATION_SIMULATEDDEVICE_H
#define APPLICATION_SIMULATEDDEVICE_H

#include "Application/Application.h"
#include "Simulator/SimulatedApplication.h"

#include <memory>

/** The application on a device that a computer simulates. A real device needs none of this: it passes its
 * keys to CApplication, calls the timer, and draws the widgets.
 */
class CSimulatedDevice : public CSimulatedApplication
{
public:
    const Device_t& GetDevice() const override;
    void Start() override { m_pkApplication = std::make_unique<CApplication>(); }
    void Stop() override { m_pkApplication.reset(); }
    eC_Bool PowerOn() override { return m_pkApplication->Start(); }
    CGUIDialogManager& GetManager() override { return m_pkApplication->GetManager(); }
    CGUIWidgetInput& GetInput() override { return m_pkApplication->GetInput(); }
    eC_Bool PressKey(eC_UInt uiKey) override;

private:
    std::unique_ptr<CApplication> m_pkApplication;
};

#endif
