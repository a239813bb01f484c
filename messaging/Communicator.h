#pragma once

#include "device/DeviceUpdateRequest.h"
#include "messaging/TimeSource.h"
#include "messaging/records/AdaptiveGamingSelectedProfile.h"
#include "messaging/records/ContentUpdateState.h"
#include "messaging/records/DetailedStatusInfo.h"
#include "messaging/records/MediaList.h"
#include "messaging/records/NetworkStatus.h"
#include "messaging/records/SoftwareHealthStatus.h"

#include <Velto/Messaging/IMessage.h>

#include <QDateTime>
#include <QObject>
#include <QVariant>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace orvex::Messaging {
class Discoverer;
}
namespace Velto::Messaging {
class Messenger;
}

namespace orvex {

class DeviceInfo;

/// The one gateway to the units. Runs one request at a time against one unit: connects to it (or reuses the
/// connection), performs the request's set action, asks for the fields of its mask, fills the unit's record
/// from the answers, and reports the end once.
///
/// Lives on the GUI thread, where its operations are called. The messenger calls it on its own thread. An
/// answer is stored there at once, for the unit that the connection belongs to at that moment, so that
/// nothing of one unit can reach another one's record however late it is looked at.
class Communicator : public QObject,
                     public Velto::Messaging::IMessengerObserver,
                     public std::enable_shared_from_this<Communicator> {
    Q_OBJECT

public:
    struct Parts; ///< handlers, senders and prebuilt messages

    explicit Communicator(TimeSource& time = TimeSource::system());
    ~Communicator() override;
    Communicator(const Communicator&) = delete;
    Communicator& operator=(const Communicator&) = delete;

    /// Attaches the messenger and registers every handler with it. Once, on a shared object.
    void setMessenger(std::shared_ptr<Velto::Messaging::Messenger> messenger);

    /// Lets go of the messenger. When this was the last reference, no callback runs or comes after it
    /// returns.
    void releaseMessenger();

    /// The units that the messenger discovers; none without a messenger.
    std::shared_ptr<Messaging::Discoverer> discoverer() const;

    /// Whether no request is active.
    bool isIdle() const;

    /// Starts a request: the set action of `request` (may be none), then the fields of `expectedFields` (bits
    /// of `DeviceField`). `timeout` in ms, at least 500, 0 for 3000. While connected, an active request fails
    /// first; one that still waits for its connection is replaced without a result.
    void startRequest(std::shared_ptr<DeviceInfo> unit, std::uint32_t expectedFields,
                      std::shared_ptr<DeviceUpdateRequest> request = {}, std::uint32_t timeout = 0);

    /// Whether the set action of the request that ended last may be unknown to its unit: it was never sent,
    /// or the connection was lost under it.
    bool isLastUpdateInDoubt() const;

    /// Ends the active request as failed, before this returns.
    void cancelRequest();

    /// Ends the active request as failed, drops the connection, marks the unit offline and forgets it.
    void disconnect();

    void handleConnected() override;
    void handleConnectionLost() override;
    void handleNotice() override {}

signals:
    /// The end of a request, on the GUI thread, exactly once.
    void requestComplete(bool success);
    /// The active request has ended; any thread.
    void requestCompleteInternal(bool success);

public slots:
    void onRequestCompleteInternal(bool success);
    /// Takes a value by its name. Any thread.
    void genericResponseHandler(QVariant key, QVariant value);
    // The answers that carry a record or a value of their own. Any thread.
    void onNetworkStatusChanged(QSharedPointer<orvex::NetworkStatus> status);
    void onAdaptiveGamingSelectedProfileChanged(QSharedPointer<orvex::AdaptiveGamingSelectedProfile> profile);
    void onSoftwareHealthStatusChanged(QSharedPointer<orvex::SoftwareHealthStatus> status);
    void onMotionCodeStatusChanged(int statusType, QString text);
    void onAudioSourceStatusChanged(int statusType, QString text);
    void onMediaProgress(int offset, int duration);
    void softwareVersionReceived(QString version);
    void lastUpdateTimestampReceived(QDateTime lastUpdateTimestamp);
    void mediaListChanged(QSharedPointer<MediaList> mediaList);
    void detailedStatusChanged(QSharedPointer<DetailedStatusInfo> detailedStatus);
    void contentUpdateStateChanged(QSharedPointer<ContentUpdateState> contentUpdateState);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// Counts the requests, so that an end can tell which one it belongs to.
    using Serial = std::uint64_t;

    /// Which unit, and where it was found. Kept by value: a record's own place changes when its unit moves.
    struct Place {
        QString uid;
        QString address;
        quint16 port = 0;

        static Place of(const DeviceInfo& unit);
        bool operator==(const Place& other) const;
    };

    void finishPreviousRequest(const DeviceInfo& next);
    void dropQuietly();
    void dropConnection();
    void runConnectedProcedure();
    void endRequest(Serial serial, bool success);
    void endActiveRequest(bool success);
    void checkCompletion();
    template <class Store>
    void storeAnswer(Store&& store);

    TimeSource& m_time;
    std::shared_ptr<Velto::Messaging::Messenger> m_messenger; ///< GUI thread only
    std::unique_ptr<Parts> m_parts;
    std::optional<Place> m_chosen; ///< where the messenger was last told to connect; GUI thread only

    mutable std::mutex m_mutex; ///< guards all below
    std::shared_ptr<DeviceInfo> m_unit;
    QString m_connectedUid; ///< the unit that was connected last
    std::uint32_t m_expectedFields = 0;
    std::shared_ptr<DeviceUpdateRequest> m_request; ///< until its set action is performed
    bool m_hasUpdate = false;                       ///< the latest request came with a set action
    bool m_updateInDoubt = false;
    int m_timerId = 0;
    Serial m_serial = 0;
    std::optional<bool> m_end; ///< the active request's result, once it has one
    bool m_active = false;
    bool m_connected = false;
    bool m_dropping = false; ///< a disconnection was asked for and is not reported yet
};

} // namespace orvex
