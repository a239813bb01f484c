#include <Velto/Messaging/BodyJSONParser.h>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <string_view>

namespace Velto::Messaging {

namespace {

using rapidjson::Document;
using rapidjson::SizeType;

/// Hands everything on to a document under construction, and stops the parser where the nesting is too deep:
/// parser and document recurse, and a hostile body must not exhaust the stack.
class DepthLimit {
public:
    explicit DepthLimit(Document& document)
        : m_document(document) {}

    bool Null() { return m_document.Null(); }
    bool Bool(bool value) { return m_document.Bool(value); }
    bool Int(int value) { return m_document.Int(value); }
    bool Uint(unsigned value) { return m_document.Uint(value); }
    bool Int64(std::int64_t value) { return m_document.Int64(value); }
    bool Uint64(std::uint64_t value) { return m_document.Uint64(value); }
    bool Double(double value) { return m_document.Double(value); }
    bool RawNumber(const char* text, SizeType size, bool copy) {
        return m_document.RawNumber(text, size, copy);
    }
    bool String(const char* text, SizeType size, bool copy) { return m_document.String(text, size, copy); }
    bool Key(const char* text, SizeType size, bool copy) { return m_document.Key(text, size, copy); }
    bool StartObject() { return enter() && m_document.StartObject(); }
    bool EndObject(SizeType members) { return leave() && m_document.EndObject(members); }
    bool StartArray() { return enter() && m_document.StartArray(); }
    bool EndArray(SizeType elements) { return leave() && m_document.EndArray(elements); }

private:
    bool enter() { return ++m_depth <= BodyJSONParser::maximumDepth; }
    bool leave() {
        --m_depth;
        return true;
    }

    Document& m_document;
    int m_depth = 0;
};

/// True when the whole of `body` is one JSON value.
bool fill(Document& document, std::string_view body) {
    bool parsed = false;
    const auto generate = [&parsed, body](Document& target) {
        rapidjson::MemoryStream stream(body.data(), body.size());
        rapidjson::Reader reader;
        DepthLimit limited(target);
        // The parser takes a zero byte for the end of its input: what stands behind one makes it unparsable.
        parsed = !reader.Parse<rapidjson::kParseValidateEncodingFlag>(stream, limited).IsError() &&
                 stream.Tell() == body.size();
        return parsed;
    };
    document.Populate(generate);
    return parsed;
}

} // namespace

std::shared_ptr<Document> BodyJSONParser::parse(const std::shared_ptr<const IMessage>& message) {
    auto document = std::make_shared<Document>();
    if (message && fill(*document, message->getBody()) && document->IsObject())
        return document;
    return std::make_shared<Document>(rapidjson::kObjectType);
}

} // namespace Velto::Messaging
