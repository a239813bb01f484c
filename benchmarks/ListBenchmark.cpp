// What large lists cost on their way from a unit's bytes to the rows of a page.
#include "benchmarks/Figures.h"
#include "device/DeviceInfo.h"
#include "device/DeviceInfoManager.h"
#include "messaging/Communicator.h"
#include "messaging/handlers/GetMediaListNotificationHandler.h"
#include "models/DetailedStatusModel.h"
#include "models/MediaListModel.h"
#include "models/MediaListProxy.h"

#include <Velto/Messaging/BodyJSONParser.h>
#include <Velto/Messaging/Messenger.h>

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <numeric>
#include <string>

namespace {

using namespace orvex;

constexpr int titles = 100000;
constexpr int rounds = 7;

double millisecondsSince(Bench::Clock::time_point start) {
    return Bench::microsecondsSince(start) / 1000;
}

template <class Work>
double medianTime(Work work) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        const auto start = Bench::Clock::now();
        work();
        times.push_back(millisecondsSince(start));
    }
    return Bench::median(times);
}

std::string mediaListBody() {
    std::string body = R"({"mediaList":{"media":[)";
    for (int number = 0; number < titles; ++number) {
        char entry[400];
        std::snprintf(entry, sizeof entry,
                      R"(%s{"title":"The %s Harbour %d","cut":"Theatrical","language":"English",)"
                      R"("releaseDate":"%04d-%02d-11","imdbRef":"tt%07d","duration":"01:%02d:%02d",)"
                      R"("trackReleaseDate":"2024-02-%02d"})",
                      number == 0 ? "" : ",", number % 2 == 0 ? "silent" : "Burning", number * 7919 % titles,
                      1950 + number % 70, 1 + number % 12, number, number % 60, number / 7 % 60,
                      1 + number % 28);
        body += entry;
    }
    return body + "]}}";
}

std::shared_ptr<const Velto::Messaging::IResponse> mediaListAnswer() {
    using namespace Velto::Messaging;
    const std::string body = mediaListBody();
    auto buffer = std::make_shared<Velto::ManagedBuffer>();
    buffer->GetBuffer().AppendDataPtr(body.data(), body.size());
    return std::make_shared<IResponse>("GetMediaListNotification", 1, "", std::move(buffer),
                                       IMessage::GenericMessageType::Response, IResponse::StatusType::Ok);
}

QSharedPointer<MediaList> read(const std::shared_ptr<const Velto::Messaging::IResponse>& answer) {
    Velto::Messaging::GetMediaListNotificationHandler handler;
    QSharedPointer<MediaList> list;
    QObject::connect(&handler, &Velto::Messaging::GetMediaListNotificationHandler::mediaListChanged,
                     [&list](const QSharedPointer<MediaList>& received) { list = received; });
    handler.handleResponse(answer);
    return list;
}

/// Bytes of memory that this process holds at most, or has held since `restartPeak`.
std::size_t peakMemory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmHWM:") {
    }
    std::size_t kilobytes = 0;
    status >> kilobytes;
    return kilobytes * 1024;
}

void restartPeak() {
    std::ofstream("/proc/self/clear_refs") << 5;
}

/// From the bytes of the answer to the record, beside a parse into RapidJSON's own tree.
void mediaListIsRead(benchmark::State& state) {
    const auto answer = mediaListAnswer();
    const std::string_view body = answer->getBody();
    std::vector<double> ourTimes;
    std::vector<double> bareTimes;
    for (auto _ : state) {
        for (int round = 0; round < rounds; ++round) {
            auto start = Bench::Clock::now();
            rapidjson::Document document;
            benchmark::DoNotOptimize(document.Parse(body.data(), body.size()).IsObject());
            bareTimes.push_back(millisecondsSince(start));
            start = Bench::Clock::now();
            const auto list = read(answer);
            ourTimes.push_back(millisecondsSince(start));
        }
    }
    const double ours = Bench::median(ourTimes);
    const double bare = Bench::median(bareTimes);
    state.counters["ms"] = ours;
    state.counters["bare_ms"] = bare;
    state.counters["ratio"] = ours / bare;
    state.counters["allowed"] = 1.6;
}
BENCHMARK(mediaListIsRead)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

/// The most memory that reading takes on top of the body, in bodies.
void mediaListMemory(benchmark::State& state) {
    const auto answer = mediaListAnswer();
    for (auto _ : state) {
        restartPeak();
        const std::size_t before = peakMemory();
        const auto list = read(answer);
        const auto taken = static_cast<double>(peakMemory() - before);
        state.counters["body_MB"] = static_cast<double>(answer->getBody().size()) / 1e6;
        state.counters["ratio"] = 1 + taken / static_cast<double>(answer->getBody().size());
        state.counters["allowed"] = 4;
    }
}
BENCHMARK(mediaListMemory)->Iterations(1)->Unit(benchmark::kMillisecond);

/// A manager that has one selected unit and talks to nobody.
struct SelectedUnit {
    SelectedUnit() {
        using namespace Velto::Messaging;
        const auto messenger =
            std::make_shared<Messenger>(std::vector<std::shared_ptr<Messenger::DiscoveryStrategyInfo>>{},
                                        "KELM", ITransport::TransportType::WebSocket);
        communicator->setMessenger(messenger);
        manager->setCommunicator(communicator);
        Messaging::Discovered::Values values;
        values.uid = "1";
        values.name = "Sofa";
        values.address = "127.0.0.1";
        messenger->getDiscoverer()->announce(values, std::chrono::hours(1));
        while (manager->deviceCount() == 0) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        manager->goIdle();
        manager->selectDevice(0);
        unit = manager->selectedDevice();
    }
    ~SelectedUnit() { communicator->releaseMessenger(); }

    void answer(const std::function<void(DeviceInfo&)>& change) const {
        unit->clearChangedFields();
        change(*unit);
        emit manager->selectedDeviceUpdated();
    }

    std::shared_ptr<Communicator> communicator = std::make_shared<Communicator>();
    std::shared_ptr<DeviceInfoManager> manager = std::make_shared<DeviceInfoManager>();
    std::shared_ptr<DeviceInfo> unit;
};

/// The rows of a list that is new, and of one that differs in one title, beside the parse of its bytes.
void mediaListIsShown(benchmark::State& state) {
    const auto answer = mediaListAnswer();
    SelectedUnit selected;
    MediaListModel model;
    model.setDeviceInfoManager(selected.manager);
    const auto list = read(answer);
    auto changed = QSharedPointer<MediaList>::create(*list);
    changed->media[titles / 2].title = QStringLiteral("Another");
    double parse = 0;
    double first = 0;
    double again = 0;
    for (auto _ : state) {
        parse = medianTime([&] { benchmark::DoNotOptimize(read(answer)); });
        std::vector<double> firstTimes;
        std::vector<double> againTimes;
        for (int round = 0; round < rounds; ++round) {
            selected.answer([](DeviceInfo& unit) { unit.setMediaList({}); });
            auto start = Bench::Clock::now();
            selected.answer([&](DeviceInfo& unit) { unit.setMediaList(list); });
            firstTimes.push_back(millisecondsSince(start));
            start = Bench::Clock::now();
            selected.answer([&](DeviceInfo& unit) { unit.setMediaList(changed); });
            againTimes.push_back(millisecondsSince(start));
        }
        first = Bench::median(firstTimes);
        again = Bench::median(againTimes);
    }
    state.counters["first_ms"] = first;
    state.counters["again_ms"] = again;
    state.counters["parse_ms"] = parse;
    state.counters["ratio"] = std::max(first, again) / parse;
    state.counters["allowed"] = 0.3;
}
BENCHMARK(mediaListIsShown)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

/// One pass of the sort beside a stable sort of the same strings, and one key stroke in the search box.
void mediaListIsSortedAndFiltered(benchmark::State& state) {
    SelectedUnit selected;
    MediaListModel model;
    model.setDeviceInfoManager(selected.manager);
    const auto list = read(mediaListAnswer());
    selected.answer([&](DeviceInfo& unit) { unit.setMediaList(list); });
    MediaListProxy proxy;
    proxy.setSourceModel(&model);
    double sorted = 0;
    double bare = 0;
    double slowestKey = 0;
    for (auto _ : state) {
        std::vector<double> bareTimes;
        std::vector<double> sortTimes;
        for (int round = 0; round < rounds; ++round) {
            std::vector<QString> strings;
            for (const MediaEntry& entry : list->media) {
                strings.push_back(entry.title);
            }
            auto start = Bench::Clock::now();
            std::stable_sort(strings.begin(), strings.end(), [](const QString& one, const QString& other) {
                return one.compare(other, Qt::CaseInsensitive) < 0;
            });
            bareTimes.push_back(millisecondsSince(start));
            start = Bench::Clock::now();
            proxy.setSortPasses({{MediaListModel::TitleRole, Qt::AscendingOrder}});
            sortTimes.push_back(millisecondsSince(start));
        }
        bare = Bench::median(bareTimes);
        sorted = Bench::median(sortTimes);
        for (const char* filter : {"s", "si", "silent", "silent harbour 1", "", "burning", "12", ""}) {
            const auto start = Bench::Clock::now();
            proxy.setFilter(MediaListModel::TitleRole, QString::fromLatin1(filter));
            slowestKey = std::max(slowestKey, millisecondsSince(start));
        }
    }
    state.counters["sort_ms"] = sorted;
    state.counters["bare_ms"] = bare;
    state.counters["ratio"] = sorted / bare;
    state.counters["allowed"] = 2.5;
    state.counters["key_ms"] = slowestKey;
    state.counters["key_allowed"] = 100;
}
BENCHMARK(mediaListIsSortedAndFiltered)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

std::shared_ptr<ModuleInfo> module(int number, const QString& value) {
    auto made = std::make_shared<ModuleInfo>();
    made->name = QStringLiteral("Module %1").arg(number);
    for (int field = 0; field < 9; ++field) {
        StatusField reading;
        reading.category = 1;
        reading.name = QStringLiteral("Reading %1").arg(field);
        reading.value = value;
        reading.unit = QStringLiteral("mm");
        made->fields.push_back(reading);
    }
    return made;
}

QSharedPointer<DetailedStatusInfo> statusTree(const QString& lastValue) {
    auto info = QSharedPointer<DetailedStatusInfo>::create();
    for (int number = 0; number < 1000; ++number) {
        info->modules.push_back(module(number, number == 999 ? lastValue : QStringLiteral("1")));
    }
    info->modules.back()->fields.resize(1);
    return info;
}

/// About 10,000 rows of which one changes, beside flattening the tree alone.
void detailedStatusChanges(benchmark::State& state) {
    SelectedUnit selected;
    DetailedStatusModel model;
    model.setDeviceInfoManager(selected.manager);
    model.setFilter(static_cast<unsigned>(DetailedStatusFilter::FullStatus));
    int changes = 0;
    QObject::connect(&model, &QAbstractItemModel::dataChanged, [&changes] { ++changes; });
    const QSharedPointer<DetailedStatusInfo> trees[] = {statusTree("1"), statusTree("2")};
    selected.answer([&](DeviceInfo& unit) { unit.setDetailedStatusInfo(trees[0]); });
    double update = 0;
    double flattening = 0;
    int round = 0;
    for (auto _ : state) {
        flattening = medianTime(
            [&] { benchmark::DoNotOptimize(flatten(*trees[0], DetailedStatusFilter::FullStatus)); });
        changes = 0;
        update = medianTime([&] {
            selected.answer([&](DeviceInfo& unit) { unit.setDetailedStatusInfo(trees[++round % 2]); });
        });
    }
    state.counters["rows"] = model.rowCount();
    state.counters["signals_per_change"] = static_cast<double>(changes) / rounds;
    state.counters["ms"] = update;
    state.counters["flatten_ms"] = flattening;
    state.counters["ratio"] = update / flattening;
    state.counters["allowed"] = 2;
}
BENCHMARK(detailedStatusChanges)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
