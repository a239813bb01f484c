#pragma once

#include <orvex/Messaging/Discovered.h>
#include <orvex/Observed.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvex::Messaging {

/// Told of every announcement of a unit, not only its first, on the discovery thread.
class IDiscovererObserver {
public:
    virtual ~IDiscovererObserver() = default;
    virtual void handleDiscovered(std::shared_ptr<Discovered> discovered) = 0;
};

/// The units that were heard lately, one entry per uid, in the order in which they were first heard.
/// Any thread. At most `maximumEntries`; further strangers are refused until there is room.
class Discoverer : public Observed<IDiscovererObserver> {
public:
    using Clock = std::chrono::steady_clock;

    static constexpr std::size_t maximumEntries = 4096;

    /// `now` is the clock that entries expire by.
    explicit Discoverer(std::function<Clock::time_point()> now = &Clock::now);

    std::vector<std::shared_ptr<Discovered>> getDiscovered() const;

    /// None when `index` is out of range.
    std::shared_ptr<Discovered> getDiscoveredAt(std::size_t index) const;

    /// Drops the entry with that uid, or else every entry of that name. An observer hears of it again with
    /// its next announcement.
    void removeDiscovered(const std::string& nameOrKey);

    /// Drops the entries whose lifetime is over.
    void removeExpiredItems();

    void clearDiscovered();

    /// Takes in one announcement that holds good for `lifetime`, then tells the observers. A second one of
    /// the same uid replaces the first. False when the list is full. A unit that is heard at two addresses
    /// keeps the one it has: what comes from the other is passed over in silence until the first has not been
    /// heard for two thirds of its lifetime.
    bool announce(Discovered::Values values, Clock::duration lifetime);

    bool holds(const std::string& uid) const;

    /// The uid announced for that address and port, the latest if several were; empty when none is.
    std::string expectedUid(const std::string& address, std::uint16_t port) const;

private:
    struct Entry {
        std::shared_ptr<Discovered> discovered;
        Clock::time_point expires;
        Clock::time_point movableFrom; ///< another address is not believed before
        std::uint64_t heard = 0;       ///< grows with each announcement
    };
    using Entries = std::list<Entry>;

    enum class Stored { Yes, PassedOver, Full };
    Stored store(std::shared_ptr<Discovered> discovered, Clock::duration lifetime);
    template <class Condition>
    void removeIf(Condition condition);

    std::function<Clock::time_point()> m_now;
    mutable std::mutex m_mutex;
    Entries m_entries;
    std::unordered_map<std::string, Entries::iterator> m_byUid;
    std::uint64_t m_announcements = 0;
};

} // namespace orvex::Messaging
