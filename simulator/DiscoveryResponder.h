#pragma once

#include "velto/wire/Announcement.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Simulator {

class HostLoop;

/// A unit as discovery sees it.
class Announcer {
public:
    virtual ~Announcer() = default;
    virtual bool isAnnounced() const = 0;
    virtual Velto::Wire::Announcement announcement() const = 0;
    virtual const std::string& address() const = 0;
    virtual void announced() = 0;

protected:
    Announcer() = default;
    Announcer(const Announcer&) = default;
    Announcer& operator=(const Announcer&) = default;
};

struct DiscoveryCounters {
    std::uint64_t probes = 0;     ///< well-formed, of whatever service
    std::uint64_t duplicates = 0; ///< of these: heard before, or beyond what is kept in mind
    std::uint64_t dropped = 0;    ///< malformed, too large, or from an interface that is not allowed
    std::uint64_t answers = 0;
};

/// Hears probes for every unit of a process and lets each answer from its own address. Belongs to the host's
/// thread. VELTO_DISCOVERY_INTERFACES (names or addresses, separated by commas) restricts the interfaces it
/// listens on and answers to.
class DiscoveryResponder {
public:
    DiscoveryResponder(HostLoop& loop, std::uint16_t port);
    ~DiscoveryResponder();
    DiscoveryResponder(const DiscoveryResponder&) = delete;
    DiscoveryResponder& operator=(const DiscoveryResponder&) = delete;

    /// Why probes are not heard; empty when they are.
    const std::string& problem() const;
    void add(const std::shared_ptr<Announcer>& unit);
    DiscoveryCounters counters() const;

private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};

} // namespace Simulator
