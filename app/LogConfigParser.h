#pragma once

#include "app/LogConfig.h"

#include <filesystem>
#include <string_view>

namespace orvex {

/// Reads the logging configuration, an XML document. What is missing keeps its default; what makes no sense
/// is passed over with a remark.
class LogConfigParser {
public:
    /// Throws `ApplicationException` when the file cannot be read or is no XML document.
    static LogConfig loadConfigFile(const std::filesystem::path& file);

    /// The same of the document's text.
    static LogConfig parse(std::string_view text);
};

} // namespace orvex
