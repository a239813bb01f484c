#include "app/CrashHandlerImpl.h"

#include <QApplication>
#include <QMessageBox>
#include <QMetaObject>
#include <QThread>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace Velto {

namespace {

// The user interface's thread may wait for the very thread that crashed, and would then never show the
// notice.
constexpr std::chrono::seconds patience{5};

void showNotice() {
    QMessageBox box;
    box.setWindowTitle(QCoreApplication::translate("CrashHandlerImpl", "Orvex"));
    box.setText(
        QCoreApplication::translate("CrashHandlerImpl", "An error has occured. The application must exit."));
    box.exec();
}

/// What the crashed thread and the user interface's thread tell each other.
class Handover {
public:
    /// On the user interface's thread.
    void show() {
        {
            const std::lock_guard lock(m_mutex);
            if (m_state == State::GivenUp) {
                return;
            }
            m_state = State::Shown;
        }
        m_changed.notify_all();
        showNotice();
        {
            const std::lock_guard lock(m_mutex);
            m_state = State::Closed;
        }
        m_changed.notify_all();
    }

    /// On the thread that crashed: returns when the notice is closed, or cannot be shown.
    void waitUntilClosed() {
        std::unique_lock lock(m_mutex);
        if (!m_changed.wait_for(lock, patience, [this] { return m_state != State::Asked; })) {
            m_state = State::GivenUp;
            return;
        }
        m_changed.wait(lock, [this] { return m_state == State::Closed; });
    }

private:
    enum class State { Asked, Shown, Closed, GivenUp };

    std::mutex m_mutex;
    std::condition_variable m_changed;
    State m_state = State::Asked;
};

} // namespace

void CrashHandlerImpl::handleCrash() {
    auto* const application = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!application || QCoreApplication::closingDown()) {
        return;
    }
    if (QThread::currentThread() == application->thread()) {
        showNotice();
        return;
    }
    const auto handover = std::make_shared<Handover>();
    QMetaObject::invokeMethod(
        application, [handover] { handover->show(); }, Qt::QueuedConnection);
    handover->waitUntilClosed();
}

} // namespace Velto
