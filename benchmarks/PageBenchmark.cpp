// How soon a page is there after it was asked for, and whether a page at rest draws. The program's own window
// over a simulated unit, drawn by the software renderer. Needs a display (for example `xvfb-run
// bench_pages`).
#include "benchmarks/Figures.h"
#include "device/DeviceInfo.h"
#include "device/DeviceInfoManager.h"
#include "tests/e2e/ShownWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMetaObject>
#include <QQuickStyle>

#include <benchmark/benchmark.h>

#include <stdexcept>

namespace {

using namespace orvex;

constexpr double allowedPush = 50;   // ms
constexpr double allowedMedia = 100; // ms, with as many titles:
constexpr int titles = 100000;
constexpr int rounds = 15;
constexpr int waitTime = 30000; // ms
constexpr int restTime = 6000;  // ms: several polls

QSharedPointer<MediaList> manyTitles() {
    auto list = QSharedPointer<MediaList>::create();
    for (int number = 0; number < titles; ++number) {
        MediaEntry title;
        title.title = QStringLiteral("The Silent Harbour %1").arg(number * 7919 % titles);
        title.releaseDate = QStringLiteral("%1-03-11").arg(1950 + number % 70);
        title.duration = QStringLiteral("01:%1:20").arg(number % 60, 2, 10, QLatin1Char('0'));
        list->media.append(title);
    }
    return list;
}

/// The window with one unit around, which answers at once and in which nothing happens by itself.
class Program {
public:
    Program() {
        Simulator::UnitOptions options;
        options.product = "kelm";
        options.name = "Sofa";
        options.state = R"({"playback":{"speed":0}})";
        m_unit = std::make_unique<Simulator::SimulatedUnit>(m_host, options);
        Simulator::Faults faults;
        faults.answer = Simulator::AnswerFault::Drop;
        faults.types = {"GetMediaListNotification"};
        m_unit->setFaults(faults);
        m_unit->start();
        m_window.window()->resize(750, 900);
        const bool isShown = QTest::qWaitForWindowExposed(m_window.window());
        QTest::mouseClick(m_window.window(), Qt::LeftButton, {}, QPoint(5, 5));
        const bool isListed = QTest::qWaitFor([this] { return !m_window.rows().isEmpty(); }, waitTime);
        m_pages = pagesBelow(m_window.window()->contentItem());
        if (!isShown || !isListed || !m_pages) {
            throw std::runtime_error("the unit is not listed");
        }
        QObject::connect(m_window.window(), &QQuickWindow::frameSwapped, [this] { ++m_frames; });
    }

    void call(const char* step) { QMetaObject::invokeMethod(m_pages, step); }
    void openFirstDevice() { QMetaObject::invokeMethod(m_pages, "openDevice", Q_ARG(QVariant, 0)); }

    /// ms from the step to the end of the first frame after it.
    template <class Step>
    double timeToFrame(Step step) {
        const int before = m_frames;
        const auto start = Bench::Clock::now();
        step();
        while (m_frames == before) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return Bench::microsecondsSince(start) / 1000;
    }

    /// Lets everything that a step caused come to its end.
    void settle() {
        for (int frames = -1; frames != m_frames;) {
            frames = m_frames;
            QTest::qWait(150);
        }
    }

    int framesAtRest() {
        QTest::qWait(restTime);
        const int before = m_frames;
        QTest::qWait(restTime);
        return m_frames - before;
    }

    /// The unit answers everything from now on.
    void endFaults() { m_unit->setFaults({}); }

    std::shared_ptr<DeviceInfo> device() { return manager()->selectedDevice(); }
    DeviceInfoManager* manager() { return m_window.manager(); }

private:
    static QQuickItem* pagesBelow(QQuickItem* item) {
        for (QQuickItem* child : item->childItems()) {
            if (child->property("windowName") == QStringLiteral("WindowMain")) {
                return item;
            }
            if (QQuickItem* const found = pagesBelow(child)) {
                return found;
            }
        }
        return nullptr;
    }

    Simulator::SimulatorHost m_host;
    std::unique_ptr<Simulator::SimulatedUnit> m_unit;
    Test::ShownWindow m_window;
    QQuickItem* m_pages = nullptr;
    int m_frames = 0;
};

void push(benchmark::State& state, const char* show, bool manyMedia = false) {
    Program program;
    const bool isDevicePage = show == nullptr;
    if (!isDevicePage) {
        program.openFirstDevice();
        program.settle();
    }
    if (manyMedia) {
        program.device()->setMediaList(manyTitles());
        emit program.manager()->selectedDeviceUpdated();
    }
    std::vector<double> times;
    for (auto _ : state) {
        for (int round = 0; round < rounds; ++round) {
            if (round + 1 == rounds) {
                program.endFaults();
            }
            times.push_back(program.timeToFrame([&] {
                if (isDevicePage) {
                    program.openFirstDevice();
                } else {
                    program.call(show);
                }
            }));
            program.settle();
            if (round + 1 < rounds) {
                program.call(isDevicePage ? "showDeviceList" : "returnToDevice");
                program.settle();
            }
        }
        state.counters["frames_at_rest"] = program.framesAtRest();
    }
    state.counters["first_ms"] = times.front();
    state.counters["median_ms"] = Bench::median(times);
    state.counters["allowed_ms"] = manyMedia ? allowedMedia : allowedPush;
}
BENCHMARK_CAPTURE(push, device, nullptr)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(push, about, "showAbout")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(push, network, "showNetworkStatus")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(push, detailedStatus, "showDetailedStatus")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(push, mediaList, "showMediaList", true)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("VELTO_DISCOVERY_INTERFACES", "lo");
    const QApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
