#include "UnitOptions.h"

#include "simulator/UnitState.h"

#include <boost/asio/ip/address.hpp>

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace Simulator {

namespace {

bool isSerial(const std::string& serial) {
    return serial.size() <= maximumSerial && serial.front() != '.' &&
           std::all_of(serial.begin(), serial.end(), [](unsigned char character) {
               return character < 0x80 && (std::isalnum(character) != 0 || character == '.' ||
                                           character == '-' || character == '_');
           });
}

std::string madeUpSerial(const Product& product, std::size_t number) {
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 4 ? 4 - digits.size() : 0, '0');
    return std::string(product.serialPrefix) + '-' + digits;
}

void require(bool condition, const std::string& message) {
    if (!condition)
        throw std::invalid_argument(message);
}

} // namespace

const std::vector<Product>& products() {
    static const std::vector<Product> all{
        {"kelm", "KELM", "KELM-4", "K"},
        {"hub", "Quivera Hub", "QH-200", "H"},
        {"ruvello", "Ruvello", "RV-1", "R"},
    };
    return all;
}

const Product* findProduct(std::string_view key) {
    const auto found = std::find_if(products().begin(), products().end(),
                                    [key](const Product& product) { return product.key == key; });
    return found == products().end() ? nullptr : &*found;
}

UnitOptions completed(UnitOptions options) {
    const Product* const product = findProduct(options.product);
    require(product != nullptr, "product: \"" + options.product + "\" is not one of kelm, hub, ruvello");
    if (options.serial.empty())
        options.serial = madeUpSerial(*product, options.number);
    require(isSerial(options.serial),
            "serial: \"" + options.serial + "\" has other characters than letters, digits, '.', '-' and '_'");
    if (options.name.empty())
        options.name = std::string(product->name) + ' ' + options.serial;
    const std::string complaint = complaintAboutName(options.name);
    require(complaint.empty(), "name: " + complaint);
    boost::system::error_code error;
    boost::asio::ip::make_address(options.address, error);
    require(!error, "address: \"" + options.address + "\" is not an IP address");
    require(options.seats <= maximumSeats, "seats: at most " + std::to_string(maximumSeats));
    require(options.media <= maximumMedia, "media: at most " + std::to_string(maximumMedia));
    initialState(options); // throws for settings that cannot be
    return options;
}

} // namespace Simulator
