#include "app/TerminationSignal.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <windows.h>

namespace orvex {

namespace {

/// Runs on a thread of the system's own.
BOOL WINAPI leaveEventLoop(DWORD event) {
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) {
        return FALSE;
    }
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    return TRUE;
}

} // namespace

class TerminationSignal::Bridge {
public:
    Bridge() { SetConsoleCtrlHandler(&leaveEventLoop, TRUE); }
    ~Bridge() { SetConsoleCtrlHandler(&leaveEventLoop, FALSE); }
    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;
};

TerminationSignal::TerminationSignal()
    : m_bridge(std::make_unique<Bridge>()) {}

TerminationSignal::~TerminationSignal() = default;

} // namespace orvex
