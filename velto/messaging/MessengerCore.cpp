#include "messaging/MessengerCore.h"

#include "core/Areas.h"
#include "messaging/WebSocketLink.h"
#include "wire/Envelope.h"

#include <spdlog/logger.h>

#include <exception>
#include <list>
#include <utility>

namespace Velto::Messaging {

namespace {

using GenericType = IMessage::GenericMessageType;
using Status = IResponse::StatusType;

constexpr std::pair<GenericType, Wire::Kind> kinds[] = {{GenericType::Request, Wire::Kind::Request},
                                                        {GenericType::Response, Wire::Kind::Response},
                                                        {GenericType::Notification, Wire::Kind::Notification},
                                                        {GenericType::Error, Wire::Kind::Error}};

Wire::Kind kindOf(GenericType type) {
    for (const auto& [generic, kind] : kinds)
        if (generic == type)
            return kind;
    return Wire::Kind::Request;
}

GenericType genericTypeOf(Wire::Kind kind) {
    for (const auto& [generic, known] : kinds)
        if (known == kind)
            return generic;
    return GenericType::Error;
}

/// A status that this library has no name for counts as a failure.
Status statusOf(std::int32_t status) {
    const bool known = status >= static_cast<int>(Status::Ok) && status <= static_cast<int>(Status::Failed);
    return known ? static_cast<Status>(status) : Status::Failed;
}

std::shared_ptr<const IResponse> responseOf(const Wire::DecodedFrame& decoded) {
    auto body = std::make_shared<ManagedBuffer>();
    body->GetBuffer().AppendDataPtr(decoded.body.data(), decoded.body.size());
    const Wire::Header& header = decoded.header;
    return std::make_shared<IResponse>(header.type, header.number, header.text, std::move(body),
                                       genericTypeOf(header.kind), statusOf(header.status));
}

/// Calls into the program; what it throws ends here.
template <class Call>
void guarded(const char* whom, Call call) {
    try {
        call();
    } catch (const std::exception& e) {
        detail::areaLogger(detail::Area::ZComm)->error("{} failed: {}", whom, e.what());
    } catch (...) {
        detail::areaLogger(detail::Area::ZComm)->error("{} failed", whom);
    }
}

} // namespace

Messenger::Core::Core(Messenger& owner, std::string service, ITransport::TransportType transportType)
    : m_owner(owner)
    , m_service(std::move(service))
    , m_transportType(transportType) {}

void Messenger::Core::addStrategies(const std::vector<std::shared_ptr<DiscoveryStrategyInfo>>& infos) {
    const DiscoverySurroundings surroundings{m_discovery, m_discoverer, m_gate, m_service};
    for (const auto& info : infos)
        if (auto strategy = info ? makeDiscoveryStrategy(*info, surroundings) : nullptr)
            m_strategies.push_back(std::move(strategy));
}

void Messenger::Core::end() {
    m_gate->close();
    for (const auto& strategy : m_strategies)
        strategy->stop();
    decide([](ConnectionMachine& machine) { return machine.disconnect(); });
    // Not through the queue of actions: it ends with this object, the link's farewell comes after.
    if (auto link = takeLink())
        m_communication->post([link] { link->close(); });
}

void Messenger::Core::choose(ChosenUnit unit, bool connectNow, std::chrono::milliseconds timeout) {
    decide([&](ConnectionMachine& machine) { return machine.choose(std::move(unit), connectNow, timeout); });
    carryOutSoon();
}

void Messenger::Core::connect(std::chrono::milliseconds timeout) {
    for (const auto& strategy : m_strategies)
        strategy->start();
    decide([&](ConnectionMachine& machine) { return machine.connect(timeout); });
    carryOutSoon();
}

void Messenger::Core::disconnect() {
    decide([](ConnectionMachine& machine) { return machine.disconnect(); });
    carryOutSoon();
}

CommunicationResult Messenger::Core::send(const IMessage& message) {
    {
        const std::lock_guard lock(m_mutex);
        if (!m_machine.isConnected())
            return CommunicationResult::NotConnected;
    }
    // Outside the lock: a large body takes its time to copy.
    auto frame = Wire::encodeFrame({kindOf(message.getGenericMessageType()), message.getMessageType(),
                                    message.getNumber(), message.getText(), 0},
                                   message.getBody());
    if (!frame) {
        detail::areaLogger(detail::Area::InterprocMessaging)
            ->error("A message of {} bytes cannot be sent and was dropped", message.getBody().size());
        return CommunicationResult::TooLarge;
    }
    const std::lock_guard lock(m_mutex);
    if (!m_machine.hears(m_linkGeneration) || !m_link)
        return CommunicationResult::NotConnected;
    return m_link->queue(std::move(*frame)) ? CommunicationResult::Success : CommunicationResult::QueueFull;
}

void Messenger::Core::registerResponse(const std::string& messageType,
                                       std::shared_ptr<IResponseHandler> handler) {
    // The replaced handler goes outside the lock: its end is the program's code.
    const std::lock_guard lock(m_mutex);
    m_handlers[messageType].swap(handler);
}

void Messenger::Core::linkUp(std::uint64_t generation) {
    m_undecodableTold = false;
    decide([generation](ConnectionMachine& machine) { return machine.linkUp(generation); });
    carryOut();
}

LinkListener::Verdict Messenger::Core::linkReceived(std::uint64_t generation, std::string_view frame) {
    Wire::DecodedFrame decoded;
    const auto error = Wire::decodeFrame(frame, decoded);
    if (error == Wire::FrameError::HeaderTooLarge)
        return Verdict::Violation;
    if (error != Wire::FrameError::None || decoded.header.kind == Wire::Kind::Request) {
        tellUndecodable(error == Wire::FrameError::None ? "a unit sends no requests" : Wire::describe(error));
        return Verdict::Keep;
    }
    {
        const std::lock_guard lock(m_mutex);
        if (!m_machine.hears(generation))
            return Verdict::Keep;
    }
    deliver(decoded);
    return Verdict::Keep;
}

void Messenger::Core::linkDown(std::uint64_t generation, const std::string& reason) {
    detail::areaLogger(detail::Area::BaseComm)->info("Connection {} has ended: {}", generation, reason);
    decide([generation](ConnectionMachine& machine) { return machine.linkDown(generation); });
    if (linkOf(generation))
        takeLink();
    carryOut();
}

template <class Event>
void Messenger::Core::decide(Event event) {
    const std::lock_guard lock(m_mutex);
    for (Action& action : event(m_machine))
        m_actions.push_back(std::move(action));
}

void Messenger::Core::carryOutSoon() {
    m_communication->post([weak = weak_from_this()] {
        if (const auto self = weak.lock())
            self->carryOut();
    });
}

void Messenger::Core::carryOut() {
    for (Action action; takeAction(action);)
        std::visit([this](const auto& act) { perform(act); }, action);
}

bool Messenger::Core::takeAction(Action& action) {
    const std::lock_guard lock(m_mutex);
    if (m_actions.empty())
        return false;
    action = std::move(m_actions.front());
    m_actions.pop_front();
    return true;
}

void Messenger::Core::perform(const Act::OpenLink& act) {
    if (m_transportType != ITransport::TransportType::WebSocket) {
        linkDown(act.generation, "this transport cannot connect");
        return;
    }
    detail::areaLogger(detail::Area::BaseComm)
        ->debug("Connection {}: to {} port {}, {}", act.generation, act.unit.address, act.unit.port,
                act.unit.encrypted ? "encrypted" : "plain");
    const Peer peer{act.unit.address, act.unit.port, act.unit.encrypted,
                    m_discoverer->expectedUid(act.unit.address, act.unit.port)};
    auto link = makeWebSocketLink(m_communication, peer, act.generation, weak_from_this());
    {
        const std::lock_guard lock(m_mutex);
        if (!m_machine.pursues(act.generation))
            return;
        m_link = link;
        m_linkGeneration = act.generation;
    }
    link->open(act.timeout);
}

void Messenger::Core::perform(const Act::BoundLink& act) {
    if (const auto link = linkOf(act.generation))
        link->bound(act.timeout);
}

void Messenger::Core::perform(const Act::CloseLink& act) {
    if (linkOf(act.generation))
        takeLink()->close();
}

// Whoever let go of the unit while the report was on its way must not hear of it any more: they may be about
// to take it for the next unit's.
void Messenger::Core::perform(const Act::ReportConnected& act) {
    {
        const std::lock_guard lock(m_mutex);
        if (!m_machine.hears(act.generation))
            return;
    }
    m_connectedTold = true;
    tellObservers([](IMessengerObserver& observer) { observer.handleConnected(); });
}

void Messenger::Core::perform(const Act::ReportLost&) {
    if (std::exchange(m_connectedTold, false))
        tellObservers([](IMessengerObserver& observer) { observer.handleConnectionLost(); });
}

void Messenger::Core::perform(const Act::ReportFailedAttempt&) {
    tellObservers([](IMessengerObserver& observer) { observer.handleNotice(); });
}

std::shared_ptr<Link> Messenger::Core::linkOf(std::uint64_t generation) {
    const std::lock_guard lock(m_mutex);
    return m_linkGeneration == generation ? m_link : nullptr;
}

std::shared_ptr<Link> Messenger::Core::takeLink() {
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_link, nullptr);
}

void Messenger::Core::deliver(const Wire::DecodedFrame& decoded) {
    const auto response = responseOf(decoded);
    if (decoded.header.kind == Wire::Kind::Error) {
        tellObservers([&](IMessengerObserver& observer) { observer.handleErrorResponse(response); });
        return;
    }
    std::shared_ptr<IResponseHandler> handler;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_handlers.find(response->getMessageType());
        if (found != m_handlers.end())
            handler = found->second;
    }
    const CallbackGate::Pass pass(*m_gate);
    if (handler && pass)
        guarded("A response handler", [&] { handler->handleResponse(response); });
}

void Messenger::Core::tellUndecodable(const char* why) {
    if (!std::exchange(m_undecodableTold, true))
        detail::areaLogger(detail::Area::InterprocMessaging)
            ->warn("A message that cannot be read was dropped, further ones silently: {}", why);
}

template <class Call>
void Messenger::Core::tellObservers(Call call) {
    std::list<std::weak_ptr<IMessengerObserver>> observers;
    if (const CallbackGate::Pass pass(*m_gate); pass)
        observers = m_owner.GetObservers();
    for (const auto& observer : observers) {
        // A pass for each: one of them may have ended the messenger.
        const auto alive = observer.lock();
        const CallbackGate::Pass pass(*m_gate);
        if (alive && pass)
            guarded("An observer of the messenger", [&] { call(*alive); });
    }
}

} // namespace Velto::Messaging
