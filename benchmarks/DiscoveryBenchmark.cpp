#include "benchmarks/Figures.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"

#include <Velto/ComponentConfigurator.h>
#include <Velto/Messaging/Messenger.h>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <thread>

namespace {

using orvex::Messaging::Discovered;
using orvex::Messaging::Discoverer;
using Velto::Messaging::ITransport;
using Velto::Messaging::Messenger;

constexpr std::uint16_t discoveryPort = 22741; // no unit that runs beside the benchmark hears it
constexpr double allowedListing = 150;         // ms
constexpr double allowedGrowth = 1.3;          // cost of one among 1,000 to that of one among 100
constexpr double allowedBytes = 2048;          // per unit

/// From the messenger's first probe to all of three units being listed.
void threeUnits(benchmark::State& state) {
    setenv("VELTO_DISCOVERY_INTERFACES", "lo", 1);
    Simulator::SimulatorHost host({true, discoveryPort});
    std::vector<std::unique_ptr<Simulator::SimulatedUnit>> units;
    for (const char* address : {"127.0.0.2", "127.0.0.3", "127.0.0.4"}) {
        Simulator::UnitOptions options;
        options.address = address;
        options.number = units.size() + 1;
        units.push_back(std::make_unique<Simulator::SimulatedUnit>(host, options));
        units.back()->start();
    }
    VeltoExportZCommComponent();
    VeltoExportQAutoDiscoveryComponent();
    Velto::ComponentConfigurator components;
    components.Init(true);

    std::vector<double> times;
    for (auto _ : state) {
        auto strategy = std::make_shared<Messenger::DiscoveryStrategyInfo>();
        *strategy = {3, std::to_string(discoveryPort), 1500};
        const auto messenger = std::make_shared<Messenger>(
            std::vector<std::shared_ptr<Messenger::DiscoveryStrategyInfo>>{strategy}, "KELM",
            ITransport::TransportType::WebSocket);
        const auto start = Bench::Clock::now();
        messenger->connect(3000);
        while (messenger->getDiscoverer()->getDiscovered().size() < units.size()) {
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        times.push_back(Bench::microsecondsSince(start) / 1000);
    }
    state.counters["median_ms"] = Bench::median(times);
    state.counters["worst_ms"] = *std::max_element(times.begin(), times.end());
    state.counters["allowed_ms"] = allowedListing;
}
BENCHMARK(threeUnits)->Iterations(30)->Unit(benchmark::kMillisecond);

Discovered::Values announced(std::size_t number) {
    Discovered::Values values;
    const std::string digits = std::to_string(number);
    values.uid = std::string(64 - digits.size(), '0') + digits;
    values.name = "Motion controller " + digits;
    values.address = "127.0." + std::to_string(number / 250) + "." + std::to_string(number % 250 + 1);
    values.serial = "SERIAL-" + digits;
    values.productVendor = "Orvex";
    values.productName = "KELM";
    values.productModel = "KELM-2";
    values.port = 12740;
    values.encrypted = true;
    return values;
}

/// µs to take in one announcement when `units` announce themselves, first and again.
double costOfOne(std::size_t units) {
    Discoverer discoverer;
    constexpr int rounds = 10;
    std::vector<Discovered::Values> values;
    for (std::size_t number = 0; number < units; ++number) {
        values.push_back(announced(number));
    }
    const auto start = Bench::Clock::now();
    for (int round = 0; round < rounds; ++round) {
        for (const auto& value : values) {
            discoverer.announce(value, std::chrono::seconds(5));
        }
    }
    return Bench::microsecondsSince(start) / (rounds * static_cast<double>(units));
}

double bytesOfOne(std::size_t units) {
    const auto before = mallinfo2().uordblks;
    Discoverer discoverer;
    for (std::size_t number = 0; number < units; ++number) {
        discoverer.announce(announced(number), std::chrono::seconds(5));
    }
    return static_cast<double>(mallinfo2().uordblks - before) / static_cast<double>(units);
}

void manyUnits(benchmark::State& state) {
    std::vector<double> few;
    std::vector<double> many;
    for (auto _ : state) {
        few.push_back(costOfOne(100));
        many.push_back(costOfOne(1000));
    }
    state.counters["us_of_100"] = Bench::median(few);
    state.counters["us_of_1000"] = Bench::median(many);
    state.counters["growth"] = Bench::median(many) / Bench::median(few);
    state.counters["allowed_growth"] = allowedGrowth;
    state.counters["bytes_each"] = bytesOfOne(1000);
    state.counters["allowed_bytes"] = allowedBytes;
}
BENCHMARK(manyUnits)->Iterations(50)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
