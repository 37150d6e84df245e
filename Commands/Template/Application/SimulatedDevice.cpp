#include "Application/SimulatedDevice.h"

namespace
{
// In the order of EKey: the name in scenarios, what is printed on it, and the key of a computer that presses
// it.
constexpr DeviceKey_t cakKeys[] = {
    {"next", "Next", "Tab"}, {"ok", "OK", "Enter"}, {"back", "Back", "Escape"}};

// A display of 30 by 8 characters, the units of the dialog files.
constexpr Device_t ckDevice = {"MyApplication", 30, 8, 1, 1, cakKeys, sizeof(cakKeys) / sizeof(cakKeys[0])};
} // namespace

const Device_t& CSimulatedDevice::GetDevice() const
{
    return ckDevice;
}

eC_Bool CSimulatedDevice::PressKey(eC_UInt uiKey)
{
    return m_pkApplication->PressKey(static_cast<EKey>(uiKey));
}
