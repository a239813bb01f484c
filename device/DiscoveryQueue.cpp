#include "device/DiscoveryQueue.h"

#include <utility>

namespace orvex {

void DiscoveryQueue::handleDiscovered(std::shared_ptr<Messaging::Discovered> discovered) {
    const std::lock_guard lock(m_mutex);
    const auto known = m_positions.find(discovered->getUId());
    if (known != m_positions.end()) {
        m_queue[known->second] = std::move(discovered);
        return;
    }
    // Strangers come and go in the discoverer; their ids must not pile up here. Who is refused is announced
    // again.
    if (m_queue.size() >= Messaging::Discoverer::maximumEntries) {
        return;
    }
    m_positions.emplace(discovered->getUId(), m_queue.size());
    m_queue.push_back(std::move(discovered));
}

std::vector<std::shared_ptr<Messaging::Discovered>> DiscoveryQueue::take() {
    const std::lock_guard lock(m_mutex);
    m_positions.clear();
    return std::exchange(m_queue, {});
}

} // namespace orvex
