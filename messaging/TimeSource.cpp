#include "messaging/TimeSource.h"

#include <QObject>

namespace orvex {

namespace {

class SystemTime : public TimeSource {
public:
    TimePoint now() const override { return std::chrono::steady_clock::now(); }

    int startTimer(QObject& owner, int milliseconds, Qt::TimerType type) override {
        return owner.startTimer(milliseconds, type);
    }

    void stopTimer(QObject& owner, int id) override { owner.killTimer(id); }
};

} // namespace

TimeSource& TimeSource::system() {
    static SystemTime time;
    return time;
}

} // namespace orvex
