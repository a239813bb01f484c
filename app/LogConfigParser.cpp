#include "app/LogConfigParser.h"

#include "app/ApplicationException.h"

#include <tinyxml2.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <limits>
#include <system_error>
#include <utility>

namespace orvex {

namespace {

using tinyxml2::XMLElement;

// A configuration is a few kilobytes; anything near this is some other file.
constexpr std::size_t maximumFileSize = std::size_t{1} << 20;

// The queue is allocated as a whole at start-up, about 300 bytes an entry.
constexpr std::size_t maximumQueueSize = std::size_t{1} << 18;
constexpr std::size_t maximumThreadCount = 64;
constexpr std::size_t maximumFileSizeMb = 4096;
// The logging library's own limit.
constexpr std::size_t maximumFileCount = 200000;
constexpr int secondsPerDay = 86400;

struct LevelName {
    std::string_view name;
    spdlog::level::level_enum level;
};

constexpr std::array<LevelName, 7> levelNames = {{{"trace", spdlog::level::trace},
                                                  {"debug", spdlog::level::debug},
                                                  {"info", spdlog::level::info},
                                                  {"warning", spdlog::level::warn},
                                                  {"error", spdlog::level::err},
                                                  {"critical", spdlog::level::critical},
                                                  {"off", spdlog::level::off}}};

[[noreturn]] void refuse() {
    throw ApplicationException("LogConfigParser::LoadConfigFile: Failed to load XML document");
}

/// The first and last line of a text that was laid out over several lines belong to the layout.
std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// One element's children by name, with the remarks about them.
class Element {
public:
    Element(const XMLElement& element, std::vector<std::string>& remarks)
        : m_element(element)
        , m_remarks(remarks) {}

    std::optional<std::string> rawText(const char* name) const {
        const XMLElement* child = m_element.FirstChildElement(name);
        const char* text = child ? child->GetText() : nullptr;
        return text ? std::optional<std::string>(text) : std::nullopt;
    }

    /// None when the child is missing or holds blanks only.
    std::optional<std::string> text(const char* name) const {
        auto raw = rawText(name);
        const std::string_view content = raw ? trimmed(*raw) : std::string_view();
        return content.empty() ? std::nullopt : std::optional<std::string>(content);
    }

    std::optional<spdlog::level::level_enum> level(const char* name) const {
        const auto content = text(name);
        if (!content) {
            return std::nullopt;
        }
        for (const LevelName& known : levelNames) {
            if (known.name == *content) {
                return known.level;
            }
        }
        remark("\"" + *content + "\" is no level");
        return std::nullopt;
    }

    template <class Number>
    std::optional<Number> number(const char* name, Number lowest, Number highest) const {
        const auto content = text(name);
        if (!content) {
            return std::nullopt;
        }
        Number value{};
        const char* const end = content->data() + content->size();
        const auto [stop, error] = std::from_chars(content->data(), end, value);
        if (error == std::errc() && stop == end && value >= lowest && value <= highest) {
            return value;
        }
        remark(std::string(name) + " \"" + *content + "\" is no number from " + std::to_string(lowest) +
               " to " + std::to_string(highest));
        return std::nullopt;
    }

    template <class Value>
    void readNumber(const char* name, Value lowest, Value highest, Value& target) const {
        target = number<Value>(name, lowest, highest).value_or(target);
    }

    void remark(std::string text) const {
        m_remarks.push_back("line " + std::to_string(m_element.GetLineNum()) + ": " + std::move(text));
    }

    /// Calls `visit` with each child element of the child `name`.
    template <class Visit>
    void forEachIn(const char* name, Visit&& visit) const {
        const XMLElement* list = m_element.FirstChildElement(name);
        for (const XMLElement* child = list ? list->FirstChildElement() : nullptr; child;
             child = child->NextSiblingElement()) {
            visit(Element(*child, m_remarks));
        }
    }

    std::string_view content() const {
        const char* text = m_element.GetText();
        return text ? trimmed(text) : std::string_view();
    }

private:
    const XMLElement& m_element;
    std::vector<std::string>& m_remarks;
};

constexpr int lowestInt = std::numeric_limits<int>::min();
constexpr int highestInt = std::numeric_limits<int>::max();

void readSink(const Element& element, LogConfig& config) {
    SinkConfig sink;
    const auto id = element.number<int>("id", lowestInt, highestInt);
    if (!id) {
        element.remark("a sink without an id is of no use to any logger");
        return;
    }
    const bool known = std::any_of(config.sinks.begin(), config.sinks.end(),
                                   [&id](const SinkConfig& other) { return other.id == *id; });
    if (known) {
        element.remark("a second sink with the id " + std::to_string(*id) + " is passed over");
        return;
    }
    sink.id = *id;
    sink.type = element.text("type").value_or("");
    sink.multiThread = element.text("multi_thread") == "yes";
    sink.format = element.rawText("format");
    sink.level = element.level("log_level");
    sink.fileName = element.text("file_name").value_or("");
    element.readNumber<std::size_t>("file_size_mb", 1, maximumFileSizeMb, sink.fileSizeMb);
    element.readNumber<std::size_t>("file_num", 1, maximumFileCount, sink.fileCount);
    element.readNumber("hour", 0, 23, sink.hour);
    config.sinks.push_back(std::move(sink));
}

LoggerKind loggerKind(const std::optional<std::string>& overflowPolicy) {
    if (overflowPolicy == "block") {
        return LoggerKind::AsynchronousBlocking;
    }
    if (overflowPolicy == "overrun_oldest") {
        return LoggerKind::AsynchronousOverrunning;
    }
    return LoggerKind::Synchronous;
}

void readSinkId(const Element& element, LoggerConfig& logger) {
    const std::string_view content = element.content();
    int id = 0;
    const auto [stop, error] = std::from_chars(content.data(), content.data() + content.size(), id);
    if (error != std::errc() || stop != content.data() + content.size()) {
        element.remark("\"" + std::string(content) + "\" is no sink's id");
        return;
    }
    if (std::find(logger.sinkIds.begin(), logger.sinkIds.end(), id) == logger.sinkIds.end()) {
        logger.sinkIds.push_back(id);
    }
}

void readLogger(const Element& element, LogConfig& config) {
    LoggerConfig logger;
    const auto name = element.text("name");
    logger.name = name ? *name : element.text("type").value_or("");
    if (logger.name.empty()) {
        element.remark("a logger with neither a name nor a type is passed over");
        return;
    }
    const bool known =
        std::any_of(config.loggers.begin(), config.loggers.end(),
                    [&logger](const LoggerConfig& other) { return other.name == logger.name; });
    if (known) {
        element.remark("a second logger \"" + logger.name + "\" is passed over");
        return;
    }
    // Compared exactly, blanks included.
    logger.kind = loggerKind(element.rawText("overflow_policy"));
    logger.level = element.level("log_level");
    element.forEachIn("sinks", [&logger](const Element& child) { readSinkId(child, logger); });
    config.loggers.push_back(std::move(logger));
}

void readGlobals(const Element& root, LogConfig& config) {
    root.readNumber<std::size_t>("thread_pool_size", 1, maximumQueueSize, config.queueSize);
    root.readNumber<std::size_t>("thread_num", 1, maximumThreadCount, config.threadCount);
    config.format = root.rawText("format").value_or(config.format);
    config.level = root.level("log_level").value_or(config.level);
    if (const auto seconds = root.number<int>("flush_interval_s", 1, secondsPerDay)) {
        config.flushInterval = std::chrono::seconds(*seconds);
    }
}

} // namespace

LogConfig LogConfigParser::loadConfigFile(const std::filesystem::path& file) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (error || size > maximumFileSize) {
        refuse();
    }
    std::ifstream stream(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (!stream) {
        refuse();
    }
    return parse(text);
}

LogConfig LogConfigParser::parse(std::string_view text) {
    tinyxml2::XMLDocument document;
    if (document.Parse(text.data(), text.size()) != tinyxml2::XML_SUCCESS) {
        refuse();
    }
    const XMLElement* rootElement = document.RootElement();
    if (!rootElement) {
        refuse();
    }
    LogConfig config;
    const Element root(*rootElement, config.remarks);
    readGlobals(root, config);
    root.forEachIn("sinks", [&config](const Element& element) { readSink(element, config); });
    root.forEachIn("loggers", [&config](const Element& element) { readLogger(element, config); });
    return config;
}

} // namespace orvex
