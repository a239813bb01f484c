#pragma once

#include <spdlog/details/null_mutex.h>
#include <spdlog/sinks/base_sink.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace orvex::Test {

/// Keeps what the program logs while it lives: "level text" each.
class ProgramLogCapture {
public:
    ProgramLogCapture() {
        spdlog::drop(name);
        spdlog::register_logger(std::make_shared<spdlog::logger>(name, m_sink));
    }
    ~ProgramLogCapture() { spdlog::drop(name); }
    ProgramLogCapture(const ProgramLogCapture&) = delete;
    ProgramLogCapture& operator=(const ProgramLogCapture&) = delete;

    /// The lines that contain this text.
    std::vector<std::string> lines(const std::string& text) const { return m_sink->lines(text); }
    std::size_t count(const std::string& text) const { return lines(text).size(); }

private:
    static constexpr auto name = "orvex.QuiveraApp";

    class Sink : public spdlog::sinks::base_sink<std::mutex> {
    public:
        std::vector<std::string> lines(const std::string& text) {
            const std::lock_guard lock(mutex_);
            std::vector<std::string> found;
            std::copy_if(m_lines.begin(), m_lines.end(), std::back_inserter(found),
                         [&](const std::string& line) { return line.find(text) != std::string::npos; });
            return found;
        }

    private:
        void sink_it_(const spdlog::details::log_msg& message) override {
            const auto level = spdlog::level::to_string_view(message.level);
            m_lines.push_back(std::string(level.data(), level.size()) + ' ' +
                              std::string(message.payload.data(), message.payload.size()));
        }
        void flush_() override {}

        std::vector<std::string> m_lines;
    };

    std::shared_ptr<Sink> m_sink = std::make_shared<Sink>();
};

} // namespace orvex::Test
