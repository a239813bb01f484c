#include "Announcement.h"

#include "Utf8.h"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <limits>

namespace Velto::Wire {

namespace {

constexpr std::size_t maximumTextSize = 256;
constexpr std::size_t maximumIdSize = 128;

std::string write(const Announcement& announcement, std::string_view name) {
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    const auto text = [&writer](const char* key, std::string_view value) {
        writer.Key(key);
        writer.String(value.data(), static_cast<rapidjson::SizeType>(value.size()));
    };
    writer.StartObject();
    text("service", announcement.service);
    writer.Key("version");
    writer.Int(announcement.version);
    text("uid", announcement.uid);
    text("name", name);
    text("serial", announcement.serial);
    text("productVendor", announcement.productVendor);
    text("productName", announcement.productName);
    text("productModel", announcement.productModel);
    writer.Key("port");
    writer.Uint(announcement.port);
    writer.Key("encrypted");
    writer.Bool(announcement.encrypted);
    writer.EndObject();
    return {buffer.GetString(), buffer.GetSize()};
}

/// A datagram as one flat object; each read tells whether the member was there, of its type and in range.
class FlatObject {
public:
    explicit FlatObject(std::string_view datagram) {
        // The parser takes a zero byte for the end of its input and would not see what follows.
        if (datagram.size() > maximumDatagramSize || datagram.find('\0') != std::string_view::npos)
            return;
        m_document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(
            datagram.data(), datagram.size());
        m_flat = !m_document.HasParseError() && m_document.IsObject() &&
                 std::none_of(m_document.MemberBegin(), m_document.MemberEnd(), [](const auto& member) {
                     return member.value.IsObject() || member.value.IsArray();
                 });
    }

    bool read(const char* name, std::string& text, std::size_t maximum = maximumTextSize) const {
        const auto* const value = find(name);
        if (!value || !value->IsString() || value->GetStringLength() > maximum)
            return false;
        text.assign(value->GetString(), value->GetStringLength());
        return true;
    }

    /// An identifier: not empty, without control characters.
    bool readId(const char* name, std::string& id) const {
        return read(name, id, maximumIdSize) && !id.empty() &&
               std::none_of(id.begin(), id.end(), [](char character) {
                   const auto code = static_cast<unsigned char>(character);
                   return code < 0x20 || code == 0x7F;
               });
    }

    bool readVersion(int& version) const {
        const auto* const value = find("version");
        if (!value || !value->IsInt() || value->GetInt() < 1)
            return false;
        version = value->GetInt();
        return true;
    }

    bool readPort(std::uint16_t& port) const {
        const auto* const value = find("port");
        if (!value || !value->IsUint() || value->GetUint() == 0 ||
            value->GetUint() > std::numeric_limits<std::uint16_t>::max())
            return false;
        port = static_cast<std::uint16_t>(value->GetUint());
        return true;
    }

    bool read(const char* name, bool& flag) const {
        const auto* const value = find(name);
        if (!value || !value->IsBool())
            return false;
        flag = value->GetBool();
        return true;
    }

private:
    const rapidjson::Value* find(const char* name) const {
        if (!m_flat)
            return nullptr;
        const auto found = m_document.FindMember(name);
        return found == m_document.MemberEnd() ? nullptr : &found->value;
    }

    rapidjson::Document m_document;
    bool m_flat = false;
};

} // namespace

std::string encode(const Announcement& announcement) {
    // A receiver refuses longer texts, whatever the size of the whole.
    std::string_view name = cutAtCharacter(announcement.name, maximumTextSize);
    std::string datagram = write(announcement, name);
    while (datagram.size() > maximumDatagramSize && !name.empty()) {
        // One byte of the name takes at most six once escaped, so this never cuts more than it must.
        const std::size_t excess = datagram.size() - maximumDatagramSize;
        const std::size_t surplus = std::min(name.size(), std::max<std::size_t>(1, excess / 6));
        name = cutAtCharacter(name, name.size() - surplus);
        datagram = write(announcement, name);
    }
    return datagram;
}

std::string encode(const Probe& probe) {
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    writer.StartObject();
    writer.Key("service");
    writer.String(probe.service);
    writer.Key("version");
    writer.Int(probe.version);
    writer.Key("id");
    writer.String(probe.id);
    writer.EndObject();
    return {buffer.GetString(), buffer.GetSize()};
}

std::optional<Announcement> decodeAnnouncement(std::string_view datagram) {
    const FlatObject object(datagram);
    Announcement announcement;
    const bool complete =
        object.read("service", announcement.service) && object.readVersion(announcement.version) &&
        object.readId("uid", announcement.uid) && object.read("name", announcement.name) &&
        object.read("serial", announcement.serial) &&
        object.read("productVendor", announcement.productVendor) &&
        object.read("productName", announcement.productName) &&
        object.read("productModel", announcement.productModel) && object.readPort(announcement.port) &&
        object.read("encrypted", announcement.encrypted);
    if (!complete)
        return std::nullopt;
    return announcement;
}

std::optional<Probe> decodeProbe(std::string_view datagram) {
    const FlatObject object(datagram);
    Probe probe;
    const bool complete = object.read("service", probe.service) && object.readVersion(probe.version) &&
                          object.readId("id", probe.id);
    if (!complete)
        return std::nullopt;
    return probe;
}

} // namespace Velto::Wire
