#include "benchmarks/BareClient.h"
#include "benchmarks/Figures.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"
#include "velto/wire/Envelope.h"

#include <Velto/ComponentConfigurator.h>
#include <Velto/Messaging/Messenger.h>

#include <benchmark/benchmark.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <stdexcept>

namespace {

using namespace Velto::Messaging;

constexpr int exchanges = 1000;
constexpr double allowedRatio = 1.3;

/// Lets one thread wait for what another one reports.
class Arrival : public IMessengerObserver, public IResponseHandler {
public:
    void handleConnected() override { arrive(); }
    void handleConnectionLost() override {}
    void handleNotice() override {}
    void handleResponse(std::shared_ptr<const IResponse>) override { arrive(); }

    void await() {
        std::unique_lock lock(m_mutex);
        if (!m_changed.wait_for(lock, std::chrono::seconds(5), [this] { return m_arrived; })) {
            throw std::runtime_error("nothing came within 5 s");
        }
        m_arrived = false;
    }

private:
    void arrive() {
        const std::lock_guard lock(m_mutex);
        m_arrived = true;
        m_changed.notify_one();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_arrived = false;
};

/// One request and its answer over TLS, by the messenger and by the bare client in turn.
void roundTrip(benchmark::State& state) {
    Simulator::SimulatorHost host({false, 0});
    Simulator::SimulatedUnit unit(host, {});
    unit.start();

    VeltoExportZCommComponent();
    VeltoExportQAutoDiscoveryComponent();
    Velto::ComponentConfigurator components;
    components.Init(false);
    components.Resume();

    const auto arrival = std::make_shared<Arrival>();
    const auto messenger =
        std::make_shared<Messenger>(std::vector<std::shared_ptr<Messenger::DiscoveryStrategyInfo>>{}, "KELM",
                                    ITransport::TransportType::WebSocket);
    messenger->AddObserver(arrival);
    messenger->registerResponse("GetKelmName", 1, arrival);
    messenger->connect(3000);
    messenger->chooseUnit("127.0.0.1", "unit", unit.port(), true, true, 3000);
    arrival->await();

    Bench::BareClient bareClient("127.0.0.1", unit.port());
    const auto request =
        std::make_shared<IMessage>("GetKelmName", 1, "1", nullptr, IMessage::GenericMessageType::Request);
    const std::string frame =
        *Velto::Wire::encodeFrame({Velto::Wire::Kind::Request, "GetKelmName", 1, "1", 0}, {});

    std::vector<double> messengerTimes;
    std::vector<double> bareTimes;
    for (auto _ : state) {
        for (int i = 0; i < exchanges; ++i) {
            auto start = Bench::Clock::now();
            messenger->send(request);
            arrival->await();
            messengerTimes.push_back(Bench::microsecondsSince(start));

            start = Bench::Clock::now();
            bareClient.exchange(frame);
            bareTimes.push_back(Bench::microsecondsSince(start));
        }
    }
    const double messengerTime = Bench::median(messengerTimes);
    const double bareTime = Bench::median(bareTimes);
    state.counters["messenger_us"] = messengerTime;
    state.counters["bare_us"] = bareTime;
    state.counters["ratio"] = messengerTime / bareTime;
    state.counters["allowed"] = allowedRatio;
}
BENCHMARK(roundTrip)->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
