#pragma once

#include "simulator/UnitState.h"

#include <string>
#include <string_view>

namespace Simulator {

/// Changes the state as a JSON object says: sections by the names of docs/protocol.md, of which only the
/// members that are there change. Throws std::invalid_argument that names the member, beginning with `place`,
/// for what is no such object; the state is then unchanged.
void applySettings(UnitState& state, std::string_view json, const std::string& place);

/// The same while the unit runs: every client is told of what changed.
void applyAndTell(UnitState& state, std::string_view json, const std::string& place);

} // namespace Simulator
