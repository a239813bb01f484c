#include "core/Areas.h"

#include <orvex/Messaging/Discoverer.h>

#include <spdlog/logger.h>

#include <exception>
#include <iterator>
#include <utility>

namespace orvex::Messaging {

Discoverer::Discoverer(std::function<Clock::time_point()> now)
    : m_now(std::move(now)) {}

std::vector<std::shared_ptr<Discovered>> Discoverer::getDiscovered() const {
    const std::lock_guard lock(m_mutex);
    std::vector<std::shared_ptr<Discovered>> all;
    all.reserve(m_entries.size());
    for (const Entry& entry : m_entries)
        all.push_back(entry.discovered);
    return all;
}

std::shared_ptr<Discovered> Discoverer::getDiscoveredAt(std::size_t index) const {
    const std::lock_guard lock(m_mutex);
    if (index >= m_entries.size())
        return nullptr;
    return std::next(m_entries.begin(), static_cast<std::ptrdiff_t>(index))->discovered;
}

void Discoverer::removeDiscovered(const std::string& nameOrKey) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_byUid.find(nameOrKey);
    if (found == m_byUid.end()) {
        removeIf([&](const Entry& entry) { return entry.discovered->getName() == nameOrKey; });
        return;
    }
    m_entries.erase(found->second);
    m_byUid.erase(found);
}

void Discoverer::removeExpiredItems() {
    const auto now = m_now();
    const std::lock_guard lock(m_mutex);
    removeIf([now](const Entry& entry) { return entry.expires <= now; });
}

void Discoverer::clearDiscovered() {
    const std::lock_guard lock(m_mutex);
    m_byUid.clear();
    m_entries.clear();
}

bool Discoverer::announce(Discovered::Values values, Clock::duration lifetime) {
    const auto discovered = std::make_shared<Discovered>(std::move(values));
    const Stored stored = store(discovered, lifetime);
    if (stored != Stored::Yes)
        return stored == Stored::PassedOver;
    notifyObservers([&discovered](IDiscovererObserver& observer) {
        try {
            observer.handleDiscovered(discovered);
        } catch (const std::exception& e) {
            Velto::detail::areaLogger(Velto::detail::Area::QAutoDiscovery)
                ->error("An observer of discovery failed: {}", e.what());
        } catch (...) {
            Velto::detail::areaLogger(Velto::detail::Area::QAutoDiscovery)
                ->error("An observer of discovery failed");
        }
    });
    return true;
}

bool Discoverer::holds(const std::string& uid) const {
    const std::lock_guard lock(m_mutex);
    return m_byUid.count(uid) != 0;
}

std::string Discoverer::expectedUid(const std::string& address, std::uint16_t port) const {
    const std::lock_guard lock(m_mutex);
    const Entry* latest = nullptr;
    for (const Entry& entry : m_entries) {
        const Discovered& unit = *entry.discovered;
        const bool here = unit.getAddress() == address && unit.getPort() == port;
        if (here && (!latest || entry.heard > latest->heard))
            latest = &entry;
    }
    return latest ? latest->discovered->getUId() : std::string();
}

Discoverer::Stored Discoverer::store(std::shared_ptr<Discovered> discovered, Clock::duration lifetime) {
    const auto now = m_now();
    const std::lock_guard lock(m_mutex);
    Entry entry{std::move(discovered), now + lifetime, now + lifetime * 2 / 3, ++m_announcements};
    const auto known = m_byUid.find(entry.discovered->getUId());
    if (known != m_byUid.end()) {
        Entry& held = *known->second;
        // An address that changed with every announcement would break the connection as often.
        if (held.discovered->getAddress() != entry.discovered->getAddress() && now < held.movableFrom)
            return Stored::PassedOver;
        held = std::move(entry);
        return Stored::Yes;
    }
    if (m_entries.size() >= maximumEntries)
        return Stored::Full;
    m_entries.push_back(std::move(entry));
    m_byUid.emplace(m_entries.back().discovered->getUId(), std::prev(m_entries.end()));
    return Stored::Yes;
}

template <class Condition>
void Discoverer::removeIf(Condition condition) {
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
        if (!condition(*entry)) {
            ++entry;
            continue;
        }
        m_byUid.erase(entry->discovered->getUId());
        entry = m_entries.erase(entry);
    }
}

} // namespace orvex::Messaging
