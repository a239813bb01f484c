#include "app/Console.h"

namespace orvex {

void attachToParentConsole() {}

} // namespace orvex
