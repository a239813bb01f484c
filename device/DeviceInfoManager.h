#pragma once

#include "device/DeviceField.h"
#include "device/DeviceList.h"
#include "messaging/TimeSource.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

namespace orvex::Messaging {
class Discoverer;
}

namespace orvex {

class Communicator;
class DeviceInfo;
class DiscoveryQueue;
class PendingSettings;
struct DeviceUpdateRequest;
struct SeatInfo;

/// Owns the list of known units and decides which of them is asked for what, and when: a state machine driven
/// by one timer and by the `Communicator`'s completions. The pages tell it what they show.
///
/// GUI thread only, but for the read access to the list, which takes its lock.
class DeviceInfoManager : public QObject {
    Q_OBJECT

public:
    class State;

    explicit DeviceInfoManager(TimeSource& time = TimeSource::system());
    ~DeviceInfoManager() override;
    DeviceInfoManager(const DeviceInfoManager&) = delete;
    DeviceInfoManager& operator=(const DeviceInfoManager&) = delete;

    /// Attaches the `Communicator`, which already has its messenger, and starts to tick. Once.
    void setCommunicator(std::shared_ptr<Communicator> communicator);

    // Read access for the views. Positions are row numbers.
    int deviceCount() const { return m_devices.size(); }
    std::shared_ptr<DeviceInfo> deviceAt(int index) const {
        return m_devices.at(index);
    } ///< none when out of range
    std::shared_ptr<DeviceInfo> selectedDevice() const { return m_selected; }
    /// Whether the selected unit has not been read again since the user's last setting: what is known of it
    /// may be older than that setting.
    bool isSettling() const { return m_settlingFields != 0; }

    // Called by the pages: what is shown decides what is polled. Without a selected unit, those that concern
    // one do nothing but change the state.

    /// Shows the list of units: it is rebuilt from fresh announcements, no unit is selected.
    Q_INVOKABLE void activateDeviceList();
    /// Looks for a unit that waits in access-point mode, and selects it.
    Q_INVOKABLE void startDeviceSetup();
    Q_INVOKABLE void showingWiFiList();
    /// Joins the selected unit to a network; `key` is the pass phrase as typed.
    Q_INVOKABLE void connectDeviceToWiFi(QString name, QString key);
    /// Selects the unit in that row; out of range does nothing.
    Q_INVOKABLE void selectDevice(int index);
    /// Half a second from now, has the selected unit renew its library.
    Q_INVOKABLE void triggerSubscriptionAndContentUpdate();
    Q_INVOKABLE void showingDeviceInfo();
    Q_INVOKABLE void showingNetworkStatus();
    /// Makes the selected unit forget its network and bring up its own access point.
    Q_INVOKABLE void resetNetworkSettings();
    Q_INVOKABLE void showingDeviceVersions();
    Q_INVOKABLE void showingMediaList();
    Q_INVOKABLE void showingDetailedStatusInfo();
    /// Renames the selected unit; an empty name, or the present one, does nothing.
    Q_INVOKABLE void setDeviceName(QString name);
    /// Polls nothing.
    Q_INVOKABLE void goIdle();

    // Settings of the selected unit: queued, and sent as soon as no request is under way. Of several of one
    // kind the newest is sent. Without a selected unit, or out of range: nothing.
    void setAdaptiveAudioParameters(int preMixType);
    void setAutomaticVolumeControl(bool enable);
    void setCaptureDevice(int index);            ///< position in the unit's list
    void setCaptureVolume(int volume);           ///< dB
    void setExperienceMode(int index);           ///< position in the unit's list
    void setMotionDelay(int delay);              ///< ms
    void setRecognitionTolerance(int tolerance); ///< s
    void setSeatSetting(std::shared_ptr<SeatInfo> seat);

    /// Whether a setting of that seat of the selected unit is on its way.
    bool isSeatSettingPending(int seatIndex) const;

    /// Asks for automatic volume control on the selected unit without leaving what the page polls.
    void requestAutomaticVolumeControl();

public slots:
    void onRequestComplete(bool success);

signals:
    void itemsAdded(int firstIndex, int lastIndex);
    void itemUpdated(int index);
    void itemsRemoved(int firstIndex, int lastIndex);
    void selectedDeviceUpdated();
    void settlingChanged();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct States;

    void switchTo(State& state);
    void showFields(std::uint32_t fields, int firstInterval, int repeatInterval);
    void queueSetting(std::shared_ptr<DeviceUpdateRequest> request);
    void queueAndShow(std::shared_ptr<DeviceUpdateRequest> request, State& returnState,
                      std::uint32_t confirmingFields = DeviceField::details);
    bool sendPendingSetting();
    bool tellLoss();
    void tellSelected();
    void tellNews();
    void sendNow(std::shared_ptr<DeviceUpdateRequest> request, std::uint32_t timeout);
    void startTimer(std::chrono::milliseconds interval);
    void runTimer();
    void stopTimer();
    void stopContentUpdateTimer();
    void tick();
    void complete(bool success);
    void countForSelected(bool success);
    void updateSettling(bool success);
    void setSettling(std::uint32_t fields);
    void guarded(const char* what, const std::function<void()>& step);

    void startRequest(const std::shared_ptr<DeviceInfo>& unit, std::uint32_t fields,
                      std::shared_ptr<DeviceUpdateRequest> request, std::uint32_t timeout);
    void cancelRequest();
    void cancelPoll();
    void select(std::shared_ptr<DeviceInfo> unit);
    /// What becomes of a listed unit that is announced elsewhere: nothing; the selected one is where it was
    /// announced; or every one is, and has to tell anew how it is connected.
    enum class Relocation { Ignored, Followed, AskedAgain };
    void drainDiscovery(Relocation relocation);
    void insert(const std::shared_ptr<DeviceInfo>& unit);
    void remove(const std::shared_ptr<DeviceInfo>& unit);

    std::shared_ptr<Communicator> m_communicator;
    std::shared_ptr<Messaging::Discoverer> m_discoverer;
    std::shared_ptr<DiscoveryQueue> m_discovered;
    std::shared_ptr<DeviceInfo> m_selected;
    std::shared_ptr<DeviceInfo> m_requested; ///< the unit of the request under way, or of the last one
    std::uint32_t m_requestedFields = 0;
    DeviceField::Set m_toldFields;         ///< changed since the request started, and told
    std::shared_ptr<DeviceInfo> m_leaving; ///< was told to leave its network
    TimeSource& m_time;
    int m_timerId = 0;                  ///< of the state machine
    TimeSource::TimePoint m_stateDue{}; ///< when the current state wants its next tick
    int m_contentUpdateTimerId = 0;     ///< of the content update that a page asked for
    std::uint32_t m_settlingFields = 0; ///< not read yet since they were set
    bool m_wasOnline = false;           ///< the selected unit, when the views were last told of it
    bool m_cancelling = false;          ///< the completion under way is of our own making
    std::unique_ptr<PendingSettings> m_settings;
    std::unique_ptr<States> m_states;
    State* m_state;
    DeviceList m_devices;
};

} // namespace orvex
