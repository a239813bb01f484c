#pragma once

namespace orvex {

/// Makes the records' pointer types known to Qt under the names that queued signals look them up by. Once,
/// before the first handler is connected; more calls do no harm.
void registerRecordTypes();

} // namespace orvex
