#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Bench {

/// The least that talks to a unit: Beast's own blocking calls, no checks, no queue, no second thread.
class BareClient {
public:
    /// Throws what Beast throws.
    BareClient(const std::string& address, std::uint16_t port);
    ~BareClient();

    /// Sends one frame and returns the size of the next one that comes.
    std::size_t exchange(const std::string& frame);

    /// Sends all of them, then waits for as many answers.
    void exchangeAll(const std::vector<std::string>& frames);

private:
    struct Connection;
    std::unique_ptr<Connection> m_connection;
};

} // namespace Bench
