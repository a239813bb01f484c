#include "messaging/records/DetailedStatusInfo.h"

#include <tuple>

namespace orvex {

bool StatusField::operator==(const StatusField& other) const {
    const auto members = [](const StatusField& f) {
        return std::tie(f.id, f.name, f.value, f.unit, f.description, f.type, f.category);
    };
    return members(*this) == members(other);
}

// Recursion is bounded: a body's nesting is.
bool ModuleInfo::operator==(const ModuleInfo& other) const { // NOLINT(misc-no-recursion)
    return name == other.name && properties == other.properties && fields == other.fields &&
           contentEquals(subModules, other.subModules);
}

} // namespace orvex
