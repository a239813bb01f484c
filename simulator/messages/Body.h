#pragma once

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

/// Writes the body of an answer: one JSON object, its members in the order they are given.
class Body {
public:
    Body() { m_writer.StartObject(); }

    Body& text(const char* key, std::string_view value) {
        m_writer.Key(key);
        m_writer.String(value.data(), static_cast<rapidjson::SizeType>(value.size()));
        return *this;
    }
    Body& flag(const char* key, bool value) {
        m_writer.Key(key);
        m_writer.Bool(value);
        return *this;
    }
    Body& integer(const char* key, int value) {
        m_writer.Key(key);
        m_writer.Int(value);
        return *this;
    }
    Body& number(const char* key, double value) {
        m_writer.Key(key);
        m_writer.Double(value);
        return *this;
    }
    Body& object(const char* key) {
        m_writer.Key(key);
        m_writer.StartObject();
        return *this;
    }
    Body& element() {
        m_writer.StartObject();
        return *this;
    }
    Body& endObject() {
        m_writer.EndObject();
        return *this;
    }
    Body& array(const char* key) {
        m_writer.Key(key);
        m_writer.StartArray();
        return *this;
    }
    Body& endArray() {
        m_writer.EndArray();
        return *this;
    }

    /// Ends the body and hands it out; nothing can be added afterwards.
    std::string finish() {
        m_writer.EndObject();
        return {m_buffer.GetString(), m_buffer.GetSize()};
    }

private:
    rapidjson::StringBuffer m_buffer;
    rapidjson::Writer<rapidjson::StringBuffer> m_writer{m_buffer};
};

/// A member of a request's body; each is none when it is missing or something else.
inline std::optional<std::string> textIn(const rapidjson::Value& body, const char* key) {
    const auto found = body.FindMember(key);
    if (found == body.MemberEnd() || !found->value.IsString())
        return std::nullopt;
    return std::string(found->value.GetString(), found->value.GetStringLength());
}

/// A number without fraction within 32 bits.
inline std::optional<int> integerIn(const rapidjson::Value& body, const char* key) {
    const auto found = body.FindMember(key);
    if (found == body.MemberEnd() || !found->value.IsInt())
        return std::nullopt;
    return found->value.GetInt();
}

inline std::optional<double> numberIn(const rapidjson::Value& body, const char* key) {
    const auto found = body.FindMember(key);
    if (found == body.MemberEnd() || !found->value.IsNumber() || !std::isfinite(found->value.GetDouble()))
        return std::nullopt;
    return found->value.GetDouble();
}

inline std::optional<bool> flagIn(const rapidjson::Value& body, const char* key) {
    const auto found = body.FindMember(key);
    if (found == body.MemberEnd() || !found->value.IsBool())
        return std::nullopt;
    return found->value.GetBool();
}

inline const rapidjson::Value* objectIn(const rapidjson::Value& body, const char* key) {
    const auto found = body.FindMember(key);
    return found == body.MemberEnd() || !found->value.IsObject() ? nullptr : &found->value;
}

} // namespace Simulator
