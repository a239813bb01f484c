#pragma once

#include "device/states/State.h"

namespace orvex {

/// Shows a page that needs one kind of data of the selected unit, read again and again.
class UpdateSelectedDeviceFieldsState : public DeviceInfoManager::State {
public:
    using State::State;

    /// What to read, from the next `enter` on; intervals in ms, the second counted from the end of each
    /// reading.
    void configure(std::uint32_t fields, int firstInterval, int repeatInterval);

    void enter() override;
    void onTimer() override;
    void onRequestComplete(bool success) override;

private:
    std::uint32_t m_fields = 0;
    int m_firstInterval = 0;
    int m_repeatInterval = 0;
};

} // namespace orvex
