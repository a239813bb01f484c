#pragma once

#include "messaging/TimeSource.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimerEvent>

#include <algorithm>
#include <map>

namespace orvex::Test {

/// Time that stands still until the test turns it. One thread only.
class TurnedTime : public TimeSource {
public:
    using Span = std::chrono::milliseconds;

    TimePoint now() const override { return m_now; }

    int startTimer(QObject& owner, int milliseconds, Qt::TimerType) override {
        m_timers[++m_lastId] = {&owner, Span(milliseconds), m_now + Span(milliseconds)};
        return m_lastId;
    }

    void stopTimer(QObject&, int id) override { m_timers.erase(id); }

    int pending(const QObject& owner) const {
        return static_cast<int>(std::count_if(m_timers.begin(), m_timers.end(), [&](const auto& timer) {
            return timer.second.owner == &owner;
        }));
    }

    /// Until the next timer of anybody fires; none pending: a day.
    Span untilNext() const {
        Span next = std::chrono::hours(24);
        for (const auto& [id, timer] : m_timers) {
            next = std::min(next, std::chrono::duration_cast<Span>(timer.due - m_now));
        }
        return next;
    }

    /// Lets time pass; what falls due meanwhile fires in its order.
    void pass(Span span) {
        const TimePoint end = m_now + span;
        while (m_now + untilNext() <= end) {
            fireNext();
        }
        m_now = end;
    }

    /// The machine was asleep: the time is later, nothing has fired yet.
    void jump(Span span) { m_now += span; }

private:
    struct Timer {
        QObject* owner = nullptr;
        Span interval{};
        TimePoint due;
    };

    void fireNext() {
        const auto next =
            std::min_element(m_timers.begin(), m_timers.end(), [](const auto& one, const auto& other) {
                return one.second.due < other.second.due;
            });
        m_now = std::max(m_now, next->second.due);
        next->second.due = m_now + next->second.interval;
        QTimerEvent event(next->first);
        QCoreApplication::sendEvent(next->second.owner, &event);
    }

    TimePoint m_now = TimePoint() + std::chrono::hours(1);
    std::map<int, Timer> m_timers;
    int m_lastId = 0;
};

} // namespace orvex::Test
