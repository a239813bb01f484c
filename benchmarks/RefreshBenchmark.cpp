// What it costs to read everything that the page of a unit shows.
#include "benchmarks/BareClient.h"
#include "benchmarks/Figures.h"
#include "device/DeviceField.h"
#include "device/DeviceInfo.h"
#include "messaging/Communicator.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"
#include "velto/wire/Envelope.h"

#include <Velto/ComponentConfigurator.h>
#include <Velto/Messaging/Messenger.h>
#include <orvex/Messaging/Discovered.h>

#include <QCoreApplication>
#include <QEventLoop>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <stdexcept>

namespace {

using namespace orvex;

constexpr int refreshes = 300;

/// A unit, a communicator connected to it over TLS, and the bare client beside it.
struct Line {
    Line() {
        unit.start();
        VeltoExportZCommComponent();
        VeltoExportQAutoDiscoveryComponent();
        components.Init(true);
        messenger->connect(3000);
        communicator->setMessenger(messenger);
        Messaging::Discovered::Values values;
        values.uid = unit.uid();
        values.address = "127.0.0.1";
        values.port = unit.port();
        values.encrypted = true;
        device = std::make_shared<DeviceInfo>(Messaging::Discovered(values));
        bareClient = std::make_unique<Bench::BareClient>("127.0.0.1", unit.port());
        for (const char* type :
             {"GetUpgrade", "GetUpdate", "GetNetworkState", "GetAdaptiveGamingSelectedProfile",
              "GetSoftwareHealthStatus", "GetCaptureDevices", "GetAdaptiveAudioParameters",
              "GetAutomaticVolumeControl", "GetCaptureVolume", "GetExperienceModes", "GetMediaStatus",
              "GetMotionDelay", "GetRecognitionTolerance", "GetSeatStatus", "GetContentUpdateState"}) {
            frames.push_back(*Velto::Wire::encodeFrame({Velto::Wire::Kind::Request, type, 1, "1", 0}, {}));
        }
    }
    ~Line() { communicator->releaseMessenger(); }

    double refresh() {
        QEventLoop loop;
        bool succeeded = false;
        const auto connection =
            QObject::connect(communicator.get(), &Communicator::requestComplete, &loop, [&](bool success) {
                succeeded = success;
                loop.quit();
            });
        const auto start = Bench::Clock::now();
        communicator->startRequest(device, DeviceField::details, {}, 15000);
        loop.exec();
        const double taken = Bench::microsecondsSince(start);
        QObject::disconnect(connection);
        if (!succeeded) {
            throw std::runtime_error("the unit did not answer everything");
        }
        return taken;
    }

    double bareRefresh() {
        const auto start = Bench::Clock::now();
        bareClient->exchangeAll(frames);
        return Bench::microsecondsSince(start);
    }

    Simulator::SimulatorHost host{{false, 0}};
    Simulator::SimulatedUnit unit{host, {}};
    Velto::ComponentConfigurator components;
    std::shared_ptr<Velto::Messaging::Messenger> messenger = std::make_shared<Velto::Messaging::Messenger>(
        std::vector<std::shared_ptr<Velto::Messaging::Messenger::DiscoveryStrategyInfo>>{}, "KELM",
        Velto::Messaging::ITransport::TransportType::WebSocket);
    std::shared_ptr<Communicator> communicator = std::make_shared<Communicator>();
    std::shared_ptr<DeviceInfo> device;
    std::unique_ptr<Bench::BareClient> bareClient;
    std::vector<std::string> frames;
};

void detailsRefresh(benchmark::State& state) {
    Line line;
    line.refresh(); // connects
    std::vector<double> times;
    std::vector<double> bareTimes;
    for (auto _ : state) {
        while (times.size() < refreshes) {
            times.push_back(line.refresh());
            bareTimes.push_back(line.bareRefresh());
        }
    }
    state.counters["us"] = Bench::median(times);
    state.counters["bare_us"] = Bench::median(bareTimes);
    state.counters["ratio"] = Bench::median(times) / Bench::median(bareTimes);
    state.counters["allowed"] = 1.5;
}
BENCHMARK(detailsRefresh)->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);

/// Answers that repeat what is known: nothing changes, and no memory stays behind.
void repeatedAnswers(benchmark::State& state) {
    Line line;
    line.unit.changeState([](Simulator::UnitState& unit) { unit.playback.speed = 0; });
    const auto refreshAll = [&line] {
        int changes = 0;
        for (int round = 0; round < refreshes; ++round) {
            line.refresh();
            changes += static_cast<int>(line.device->changedFields().count());
        }
        return changes;
    };
    refreshAll();
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks;
        state.counters["changed_fields"] = refreshAll();
        state.counters["bytes_left_each"] =
            (static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before)) / refreshes;
    }
}
BENCHMARK(repeatedAnswers)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
