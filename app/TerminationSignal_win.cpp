#include "app/TerminationSignal.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <windows.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace orvex {

namespace {

// Windows gives a program five seconds before it is called hanging.
constexpr std::chrono::milliseconds orderlyEndTimeout{4500};

constexpr const wchar_t* windowClass = L"QuiveraSessionEnd";

/// Makes the user interface's thread leave its event loop, and lets others wait until everything is torn
/// down.
class OrderlyEnd {
public:
    static void ask() { QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection); }

    /// Once this returns to the system, the process may be ended at any moment.
    void askAndWait() {
        ask();
        std::unique_lock lock(m_mutex);
        m_changed.wait_for(lock, orderlyEndTimeout, [this] { return m_over; });
    }

    /// Whether nothing is left to wait for.
    void setOver(bool over) {
        {
            const std::lock_guard lock(m_mutex);
            m_over = over;
        }
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_over = true;
};

// Reached from calls of the system's that take no argument of ours. Kept to the end of the process: a call
// may still be on its way when nobody waits for one any more.
OrderlyEnd& orderlyEnd() {
    static OrderlyEnd end;
    return end;
}

/// Runs on a thread of the system's own.
BOOL WINAPI handleConsoleEvent(DWORD event) {
    if (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT) {
        OrderlyEnd::ask();
    } else {
        orderlyEnd().askAndWait();
    }
    return TRUE;
}

/// Of the end of the session Windows tells windows, and ends the process when the last of them has returned.
LRESULT CALLBACK handleWindowMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ENDSESSION && wParam != FALSE) {
        orderlyEnd().askAndWait();
        return 0;
    }
    if (message == WM_CLOSE) {
        DestroyWindow(window);
        return 0;
    }
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

/// A hidden window on a thread of its own, so that it can hold the session's end up while the user
/// interface's thread tears everything down.
class SessionEndWindow {
public:
    SessionEndWindow()
        : m_thread([this] { run(); }) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_ready; });
    }

    ~SessionEndWindow() {
        if (m_window != nullptr) {
            PostMessageW(m_window, WM_CLOSE, 0, 0);
        }
        m_thread.join();
    }

    SessionEndWindow(const SessionEndWindow&) = delete;
    SessionEndWindow& operator=(const SessionEndWindow&) = delete;

private:
    void run() {
        const HINSTANCE instance = GetModuleHandleW(nullptr);
        WNDCLASSW description{};
        description.lpfnWndProc = &handleWindowMessage;
        description.hInstance = instance;
        description.lpszClassName = windowClass;
        RegisterClassW(&description);
        // Top-level, as only those are told.
        HWND window = CreateWindowExW(WS_EX_TOOLWINDOW, windowClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                      nullptr, instance, nullptr);
        {
            const std::lock_guard lock(m_mutex);
            m_window = window;
            m_ready = true;
        }
        m_changed.notify_all();
        MSG message{};
        while (window != nullptr && GetMessageW(&message, nullptr, 0, 0) > 0) {
            DispatchMessageW(&message);
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_ready = false;
    HWND m_window = nullptr;
    std::thread m_thread; ///< last: it uses the others
};

} // namespace

class TerminationSignal::Bridge {
public:
    Bridge() {
        orderlyEnd().setOver(false);
        SetConsoleCtrlHandler(&handleConsoleEvent, TRUE);
    }
    ~Bridge() {
        SetConsoleCtrlHandler(&handleConsoleEvent, FALSE);
        orderlyEnd().setOver(true);
    }
    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;

private:
    const SessionEndWindow m_sessionEnd;
};

TerminationSignal::TerminationSignal()
    : m_bridge(std::make_unique<Bridge>()) {}

TerminationSignal::~TerminationSignal() = default;

} // namespace orvex
