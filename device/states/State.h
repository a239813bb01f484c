#pragma once

#include "device/DeviceInfoManager.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace orvex {

class Communicator;
class DeviceInfo;
struct DeviceUpdateRequest;

/// What the manager does while one page, or one step of a procedure, is current. Every state lives as long as
/// the manager.
class DeviceInfoManager::State {
public:
    explicit State(DeviceInfoManager& manager)
        : m_manager(manager) {}
    virtual ~State() = default;
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    /// Has just become current; an 800 ms timer runs, which it may replace.
    virtual void enter() {}
    /// The manager's timer fired; no timer runs.
    virtual void onTimer() {}
    /// A request that was no setting has finished; no timer runs.
    virtual void onRequestComplete(bool success) { static_cast<void>(success); }

protected:
    using Relocation = DeviceInfoManager::Relocation;

    // What the states use of the manager.
    bool isCommunicatorIdle() const;
    /// `timeout` in ms. Without a unit: nothing.
    void requestFields(const std::shared_ptr<DeviceInfo>& unit, std::uint32_t fields, std::uint32_t timeout);
    /// Ends the poll under way; a setting under way goes on.
    void cancelPoll() { m_manager.cancelPoll(); }
    /// Whether the completion under way is of the manager's own making: no failure of the unit.
    bool isCancelling() const { return m_manager.m_cancelling; }
    void startTimer(int milliseconds) { m_manager.startTimer(std::chrono::milliseconds(milliseconds)); }
    bool isTimerRunning() const { return m_manager.m_timerId != 0; }
    void switchTo(State& state) { m_manager.switchTo(state); }
    bool areSettingsPending() const;
    TimeSource::TimePoint now() const { return m_manager.m_time.now(); }

    const std::vector<std::shared_ptr<DeviceInfo>>& devices() const { return m_manager.m_devices.units(); }
    int positionOf(const std::shared_ptr<DeviceInfo>& unit) const {
        return m_manager.m_devices.positionOf(unit);
    }
    void remove(const std::shared_ptr<DeviceInfo>& unit) { m_manager.remove(unit); }
    void reportUpdated(int index) { emit m_manager.itemUpdated(index); }
    const std::shared_ptr<DeviceInfo>& selected() const { return m_manager.m_selected; }
    void select(std::shared_ptr<DeviceInfo> unit) { m_manager.select(std::move(unit)); }

    /// Tells the views what the selected unit has answered since the request under way started.
    void tellNews() { m_manager.tellNews(); }

    /// Lists what has been announced since the last call; `Followed` also takes over where the selected unit
    /// is now.
    void drainDiscovery(Relocation relocation = Relocation::Ignored) { m_manager.drainDiscovery(relocation); }
    /// Forgets what has been announced, so that only units that speak from now on are listed.
    void restartDiscovery();

private:
    DeviceInfoManager& m_manager;
};

} // namespace orvex
