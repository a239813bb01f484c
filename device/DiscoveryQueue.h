#pragma once

#include <orvex/Messaging/Discoverer.h>

#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvex {

/// What discovery has announced since the GUI thread last looked: the newest announcement of each uid, in the
/// order in which the uids were first heard. Filled on the discovery thread, emptied on the GUI thread.
/// Bounded, however long nobody empties it.
class DiscoveryQueue : public Messaging::IDiscovererObserver {
public:
    void handleDiscovered(std::shared_ptr<Messaging::Discovered> discovered) override;

    std::vector<std::shared_ptr<Messaging::Discovered>> take();

private:
    std::mutex m_mutex;
    std::vector<std::shared_ptr<Messaging::Discovered>> m_queue;
    std::unordered_map<std::string, std::size_t> m_positions; ///< by uid
};

} // namespace orvex
