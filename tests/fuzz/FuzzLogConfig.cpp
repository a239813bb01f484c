#include "app/ApplicationException.h"
#include "app/LogConfigParser.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Any text is either refused with the program's own exception or gives a configuration within its bounds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto config = orvex::LogConfigParser::parse({reinterpret_cast<const char*>(data), size});
        const bool bounded = config.queueSize >= 1 && config.queueSize <= (std::size_t{1} << 18) &&
                             config.threadCount >= 1 && config.threadCount <= 64;
        if (!bounded) {
            std::abort();
        }
        for (const auto& sink : config.sinks) {
            if (sink.hour < 0 || sink.hour > 23 || sink.fileSizeMb == 0 || sink.fileCount == 0) {
                std::abort();
            }
        }
        for (const auto& logger : config.loggers) {
            if (logger.name.empty()) {
                std::abort();
            }
        }
    } catch (const orvex::ApplicationException&) {
        return 0;
    }
    return 0;
}
