#pragma once

#include <rapidjson/document.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Simulator {

/// A value of a JSON document that knows its place, for error messages that name it. Reading something else
/// than what is there throws std::invalid_argument: "units[2].port: a whole number from 0 to 65535 is
/// needed".
class JsonNode {
public:
    JsonNode(const rapidjson::Value& value, std::string place)
        : m_value(value)
        , m_place(std::move(place)) {}

    [[noreturn]] void fail(const std::string& what) const {
        throw std::invalid_argument(m_place + ": " + what);
    }

    std::string text() const {
        if (!m_value.IsString())
            fail("a text is needed");
        return {m_value.GetString(), m_value.GetStringLength()};
    }
    bool flag() const {
        if (!m_value.IsBool())
            fail("true or false is needed");
        return m_value.GetBool();
    }
    std::uint64_t number(std::uint64_t minimum, std::uint64_t maximum) const {
        if (!m_value.IsUint64() || m_value.GetUint64() < minimum || m_value.GetUint64() > maximum)
            fail("a whole number from " + std::to_string(minimum) + " to " + std::to_string(maximum) +
                 " is needed");
        return m_value.GetUint64();
    }
    int integer(int minimum = std::numeric_limits<int>::min(),
                int maximum = std::numeric_limits<int>::max()) const {
        if (!m_value.IsInt() || m_value.GetInt() < minimum || m_value.GetInt() > maximum)
            fail("a whole number from " + std::to_string(minimum) + " to " + std::to_string(maximum) +
                 " is needed");
        return m_value.GetInt();
    }
    double real(double minimum, double maximum) const {
        if (!m_value.IsNumber() || m_value.GetDouble() < minimum || m_value.GetDouble() > maximum)
            fail("a number from " + std::to_string(minimum) + " to " + std::to_string(maximum) +
                 " is needed");
        return m_value.GetDouble();
    }
    /// A time in milliseconds, a week at most.
    std::chrono::milliseconds time() const {
        return std::chrono::milliseconds(number(0, 7ULL * 24 * 60 * 60 * 1000));
    }
    std::vector<JsonNode> elements() const {
        if (!m_value.IsArray())
            fail("a list is needed");
        std::vector<JsonNode> nodes;
        for (rapidjson::SizeType i = 0; i < m_value.Size(); ++i)
            nodes.emplace_back(m_value[i], m_place + '[' + std::to_string(i) + ']');
        return nodes;
    }
    bool has(const char* member) const { return m_value.IsObject() && m_value.HasMember(member); }
    const rapidjson::Value& value() const { return m_value; }
    const std::string& place() const { return m_place; }

    /// Reads every member by the row of the table that bears its name; a member without one is an error.
    template <typename Target, typename Table>
    void read(Target& target, const Table& table) const {
        if (!m_value.IsObject())
            fail("an object is needed");
        for (const auto& member : m_value.GetObject()) {
            const std::string name(member.name.GetString(), member.name.GetStringLength());
            const JsonNode node(member.value, m_place.empty() ? name : m_place + '.' + name);
            const auto* row = find(table, name);
            if (!row)
                node.fail("there is no such member");
            row->read(target, node);
        }
    }

private:
    template <typename Table>
    static const typename Table::value_type* find(const Table& table, const std::string& name) {
        for (const auto& row : table)
            if (name == row.name)
                return &row;
        return nullptr;
    }

    const rapidjson::Value& m_value;
    std::string m_place;
};

template <typename Target>
struct JsonMember {
    const char* name;
    void (*read)(Target&, const JsonNode&);
};

/// The value that a table gives to the text.
template <typename Value, std::size_t size>
Value oneOf(const JsonNode& node, const std::array<std::pair<const char*, Value>, size>& words) {
    const std::string text = node.text();
    std::string known;
    for (const auto& [word, value] : words) {
        if (text == word)
            return value;
        known += (known.empty() ? "" : ", ") + std::string(word);
    }
    node.fail("\"" + text + "\" is not one of " + known);
}

} // namespace Simulator
