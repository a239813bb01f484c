#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <shared_mutex>
#include <vector>

namespace orvex::Messaging {
class Discoverer;
}

namespace orvex {

class Communicator;
class DeviceInfo;
class DiscoveryQueue;

/// Owns the list of known units and decides which of them is asked for what, and when: a state machine driven
/// by one timer and by the `Communicator`'s completions. The pages tell it what they show.
///
/// GUI thread only, but for the read access to the list, which takes its lock.
class DeviceInfoManager : public QObject {
    Q_OBJECT

public:
    class State;

    DeviceInfoManager();
    ~DeviceInfoManager() override;
    DeviceInfoManager(const DeviceInfoManager&) = delete;
    DeviceInfoManager& operator=(const DeviceInfoManager&) = delete;

    /// Attaches the `Communicator`, which already has its messenger, and starts to tick. Once.
    void setCommunicator(std::shared_ptr<Communicator> communicator);

    // Read access for the views. Positions are row numbers.
    int deviceCount() const;
    std::shared_ptr<DeviceInfo> deviceAt(int index) const; ///< none when out of range
    std::shared_ptr<DeviceInfo> selectedDevice() const { return m_selected; }

    /// Shows the list of units: it is rebuilt from fresh announcements, no unit is selected.
    Q_INVOKABLE void activateDeviceList();
    /// Selects the unit in that row; out of range does nothing.
    Q_INVOKABLE void selectDevice(int index);
    /// Polls nothing.
    Q_INVOKABLE void goIdle();

public slots:
    void onRequestComplete(bool success);

signals:
    void itemsAdded(int firstIndex, int lastIndex);
    void itemUpdated(int index);
    void itemsRemoved(int firstIndex, int lastIndex);
    void selectedDeviceUpdated();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct States;

    void switchTo(State& state);
    void startTimer(int milliseconds);
    void stopTimer();
    void tick();
    void complete(bool success);
    void countForSelected(bool success);
    void guarded(const char* what, const std::function<void()>& step);

    void cancelRequest();
    void select(std::shared_ptr<DeviceInfo> unit);
    void drainDiscovery();
    void insert(std::shared_ptr<DeviceInfo> unit);
    void remove(const std::shared_ptr<DeviceInfo>& unit);
    int positionOf(const std::shared_ptr<DeviceInfo>& unit) const; ///< -1 when not listed

    std::shared_ptr<Communicator> m_communicator;
    std::shared_ptr<Messaging::Discoverer> m_discoverer;
    std::shared_ptr<DiscoveryQueue> m_discovered;
    std::shared_ptr<DeviceInfo> m_selected;
    int m_timerId = 0;
    bool m_cancelling = false; ///< the completion under way is of our own making
    std::unique_ptr<States> m_states;
    State* m_state;

    mutable std::shared_mutex m_lock; ///< guards the two below
    std::vector<std::shared_ptr<DeviceInfo>> m_devices;
    QHash<QString, std::shared_ptr<DeviceInfo>> m_devicesByUid;
};

} // namespace orvex
