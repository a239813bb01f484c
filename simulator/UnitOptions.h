#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// The models of the maker's range that are simulated.
struct Product {
    const char* key; ///< as options and scenarios call it
    const char* name;
    const char* model;
    const char* serialPrefix;
};

const std::vector<Product>& products();
/// None when no product is called so.
const Product* findProduct(std::string_view key);

/// How one unit is set up before it starts. The rest of its state is changed while it runs.
struct UnitOptions {
    std::string service = "KELM";
    std::string product = "kelm"; ///< key of a Product
    std::size_t number = 1;       ///< among the units of a process; part of a made-up serial number
    std::string name;             ///< empty: made from the product and the serial number
    std::string serial; ///< empty: the product's prefix and the number; letters, digits, '.', '-' and '_'
    std::string address = "127.0.0.1"; ///< where it listens and answers from
    std::uint16_t port = 0;            ///< 0: any free one
    bool encrypted = true;
    bool accessPoint = false; ///< not joined to a network: its own access point is up
    std::size_t seats = 2;
    std::size_t media = 24;
    std::string state;     ///< settings of its first state, as of StateSettings.h; empty: none
    std::string keyFolder; ///< empty: a new key each time; otherwise kept there, so that the uid stays
};

constexpr std::size_t maximumSeats = 64;
constexpr std::size_t maximumMedia = 1'000'000;
constexpr std::size_t maximumSerial = 64; ///< what a certificate's name holds

/// Fills in what was left empty. Throws std::invalid_argument, whose text begins with the option's name, for
/// an unknown product, a bad serial number, a name the unit itself would refuse, an address that is none,
/// too many seats or media entries, or settings that cannot be.
UnitOptions completed(UnitOptions options);

} // namespace Simulator
