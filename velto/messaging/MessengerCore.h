#pragma once

#include "messaging/CallbackGate.h"
#include "messaging/ConnectionMachine.h"
#include "messaging/DiscoveryStrategy.h"
#include "messaging/IoThread.h"
#include "messaging/Link.h"

#include <Velto/Messaging/Messenger.h>

#include <deque>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Velto::Wire {
struct DecodedFrame;
}

namespace Velto::Messaging {

/// The works behind a messenger. Decisions are taken on the caller's thread, under a lock, by the machine;
/// what they lead to is queued and carried out in that order on the communication thread.
class Messenger::Core final : public LinkListener, public std::enable_shared_from_this<Core> {
public:
    Core(Messenger& owner, std::string service, ITransport::TransportType transportType);

    void addStrategies(const std::vector<std::shared_ptr<DiscoveryStrategyInfo>>& infos);

    /// After this nothing calls the owner any more.
    void end();

    void choose(ChosenUnit unit, bool connectNow, std::chrono::milliseconds timeout);
    void connect(std::chrono::milliseconds timeout);
    void disconnect();
    CommunicationResult send(const IMessage& message);
    void registerResponse(const std::string& messageType, std::shared_ptr<IResponseHandler> handler);
    std::shared_ptr<orvex::Messaging::Discoverer> discoverer() const { return m_discoverer; }

    void linkUp(std::uint64_t generation) override;
    Verdict linkReceived(std::uint64_t generation, std::string_view frame) override;
    void linkDown(std::uint64_t generation, const std::string& reason) override;

private:
    /// Puts an event to the machine and queues what follows from it.
    template <class Event>
    void decide(Event event);
    /// Has the queue carried out soon, on the communication thread.
    void carryOutSoon();
    void carryOut();
    bool takeAction(Action& action);

    void perform(const Act::OpenLink& act);
    void perform(const Act::BoundLink& act);
    void perform(const Act::CloseLink& act);
    void perform(const Act::ReportConnected& act);
    void perform(const Act::ReportLost& act);
    void perform(const Act::ReportFailedAttempt& act);

    std::shared_ptr<Link> linkOf(std::uint64_t generation);
    std::shared_ptr<Link> takeLink();
    void deliver(const Wire::DecodedFrame& decoded);
    void tellUndecodable(const char* why);
    template <class Call>
    void tellObservers(Call call);

    Messenger& m_owner; ///< only touched with a pass of the gate
    const std::string m_service;
    const ITransport::TransportType m_transportType;
    // The threads come before, and so outlive, what they serve.
    const std::shared_ptr<IoThread> m_communication = communicationThread();
    const std::shared_ptr<IoThread> m_discovery = discoveryThread();
    const std::shared_ptr<CallbackGate> m_gate = std::make_shared<CallbackGate>();
    const std::shared_ptr<orvex::Messaging::Discoverer> m_discoverer =
        std::make_shared<orvex::Messaging::Discoverer>();
    std::vector<std::shared_ptr<DiscoveryStrategy>> m_strategies;

    std::mutex m_mutex; ///< guards what follows
    ConnectionMachine m_machine;
    std::deque<Action> m_actions;
    std::shared_ptr<Link> m_link;
    std::uint64_t m_linkGeneration = 0;
    std::unordered_map<std::string, std::shared_ptr<IResponseHandler>> m_handlers;

    // Of the communication thread.
    bool m_undecodableTold = false;
    bool m_connectedTold = false; ///< and not yet lost
};

} // namespace Velto::Messaging
