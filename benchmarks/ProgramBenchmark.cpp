// The program as a whole, beside an empty window. Needs a display (for example `xvfb-run bench_program`).
#include "benchmarks/Figures.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <stdexcept>

namespace {

constexpr double allowedStart = 1.3;     // to the empty window's
constexpr double allowedIdlePercent = 2; // of one core
constexpr double allowedMegabytes = 120; // resident, without OpenGL
constexpr int starts = 31;
constexpr int restBetweenStarts = 100; // ms
constexpr int settlingTime = 8000;     // ms: the splash is gone, the units are listed
constexpr int idleTime = 20000;        // ms

/// A program started with the environment of the measurement; ended with this object.
class Running {
public:
    Running(const char* program, const QStringList& arguments, const QString& dataFolder) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("VELTO_DISCOVERY_INTERFACES", "lo");
        environment.insert("XDG_DATA_HOME", dataFolder);
        environment.insert("QT_QUICK_BACKEND", "software");
        environment.insert("QT_LOGGING_RULES", "qt.scenegraph.time.renderloop.debug=true");
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QString::fromLocal8Bit(program), arguments);
        if (!m_process.waitForStarted()) {
            throw std::runtime_error(std::string("cannot start ") + program);
        }
    }

    ~Running() {
        m_process.terminate();
        if (!m_process.waitForFinished(5000)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    void awaitOutput(const char* text) {
        while (!m_output.contains(text)) {
            if (!m_process.waitForReadyRead(20000)) {
                throw std::runtime_error("the program did not say: " + std::string(text) + "; it said:\n" +
                                         m_output.toStdString());
            }
            m_output += m_process.readAll();
        }
    }

    qint64 id() const { return m_process.processId(); }

private:
    QProcess m_process;
    QByteArray m_output;
};

/// ms from the start of the process to its first frame, as the scene graph's own logging tells it.
double startTime(const char* program, const QString& dataFolder) {
    // The display has the window of the one before to clean up, the more so the more suddenly that one ended.
    QThread::msleep(restBetweenStarts);
    const auto start = Bench::Clock::now();
    Running running(program, {}, dataFolder);
    running.awaitOutput("qt.scenegraph.time.renderloop");
    return Bench::microsecondsSince(start) / 1000;
}

void startToFirstFrame(benchmark::State& state) {
    const QTemporaryDir dataFolder;
    std::vector<double> program;
    std::vector<double> empty;
    for (auto _ : state) {
        // The first of each fills the system's caches.
        startTime(PROGRAM, dataFolder.path());
        startTime(EMPTY_WINDOW, dataFolder.path());
        for (int i = 0; i < starts; ++i) {
            program.push_back(startTime(PROGRAM, dataFolder.path()));
            empty.push_back(startTime(EMPTY_WINDOW, dataFolder.path()));
        }
    }
    state.counters["program_ms"] = Bench::median(program);
    state.counters["empty_ms"] = Bench::median(empty);
    state.counters["ratio"] = Bench::median(program) / Bench::median(empty);
    state.counters["allowed"] = allowedStart;
}
BENCHMARK(startToFirstFrame)->Iterations(1)->Unit(benchmark::kMillisecond);

QList<QByteArray> fieldsOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + path.toStdString());
    }
    return file.readAll().simplified().split(' ');
}

/// Seconds of processor time of a process so far, user and system.
double processorTime(qint64 process) {
    const auto fields = fieldsOf(QStringLiteral("/proc/%1/stat").arg(process));
    constexpr int userTicks = 13;
    return (fields.at(userTicks).toDouble() + fields.at(userTicks + 1).toDouble()) /
           static_cast<double>(sysconf(_SC_CLK_TCK));
}

double residentMegabytes(qint64 process) {
    const auto fields = fieldsOf(QStringLiteral("/proc/%1/statm").arg(process));
    return fields.at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

/// With the list shown and three units polled.
void idle(benchmark::State& state) {
    const QTemporaryDir dataFolder;
    double percent = 0;
    double megabytes = 0;
    for (auto _ : state) {
        Running simulator(SIMULATOR, {"--scenario", SCENARIO}, dataFolder.path());
        simulator.awaitOutput("all units ready");
        const Running program(PROGRAM, {}, dataFolder.path());
        QThread::msleep(settlingTime);
        const double before = processorTime(program.id());
        const auto start = Bench::Clock::now();
        QThread::msleep(idleTime);
        percent = (processorTime(program.id()) - before) / (Bench::microsecondsSince(start) / 1e6) * 100;
        megabytes = residentMegabytes(program.id());
    }
    state.counters["percent_of_a_core"] = percent;
    state.counters["allowed_percent"] = allowedIdlePercent;
    state.counters["resident_MB"] = megabytes;
    state.counters["allowed_MB"] = allowedMegabytes;
}
BENCHMARK(idle)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
