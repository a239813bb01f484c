#include "app/TerminationSignal.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>

namespace orvex {

namespace {

constexpr std::array<int, 2> terminationSignals = {SIGTERM, SIGINT};

// What a signal handler may touch: the pipe's end for writing, -1 while there is none.
std::atomic<int> signalPipe{-1};

void noteSignal(int /*number*/) {
    const int savedError = errno;
    const char mark = 1;
    // A full pipe already says what there is to say.
    [[maybe_unused]] const ssize_t written = write(signalPipe, &mark, 1);
    errno = savedError;
}

} // namespace

/// A signal handler may do next to nothing: it writes to a pipe that the event loop watches. What arrives
/// before the loop runs stays in the pipe.
class TerminationSignal::Bridge {
public:
    Bridge() {
        if (pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            return;
        }
        m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, qApp, [pipe = m_pipe[0]] {
            std::array<char, 16> marks{};
            [[maybe_unused]] const ssize_t count = read(pipe, marks.data(), marks.size());
            QCoreApplication::quit();
        });
        signalPipe = m_pipe[1];
        struct sigaction action {};
        action.sa_handler = &noteSignal;
        action.sa_flags = SA_RESTART;
        sigemptyset(&action.sa_mask);
        for (std::size_t i = 0; i < terminationSignals.size(); ++i) {
            sigaction(terminationSignals[i], &action, &m_previous[i]);
        }
    }

    ~Bridge() {
        if (!m_notifier) {
            return;
        }
        for (std::size_t i = 0; i < terminationSignals.size(); ++i) {
            sigaction(terminationSignals[i], &m_previous[i], nullptr);
        }
        signalPipe = -1;
        m_notifier.reset();
        close(m_pipe[0]);
        close(m_pipe[1]);
    }

    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;

private:
    std::array<int, 2> m_pipe{-1, -1};
    std::array<struct sigaction, terminationSignals.size()> m_previous{};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

TerminationSignal::TerminationSignal()
    : m_bridge(std::make_unique<Bridge>()) {}

TerminationSignal::~TerminationSignal() = default;

} // namespace orvex
