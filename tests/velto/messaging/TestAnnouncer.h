#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Velto::Test {

/// A unit's side of discovery, on the loopback interface and a thread of its own: hears probes by multicast
/// and directly, and answers each with datagrams of the test's choice. Several may share a port.
class TestAnnouncer {
public:
    explicit TestAnnouncer(std::uint16_t port = 0);
    ~TestAnnouncer();
    TestAnnouncer(const TestAnnouncer&) = delete;
    TestAnnouncer& operator=(const TestAnnouncer&) = delete;

    std::uint16_t port() const;
    void setAnswers(std::vector<std::string> datagrams);
    int probesHeard() const;
    std::string lastProbe() const;

private:
    class Listener;
    std::unique_ptr<Listener> m_listener;
};

} // namespace Velto::Test
