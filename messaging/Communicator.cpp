#include "messaging/Communicator.h"

#include "device/DeviceInfo.h"
#include "device/ProgramLog.h"
#include "messaging/CommunicatorParts.h"

#include <Velto/Messaging/Messenger.h>

#include <QTimerEvent>

#include <bitset>
#include <chrono>
#include <thread>
#include <utility>

namespace orvex {

using Velto::Messaging::Messenger;

namespace {

constexpr std::uint32_t defaultTimeout = 3000; // ms
constexpr std::uint32_t minimumTimeout = 500;  // ms

/// The messenger reports a loss within 50 ms of being told to disconnect. Past this the library is broken,
/// and a frozen window would be worse than going on without the report.
constexpr std::chrono::milliseconds disconnectionPatience{1000};

std::uint32_t effectiveTimeout(std::uint32_t timeout) {
    return timeout == 0 ? defaultTimeout : std::max(timeout, minimumTimeout);
}

} // namespace

Communicator::Place Communicator::Place::of(const DeviceInfo& unit) {
    return {unit.uid(), unit.address(), unit.port()};
}

bool Communicator::Place::operator==(const Place& other) const {
    return uid == other.uid && address == other.address && port == other.port;
}

Communicator::Communicator(TimeSource& time)
    : m_time(time) {}

Communicator::~Communicator() {
    releaseMessenger();
}

void Communicator::setMessenger(std::shared_ptr<Messenger> messenger) {
    m_messenger = std::move(messenger);
    m_messenger->AddObserver(weak_from_this());
    connect(this, &Communicator::requestCompleteInternal, this, &Communicator::onRequestCompleteInternal);
    m_parts = std::make_unique<Parts>(*m_messenger);
    m_parts->connectTo(*this);
    m_parts->registerHandlers();
}

void Communicator::releaseMessenger() {
    m_messenger.reset();
}

std::shared_ptr<Messaging::Discoverer> Communicator::discoverer() const {
    return m_messenger ? m_messenger->getDiscoverer() : nullptr;
}

bool Communicator::isIdle() const {
    const std::unique_lock lock(m_mutex);
    return !m_active;
}

bool Communicator::isLastUpdateInDoubt() const {
    const std::unique_lock lock(m_mutex);
    return m_updateInDoubt;
}

void Communicator::startRequest(std::shared_ptr<DeviceInfo> unit, std::uint32_t expectedFields,
                                std::shared_ptr<DeviceUpdateRequest> request, std::uint32_t timeout) {
    if (!unit || !m_messenger) {
        return;
    }
    finishPreviousRequest(*unit);

    const std::uint32_t bound = effectiveTimeout(timeout);
    unit->clearChangedFields();
    unit->clearAnsweredFields();
    const int timerId = m_time.startTimer(*this, static_cast<int>(bound), Qt::PreciseTimer);
    bool connected = false;
    {
        const std::unique_lock lock(m_mutex);
        m_unit = unit;
        m_expectedFields = expectedFields & DeviceField::all;
        m_request = std::move(request);
        m_hasUpdate = m_request != nullptr;
        m_updateInDoubt = m_hasUpdate;
        m_timerId = timerId;
        m_end.reset();
        m_active = true;
        ++m_serial;
        connected = m_connected;
    }
    if (connected) {
        runConnectedProcedure();
    } else {
        m_chosen = Place::of(*unit);
        m_messenger->chooseUnit(m_chosen->address.toStdString(), unit->name().toStdString(), m_chosen->port,
                                unit->isEncrypted(), true, static_cast<std::int32_t>(bound / 2));
    }
}

/// Leaves the messenger either connected to the next unit with no request active, or unconnected.
void Communicator::finishPreviousRequest(const DeviceInfo& next) {
    const bool isElsewhere = m_chosen && !(*m_chosen == Place::of(next));
    std::unique_lock lock(m_mutex);
    const bool hasEnded = m_active && m_end.has_value();
    if (m_active && (m_connected || hasEnded)) {
        const auto previous = m_unit;
        const bool success = m_end.value_or(false);
        lock.unlock();
        if (!hasEnded) {
            programLog()->warn(
                "Communicator: new request to {} {} while previous is active, canceling previous",
                previous->name().toStdString(), previous->address().toStdString());
        }
        endActiveRequest(success);
        onRequestCompleteInternal(success);
        lock.lock();
    }
    if (m_connected) {
        if (m_dropping || !m_unit || isElsewhere) {
            // The old unit is forgotten first: it is we who leave it, so it is not offline. One whose time
            // was up is, however soon the next request follows.
            if (!m_dropping) {
                m_unit.reset();
                m_expectedFields = 0;
            }
            lock.unlock();
            dropConnection();
        }
    } else if (m_active || isElsewhere) {
        // The messenger may be about to be connected for a request that was replaced or canceled. Nothing of
        // the next one may reach that unit, so it lets go of it before there is a next one.
        m_active = false;
        m_unit.reset();
        lock.unlock();
        m_messenger->disconnect();
    }
}

/// Without waiting for the report of the loss. Nothing once the messenger is gone: no request outlives its
/// time for that.
void Communicator::dropQuietly() {
    if (m_messenger) {
        m_messenger->disconnect();
    }
}

void Communicator::dropConnection() {
    dropQuietly();
    const auto patience = std::chrono::steady_clock::now() + disconnectionPatience;
    for (;;) {
        {
            const std::unique_lock lock(m_mutex);
            if (!m_connected) {
                return;
            }
            if (std::chrono::steady_clock::now() > patience) {
                m_connected = false;
                m_dropping = false;
                break;
            }
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    programLog()->error("Communicator: the messenger does not report the end of the connection, going on");
}

void Communicator::handleConnected() {
    {
        const std::unique_lock lock(m_mutex);
        if (!m_active || !m_unit) {
            return; // also for a request whose unit was forgotten while it waited: its timer ends it
        }
        m_connected = true;
        m_dropping = false;
        // What one unit has heard says nothing about another one.
        const QString uid = m_unit->uid();
        if (std::exchange(m_connectedUid, uid) != uid) {
            m_parts->mediaStatus->forgetAudioState();
        }
    }
    runConnectedProcedure();
}

void Communicator::runConnectedProcedure() {
    std::unique_lock lock(m_mutex);
    if (!m_active || !m_unit) {
        return;
    }
    const auto unit = m_unit;
    const auto request = std::exchange(m_request, nullptr);
    m_updateInDoubt = false;
    const std::uint32_t expected = m_expectedFields;
    const Serial serial = m_serial;
    lock.unlock();

    unit->setOnline(true);
    unit->setContacted(true);
    if (request) {
        m_parts->perform(*request, *unit);
    }
    if (expected == 0) {
        endRequest(serial, true);
        return;
    }
    m_parts->requestFields(expected);
    // The connection itself answers these two.
    for (const int field : {DeviceField::Online, DeviceField::Contacted}) {
        if ((expected & DeviceField::mask({field})) != 0) {
            unit->setFieldAnswered(field, true);
        }
    }
    checkCompletion();
}

void Communicator::handleConnectionLost() {
    std::shared_ptr<DeviceInfo> unit;
    Serial serial = 0;
    {
        const std::unique_lock lock(m_mutex);
        if (!m_connected) {
            return; // a connection that no request of ours was waiting for
        }
        // What was sent when the connection broke may have been lost with it.
        if (m_hasUpdate && m_active && !m_end && !m_dropping) {
            m_updateInDoubt = true;
        }
        m_connected = false;
        m_dropping = false;
        unit = m_unit;
        serial = m_serial;
    }
    if (!unit) {
        return;
    }
    unit->setOnline(false);
    endRequest(serial, false);
}

template <class Store>
void Communicator::storeAnswer(Store&& store) {
    std::shared_ptr<DeviceInfo> unit;
    {
        const std::unique_lock lock(m_mutex);
        if (!m_active || !m_connected) {
            return;
        }
        unit = m_unit;
    }
    if (unit) {
        store(*unit);
        checkCompletion();
    }
}

void Communicator::checkCompletion() {
    Serial serial = 0;
    {
        const std::unique_lock lock(m_mutex);
        if (!m_active || !m_unit) {
            return;
        }
        const auto answered = static_cast<std::uint32_t>(m_unit->answeredFields().to_ulong());
        if ((m_expectedFields & answered) != m_expectedFields) {
            return;
        }
        serial = m_serial;
    }
    endRequest(serial, true);
}

/// The first end of a request is its result. One that belongs to an earlier request is none at all.
void Communicator::endRequest(Serial serial, bool success) {
    {
        const std::unique_lock lock(m_mutex);
        if (!m_active || m_serial != serial || m_end) {
            return;
        }
        m_end = success;
    }
    emit requestCompleteInternal(success);
}

void Communicator::endActiveRequest(bool success) {
    Serial serial = 0;
    {
        const std::unique_lock lock(m_mutex);
        serial = m_serial;
    }
    endRequest(serial, success);
}

// The argument may be an earlier request's, come late through the queue: the result kept with the active one
// counts.
void Communicator::onRequestCompleteInternal(bool) {
    int timerId = 0;
    bool success = false;
    {
        const std::unique_lock lock(m_mutex);
        if (!m_active || !m_end) {
            return;
        }
        success = *m_end;
        m_end.reset();
        m_active = false;
        m_request.reset();
        timerId = std::exchange(m_timerId, 0);
    }
    if (timerId != 0) {
        m_time.stopTimer(*this, timerId);
    }
    emit requestComplete(success);
}

void Communicator::cancelRequest() {
    if (isIdle()) {
        return;
    }
    programLog()->warn("Communicator: canceling request");
    endActiveRequest(false);
    onRequestCompleteInternal(false);
}

void Communicator::disconnect() {
    bool connected = false;
    bool active = false;
    {
        const std::unique_lock lock(m_mutex);
        connected = m_connected;
        active = m_active;
    }
    if (connected) {
        if (active) {
            programLog()->warn("Communicator: disconnect() called during request, canceling request");
            endActiveRequest(false);
            onRequestCompleteInternal(false);
        }
        {
            const std::unique_lock lock(m_mutex);
            m_dropping = true;
        }
        dropQuietly();
    }
    std::shared_ptr<DeviceInfo> unit;
    {
        const std::unique_lock lock(m_mutex);
        unit = std::exchange(m_unit, nullptr);
        m_expectedFields = 0;
    }
    if (unit) {
        unit->setOnline(false);
    }
}

// Whichever timer fires ends the active request, also one left over from a request that was replaced.
void Communicator::timerEvent(QTimerEvent* event) {
    std::unique_lock lock(m_mutex);
    if (event->timerId() != m_timerId) {
        m_time.stopTimer(*this, event->timerId());
    }
    if (!m_active || m_end) {
        return; // answered in time, the end is only on its way
    }
    const Serial serial = m_serial;
    const auto unit = m_unit;
    const std::uint32_t expected = m_expectedFields;
    m_dropping = m_connected;
    lock.unlock();

    if (unit) {
        const auto answered = static_cast<std::uint32_t>(unit->answeredFields().to_ulong());
        const std::bitset<DeviceField::count> missing(expected & ~answered);
        programLog()->warn("Communicator: timeout. Missing fields {}", missing.to_string());
    }
    // Dropped before the end is told, lest this cuts the connection of a request started in answer to it.
    dropQuietly();
    endRequest(serial, false);
}

void Communicator::genericResponseHandler(QVariant key, QVariant value) {
    const QString name = key.toString();
    const auto update = m_parts->updateFor(name);
    if (!update) {
        programLog()->warn("Communicator::genericResponseHandler unexpected notification {}",
                           name.toStdString());
        return;
    }
    storeAnswer([&](DeviceInfo& unit) { update(*m_parts, unit, value); });
}

void Communicator::onNetworkStatusChanged(QSharedPointer<orvex::NetworkStatus> status) {
    storeAnswer([&](DeviceInfo& unit) { unit.setNetworkStatus(status); });
}

void Communicator::onAdaptiveGamingSelectedProfileChanged(
    QSharedPointer<orvex::AdaptiveGamingSelectedProfile> profile) {
    storeAnswer([&](DeviceInfo& unit) { unit.setAdaptiveGamingSelectedProfile(profile); });
}

void Communicator::onSoftwareHealthStatusChanged(QSharedPointer<orvex::SoftwareHealthStatus> status) {
    storeAnswer([&](DeviceInfo& unit) { unit.setSoftwareHealthStatus(status); });
}

void Communicator::onMotionCodeStatusChanged(int statusType, QString text) {
    storeAnswer([&](DeviceInfo& unit) { unit.setMotionCodeStatus({statusType, text}); });
}

void Communicator::onAudioSourceStatusChanged(int statusType, QString text) {
    storeAnswer([&](DeviceInfo& unit) { unit.setAudioSourceStatus({statusType, text}); });
}

void Communicator::onMediaProgress(int offset, int duration) {
    storeAnswer([&](DeviceInfo& unit) { unit.setMediaProgress(offset, duration); });
}

void Communicator::softwareVersionReceived(QString version) {
    storeAnswer([&](DeviceInfo& unit) { unit.setSoftwareVersion(version); });
}

void Communicator::lastUpdateTimestampReceived(QDateTime lastUpdateTimestamp) {
    storeAnswer([&](DeviceInfo& unit) { unit.setLibraryUpdateTime(lastUpdateTimestamp); });
}

void Communicator::mediaListChanged(QSharedPointer<MediaList> mediaList) {
    storeAnswer([&](DeviceInfo& unit) { unit.setMediaList(mediaList); });
}

void Communicator::detailedStatusChanged(QSharedPointer<DetailedStatusInfo> detailedStatus) {
    storeAnswer([&](DeviceInfo& unit) { unit.setDetailedStatusInfo(detailedStatus); });
}

void Communicator::contentUpdateStateChanged(QSharedPointer<ContentUpdateState> contentUpdateState) {
    storeAnswer([&](DeviceInfo& unit) { unit.setContentUpdateState(contentUpdateState); });
}

} // namespace orvex
