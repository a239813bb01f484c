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

constexpr std::size_t exchanges = 1000;
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

/// Sends the next request in the middle of the answer to the last one, as the program's own handlers may.
class Chain : public IResponseHandler {
public:
    Chain(std::weak_ptr<Messenger> messenger, std::shared_ptr<IMessage> request)
        : m_messenger(std::move(messenger))
        , m_request(std::move(request)) {}

    void handleResponse(std::shared_ptr<const IResponse>) override {
        m_times.push_back(Bench::microsecondsSince(m_start));
        if (m_times.size() % batch == 0) {
            m_done.handleConnected();
        } else {
            sendNext();
        }
    }

    void runBatch() {
        sendNext();
        m_done.await();
    }

    /// Not while a batch runs.
    std::vector<double> times() const { return m_times; }

    static constexpr std::size_t batch = 100;

private:
    void sendNext() {
        m_start = Bench::Clock::now();
        if (const auto messenger = m_messenger.lock()) {
            messenger->send(m_request);
        }
    }

    std::weak_ptr<Messenger> m_messenger;
    std::shared_ptr<IMessage> m_request;
    Bench::Clock::time_point m_start;
    std::vector<double> m_times;
    Arrival m_done;
};

/// A unit, a messenger connected to it over TLS, and the bare client beside it.
struct Line {
    Line() {
        unit.start();
        VeltoExportZCommComponent();
        VeltoExportQAutoDiscoveryComponent();
        components.Init(true);
        messenger->AddObserver(arrival);
        messenger->connect(3000);
        messenger->chooseUnit("127.0.0.1", "unit", unit.port(), true, true, 3000);
        arrival->await();
        bareClient = std::make_unique<Bench::BareClient>("127.0.0.1", unit.port());
    }

    double bareExchange() {
        const auto start = Bench::Clock::now();
        bareClient->exchange(frame);
        return Bench::microsecondsSince(start);
    }

    Simulator::SimulatorHost host{{false, 0}};
    Simulator::SimulatedUnit unit{host, {}};
    Velto::ComponentConfigurator components;
    std::shared_ptr<Arrival> arrival = std::make_shared<Arrival>();
    std::shared_ptr<Messenger> messenger =
        std::make_shared<Messenger>(std::vector<std::shared_ptr<Messenger::DiscoveryStrategyInfo>>{}, "KELM",
                                    ITransport::TransportType::WebSocket);
    std::unique_ptr<Bench::BareClient> bareClient;
    std::shared_ptr<IMessage> request =
        std::make_shared<IMessage>("GetKelmName", 1, "1", nullptr, IMessage::GenericMessageType::Request);
    std::string frame = *Velto::Wire::encodeFrame({Velto::Wire::Kind::Request, "GetKelmName", 1, "1", 0}, {});
};

void report(benchmark::State& state, const std::vector<double>& messengerTimes,
            const std::vector<double>& bareTimes) {
    const double messengerTime = Bench::median(messengerTimes);
    const double bareTime = Bench::median(bareTimes);
    state.counters["messenger_us"] = messengerTime;
    state.counters["bare_us"] = bareTime;
    state.counters["ratio"] = messengerTime / bareTime;
}

/// One request and its answer, both on the thread that the messenger calls back on: like for like with the
/// bare client, which has but one thread.
void roundTrip(benchmark::State& state) {
    Line line;
    const auto chain = std::make_shared<Chain>(line.messenger, line.request);
    line.messenger->registerResponse("GetKelmName", 1, chain);
    std::vector<double> bareTimes;
    for (auto _ : state) {
        while (bareTimes.size() < exchanges) {
            chain->runBatch();
            for (std::size_t i = 0; i < Chain::batch; ++i) {
                bareTimes.push_back(line.bareExchange());
            }
        }
    }
    report(state, chain->times(), bareTimes);
    state.counters["allowed"] = allowedRatio;
}
BENCHMARK(roundTrip)->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);

/// The same as seen by another thread that waits for the answer: what the two changes of threads cost on top.
void roundTripAcrossThreads(benchmark::State& state) {
    Line line;
    line.messenger->registerResponse("GetKelmName", 1, line.arrival);
    std::vector<double> messengerTimes;
    std::vector<double> bareTimes;
    for (auto _ : state) {
        while (bareTimes.size() < exchanges) {
            const auto start = Bench::Clock::now();
            line.messenger->send(line.request);
            line.arrival->await();
            messengerTimes.push_back(Bench::microsecondsSince(start));
            bareTimes.push_back(line.bareExchange());
        }
    }
    report(state, messengerTimes, bareTimes);
}
BENCHMARK(roundTripAcrossThreads)->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
