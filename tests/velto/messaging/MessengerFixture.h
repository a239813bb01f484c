#pragma once

#include "TestPeer.h"
#include "wire/Envelope.h"

#include <Velto/ComponentConfigurator.h>
#include <Velto/Messaging/Messenger.h>

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <string>
#include <vector>

namespace Velto::Test {

using namespace std::chrono_literals;
using Messaging::CommunicationResult;
using Messaging::IMessage;
using Messaging::IMessengerObserver;
using Messaging::IResponse;
using Messaging::IResponseHandler;
using Messaging::Messenger;

/// Writes down what it is told, in order, and can be made to do something in the middle of it.
class Recorder : public IMessengerObserver, public IResponseHandler {
public:
    using Calls = std::vector<std::string>;

    void handleConnected() override { note("connected"); }
    void handleConnectionLost() override { note("lost"); }
    void handleNotice() override { note("notice"); }
    void handleErrorResponse(std::shared_ptr<const IResponse> response) override {
        note("error " + response->getMessageType() + " " +
             std::to_string(static_cast<int>(response->getStatusType())));
    }
    void handleResponse(std::shared_ptr<const IResponse> response) override {
        note(response->getMessageType() + " " + std::string(response->getBody()));
    }

    /// Runs inside the call that notes `call`.
    void atCall(const std::string& call, std::function<void()> action) {
        const std::lock_guard lock(m_mutex);
        m_trigger = call;
        m_action = std::move(action);
    }

    Calls calls() const {
        const std::lock_guard lock(m_mutex);
        return m_calls;
    }

    /// True once exactly these were noted; false when others came or time is up.
    testing::AssertionResult hears(const Calls& expected, std::chrono::milliseconds bound = 20s) const {
        std::unique_lock lock(m_mutex);
        m_noted.wait_for(lock, bound, [&] { return m_calls.size() >= expected.size(); });
        if (m_calls == expected)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "heard " << testing::PrintToString(m_calls);
    }

private:
    void note(const std::string& call) {
        std::function<void()> action;
        {
            const std::lock_guard lock(m_mutex);
            m_calls.push_back(call);
            if (call == m_trigger)
                action = std::exchange(m_action, nullptr);
        }
        m_noted.notify_all();
        if (action)
            action();
    }

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_noted;
    Calls m_calls;
    std::string m_trigger;
    std::function<void()> m_action;
};

/// The components run, and a messenger without discovery has its observer.
class MessengerFixture : public testing::Test {
protected:
    MessengerFixture() {
        VeltoExportQAutoDiscoveryComponent();
        VeltoExportZCommComponent();
        messenger->AddObserver(recorder);
    }

    void SetUp() override { ASSERT_EQ(components.Init(true), Component::Result::Success); }

    static std::shared_ptr<Messenger>
    makeMessenger(const std::vector<std::shared_ptr<Messenger::DiscoveryStrategyInfo>>& strategies = {}) {
        return std::make_shared<Messenger>(strategies, "KELM",
                                           Messaging::ITransport::TransportType::WebSocket);
    }

    bool choose(const TestPeer& peer, bool encrypted = true, std::int32_t timeout = 10000) {
        return messenger->chooseUnit("127.0.0.1", "unit", peer.port(), encrypted, true, timeout);
    }

    static std::shared_ptr<IMessage> makeMessage(const std::string& type, const std::string& body = {},
                                                 const std::string& text = {}) {
        auto buffer = std::make_shared<ManagedBuffer>();
        buffer->GetBuffer().AppendDataPtr(body.data(), body.size());
        return std::make_shared<IMessage>(type, 1, text, buffer, IMessage::GenericMessageType::Request);
    }

    static std::string frame(Wire::Kind kind, const std::string& type, const std::string& body = {},
                             int status = 0) {
        return Wire::encodeFrame({kind, type, 1, "", status}, body).value();
    }

    /// What a unit of that key at the peer's place would announce.
    void announce(const TestPeer& peer, const std::string& uid) {
        orvex::Messaging::Discovered::Values values;
        values.address = "127.0.0.1";
        values.port = peer.port();
        values.uid = uid;
        messenger->getDiscoverer()->announce(values, 1h);
    }

    ComponentConfigurator components;
    std::shared_ptr<Recorder> recorder = std::make_shared<Recorder>();
    std::shared_ptr<Messenger> messenger = makeMessenger();
};

} // namespace Velto::Test
