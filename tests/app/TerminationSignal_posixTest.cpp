#include "app/TerminationSignal.h"

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

namespace {

/// Runs the event loop until it is left; 1 when it had to be ended by the watch.
int runEventLoop() {
    QTimer watch;
    watch.setSingleShot(true);
    QObject::connect(&watch, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    watch.start(20000);
    return QCoreApplication::exec();
}

TEST(TerminationSignal, LeavesTheEventLoopWhenItComesDuringOrBeforeIt) {
    const orvex::TerminationSignal bridge;
    for (const int number : {SIGTERM, SIGINT}) {
        QTimer::singleShot(0, qApp, [number] { std::raise(number); });
        EXPECT_EQ(runEventLoop(), 0);
    }
    std::raise(SIGTERM);
    EXPECT_EQ(runEventLoop(), 0);
}

TEST(TerminationSignal, GivesTheSignalBackToWhoeverHandledItBefore) {
    const auto earlier = std::signal(SIGTERM, SIG_IGN);
    { const orvex::TerminationSignal bridge; }
    EXPECT_EQ(std::signal(SIGTERM, earlier), SIG_IGN);
}

} // namespace
