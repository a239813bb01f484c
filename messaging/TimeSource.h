#pragma once

#include <Qt>

#include <chrono>

class QObject;

namespace orvex {

/// Where the core takes the time and its timers from: the machine's own, or one that somebody else turns.
/// Hours of polling pass in no time that way, and an interval can be told to the millisecond.
///
/// Timers belong to the thread of their owner, as Qt's do.
class TimeSource {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    TimeSource() = default;
    virtual ~TimeSource() = default;
    TimeSource(const TimeSource&) = delete;
    TimeSource& operator=(const TimeSource&) = delete;

    virtual TimePoint now() const = 0;

    /// Sends `owner` timer events with the returned id (never 0), every `milliseconds`, until it is stopped.
    virtual int startTimer(QObject& owner, int milliseconds, Qt::TimerType type) = 0;
    virtual void stopTimer(QObject& owner, int id) = 0;

    /// The machine's own.
    static TimeSource& system();
};

} // namespace orvex
