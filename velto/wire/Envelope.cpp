#include "Envelope.h"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <array>
#include <utility>

namespace Velto::Wire {

namespace {

using HeaderWriter = rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>,
                                       rapidjson::CrtAllocator, rapidjson::kWriteValidateEncodingFlag>;

constexpr std::array<std::pair<Kind, std::string_view>, 4> kindNames{{{Kind::Request, "request"},
                                                                      {Kind::Response, "response"},
                                                                      {Kind::Notification, "notification"},
                                                                      {Kind::Error, "error"}}};

std::string_view nameOf(Kind kind) {
    for (const auto& [known, name] : kindNames)
        if (known == kind)
            return name;
    return {};
}

bool readKind(const rapidjson::Value& value, Kind& kind) {
    if (!value.IsString())
        return false;
    const std::string_view text(value.GetString(), value.GetStringLength());
    for (const auto& [known, name] : kindNames) {
        if (name == text) {
            kind = known;
            return true;
        }
    }
    return false;
}

bool readText(const rapidjson::Value& value, std::string& text) {
    if (!value.IsString())
        return false;
    text.assign(value.GetString(), value.GetStringLength());
    return true;
}

bool readHeader(const rapidjson::Value& object, Header& header) {
    const auto member = [&object](const char* name) -> const rapidjson::Value* {
        const auto found = object.FindMember(name);
        return found == object.MemberEnd() ? nullptr : &found->value;
    };
    const auto* const kind = member("kind");
    const auto* const type = member("type");
    if (!kind || !readKind(*kind, header.kind) || !type || !readText(*type, header.type) ||
        header.type.empty())
        return false;
    if (const auto* const number = member("number")) {
        if (!number->IsUint())
            return false;
        header.number = number->GetUint();
    }
    if (const auto* const text = member("text"); text && !readText(*text, header.text))
        return false;
    if (const auto* const status = member("status")) {
        if (!status->IsInt())
            return false;
        header.status = status->GetInt();
    }
    return true;
}

bool writeHeader(const Header& header, HeaderWriter& writer) {
    const auto kind = nameOf(header.kind);
    const bool carriesStatus =
        header.status != 0 || header.kind == Kind::Response || header.kind == Kind::Error;
    bool written = writer.StartObject() && writer.Key("kind") &&
                   writer.String(kind.data(), static_cast<rapidjson::SizeType>(kind.size())) &&
                   writer.Key("type") && writer.String(header.type) && writer.Key("number") &&
                   writer.Uint(header.number) && writer.Key("text") && writer.String(header.text);
    if (carriesStatus)
        written = written && writer.Key("status") && writer.Int(header.status);
    return written && writer.EndObject();
}

} // namespace

std::optional<std::string> encodeFrame(const Header& header, std::string_view body) {
    // Before anything is copied: a text of this length cannot fit, escaped or not.
    if (header.type.size() + header.text.size() > maximumHeaderSize || body.size() > maximumFrameSize)
        return std::nullopt;
    rapidjson::StringBuffer text;
    HeaderWriter writer(text);
    if (!writeHeader(header, writer))
        return std::nullopt;
    const std::size_t headerSize = text.GetSize() + 1;
    if (headerSize > maximumHeaderSize || headerSize + body.size() > maximumFrameSize)
        return std::nullopt;
    std::string frame;
    frame.reserve(headerSize + body.size());
    frame.append(text.GetString(), text.GetSize());
    frame.push_back('\n');
    frame.append(body);
    return frame;
}

FrameError decodeFrame(std::string_view frame, DecodedFrame& decoded) {
    if (frame.size() > maximumFrameSize)
        return FrameError::FrameTooLarge;
    const std::size_t end = frame.substr(0, maximumHeaderSize).find('\n');
    if (end == std::string_view::npos)
        return frame.size() >= maximumHeaderSize ? FrameError::HeaderTooLarge : FrameError::NoHeader;
    const std::string_view text = frame.substr(0, end);
    // The parser takes a zero byte for the end of its input and would not see what follows.
    if (text.find('\0') != std::string_view::npos)
        return FrameError::HeaderNotJson;
    rapidjson::Document document;
    // Iterative: a header full of brackets must not eat the stack.
    document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(text.data(),
                                                                                           text.size());
    if (document.HasParseError() || !document.IsObject())
        return FrameError::HeaderNotJson;
    Header header;
    if (!readHeader(document, header))
        return FrameError::BadHeader;
    decoded.header = std::move(header);
    decoded.body = frame.substr(end + 1);
    return FrameError::None;
}

const char* describe(FrameError error) {
    switch (error) {
    case FrameError::None:
        return "no error";
    case FrameError::NoHeader:
        return "no line feed ends the header";
    case FrameError::HeaderTooLarge:
        return "the header is over 4 KiB";
    case FrameError::FrameTooLarge:
        return "the frame is over 16 MiB";
    case FrameError::HeaderNotJson:
        return "the header is not one JSON object";
    case FrameError::BadHeader:
        return "the header lacks its kind or type, or a member is of the wrong type or out of range";
    }
    return "unknown";
}

} // namespace Velto::Wire
