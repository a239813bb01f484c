#pragma once

#include <cstdint>
#include <string>

namespace orvex::Messaging {

/// What one unit announced of itself, and from where. Immutable.
class Discovered {
public:
    struct Values {
        std::string name;
        std::string
            address; ///< where it was heard from; IPv4 or IPv6 text, or the host name typed by the user
        std::string serial;
        std::string uid; ///< lower-case hex SHA-256 of the unit's public key
        std::string productVendor;
        std::string productName;
        std::string productModel;
        bool localAddress = false; ///< the address is one of this machine's own
        std::uint16_t port = 0;
        bool encrypted = false;
    };

    explicit Discovered(Values values)
        : m_values(std::move(values)) {}

    const std::string& getName() const { return m_values.name; }
    const std::string& getAddress() const { return m_values.address; }
    const std::string& getSerial() const { return m_values.serial; }
    const std::string& getUId() const { return m_values.uid; }
    const std::string& getProductVendor() const { return m_values.productVendor; }
    const std::string& getProductName() const { return m_values.productName; }
    const std::string& getProductModel() const { return m_values.productModel; }
    bool isLocalAddress() const { return m_values.localAddress; }
    std::uint16_t getPort() const { return m_values.port; }
    bool isEncrypted() const { return m_values.encrypted; }

private:
    Values m_values;
};

} // namespace orvex::Messaging
