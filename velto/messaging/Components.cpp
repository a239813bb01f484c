#include "messaging/IoThread.h"

#include <Velto/ComponentConfigurator.h>

#include <memory>
#include <utility>

namespace Velto::Messaging {

namespace {

/// Gives one of the process's I/O threads its life cycle.
class IoThreadComponent final : public Component {
public:
    using ThreadSource = std::shared_ptr<IoThread> (*)();

    explicit IoThreadComponent(ThreadSource source)
        : m_source(source) {}

    Result Init() override {
        if (m_thread)
            return Result::ConfigurationFailure;
        m_thread = m_source();
        return Result::Success;
    }

    /// The system's refusal of a thread leaves as an exception, which the configurator makes a fatal failure.
    Result Resume() override {
        if (!m_thread)
            return Result::ConfigurationFailure;
        m_thread->start();
        return Result::Success;
    }

    Result Suspend() override {
        if (!m_thread)
            return Result::ConfigurationFailure;
        m_thread->stop();
        return Result::Success;
    }

    Result Shutdown() override {
        if (!m_thread)
            return Result::ConfigurationFailure;
        std::exchange(m_thread, nullptr)->stop();
        return Result::Success;
    }

private:
    ThreadSource m_source;
    std::shared_ptr<IoThread> m_thread;
};

} // namespace

} // namespace Velto::Messaging

using Velto::Messaging::IoThreadComponent;

extern "C" void VeltoExportQAutoDiscoveryComponent() {
    Velto::RegisterComponent("QAutoDiscovery", []() -> std::unique_ptr<Velto::Component> {
        return std::make_unique<IoThreadComponent>(&Velto::Messaging::discoveryThread);
    });
}

extern "C" void VeltoExportZCommComponent() {
    Velto::RegisterComponent("ZComm", []() -> std::unique_ptr<Velto::Component> {
        return std::make_unique<IoThreadComponent>(&Velto::Messaging::communicationThread);
    });
}
