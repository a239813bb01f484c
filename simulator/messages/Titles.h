#pragma once

#include <cstddef>
#include <string>

namespace Simulator {

/// The title of the list under this number: the same number always gives the same title, and no two numbers
/// the same one.
std::string titleOf(std::size_t number);

/// How long it plays, in seconds.
int playingTimeOf(std::size_t number);

} // namespace Simulator
