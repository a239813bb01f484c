// What a long list of units costs the user-interface thread.
#include "benchmarks/Figures.h"
#include "device/DeviceInfoManager.h"
#include "messaging/Communicator.h"
#include "models/DeviceListModel.h"
#include "tests/device/TurnedTime.h"

#include <Velto/Messaging/Messenger.h>

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

#include <string>

namespace {

using namespace orvex;

/// A list of units that are announced and not there, under time that stands still. Nothing is waited for.
struct UnitList {
    explicit UnitList(int units) {
        using namespace Velto::Messaging;
        const auto messenger =
            std::make_shared<Messenger>(std::vector<std::shared_ptr<Messenger::DiscoveryStrategyInfo>>{},
                                        "KELM", ITransport::TransportType::WebSocket);
        communicator->setMessenger(messenger);
        model.setDeviceInfoManager(manager);
        manager->setCommunicator(communicator);
        for (int number = 0; number < units; ++number) {
            Messaging::Discovered::Values values;
            values.uid = std::to_string(number);
            values.name = "Unit " + std::to_string(number * 7919 % units);
            values.address = "127.0.0.1";
            values.port = 1;
            messenger->getDiscoverer()->announce(values, std::chrono::hours(24));
        }
    }
    ~UnitList() { communicator->releaseMessenger(); }

    /// The next tick takes in all that was announced and starts a poll.
    double insertAll() {
        return timeOf([this] { time.pass(std::chrono::milliseconds(800)); });
    }

    void startPoll() {
        while (communicator->isIdle()) {
            time.pass(time.untilNext());
        }
    }

    /// The tick alone: the walk to the next unit, and the start of its poll.
    double tick() {
        communicator->cancelRequest();
        return timeOf([this] { startPoll(); });
    }

    /// The manager is told that the poll under way has succeeded.
    double update() {
        communicator->cancelRequest();
        startPoll();
        return timeOf([this] { manager->onRequestComplete(true); });
    }

    /// The poll under way fails.
    double fail() {
        startPoll();
        return timeOf([this] { communicator->cancelRequest(); });
    }

    template <class Work>
    static double timeOf(Work work) {
        const auto start = Bench::Clock::now();
        work();
        return Bench::microsecondsSince(start);
    }

    Test::TurnedTime time;
    std::shared_ptr<Communicator> communicator = std::make_shared<Communicator>(time);
    std::shared_ptr<DeviceInfoManager> manager = std::make_shared<DeviceInfoManager>(time);
    DeviceListModel model;
};

/// Each step for one of 1,000 units, the model's part included, in microseconds.
void listOfUnits(benchmark::State& state) {
    constexpr int units = 1000;
    for (auto _ : state) {
        UnitList list(units);
        state.counters["insert_us"] = list.insertAll() / units;
        std::vector<double> updates;
        updates.reserve(200);
        for (int round = 0; round < 200; ++round) {
            updates.push_back(list.update());
        }
        state.counters["update_us"] = Bench::median(updates);
        std::vector<double> drops;
        while (list.manager->deviceCount() > units / 2) {
            const int before = list.manager->deviceCount();
            const double taken = list.fail();
            if (list.manager->deviceCount() < before) {
                drops.push_back(taken);
            }
        }
        state.counters["drop_us"] = Bench::median(drops);
        state.counters["allowed_us"] = 50;
    }
}
BENCHMARK(listOfUnits)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

/// A tick among 1,000 units beside one among 10.
void tickAmongUnits(benchmark::State& state) {
    const auto medianTick = [](int units) {
        UnitList list(units);
        list.insertAll();
        std::vector<double> ticks;
        ticks.reserve(200);
        for (int round = 0; round < 200; ++round) {
            ticks.push_back(list.tick());
        }
        return Bench::median(ticks);
    };
    for (auto _ : state) {
        const double few = medianTick(10);
        const double many = medianTick(1000);
        state.counters["few_us"] = few;
        state.counters["many_us"] = many;
        state.counters["ratio"] = many / few;
    }
}
BENCHMARK(tickAmongUnits)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    spdlog::register_logger(std::make_shared<spdlog::logger>(
        "orvex.QuiveraApp", std::make_shared<spdlog::sinks::null_sink_mt>()));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
