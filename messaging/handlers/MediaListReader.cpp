#include "messaging/handlers/MediaListReader.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

namespace Velto::Messaging {

using orvex::MediaEntry;
using orvex::MediaList;

namespace {

/// Titles; a frame holds some 90,000 proper ones, but millions that are empty.
constexpr int largestLibrary = 200'000;

QString decoded(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

/// Texts that many titles have in common, such as dates and languages, are made once and shared.
class SharedTexts {
public:
    QString get(std::string_view text) {
        if (text.size() > longest) {
            return decoded(text);
        }
        Slot& slot = m_slots[std::hash<std::string_view>()(text) % m_slots.size()];
        if (slot.bytes != text || slot.text.isNull()) {
            slot.bytes = text;
            slot.text = decoded(text);
        }
        return slot.text;
    }

private:
    struct Slot {
        std::string bytes;
        QString text;
    };

    static constexpr std::size_t longest = 15; ///< what std::string holds without memory of its own
    std::array<Slot, 4096> m_slots;
};

struct Field {
    std::string_view name;
    QString MediaEntry::*member;
    bool isShared; ///< by many titles
};

constexpr Field fields[] = {
    {"title", &MediaEntry::title, false},
    {"cut", &MediaEntry::cut, true},
    {"language", &MediaEntry::language, true},
    {"releaseDate", &MediaEntry::releaseDate, true},
    {"imdbRef", &MediaEntry::imdbRef, false},
    {"duration", &MediaEntry::duration, true},
    {"trackReleaseDate", &MediaEntry::trackReleaseDate, true},
};

/// The member of that name. A unit writes the members of every entry in the same order: the search begins
/// behind the one that was read last.
const Field* fieldOf(std::string_view name, const Field* last) {
    const Field* const begin = std::begin(fields);
    const Field* const end = std::end(fields);
    const Field* const start = last && last + 1 != end ? last + 1 : begin;
    const auto isNamed = [name](const Field& field) { return field.name == name; };
    const Field* found = std::find_if(start, end, isNamed);
    if (found == end) {
        found = std::find_if(begin, start, isNamed);
        return found == start ? nullptr : found;
    }
    return found;
}

/// Hears the body from the parser, and follows it as long as it is on the way to an entry: body, list, array
/// of entries, entry.
class Listener : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Listener> {
public:
    QSharedPointer<MediaList> take() { return std::move(m_list); }

    bool Key(const char* text, rapidjson::SizeType size, bool) {
        if (m_depth == m_place) {
            takeName({text, size});
        }
        return true;
    }
    bool String(const char* text, rapidjson::SizeType size, bool) {
        if (m_depth == Entry && m_place == Entry && m_field) {
            MediaEntry& entry = m_list->media.last();
            const std::string_view value(text, size);
            entry.*m_field->member = m_field->isShared ? m_texts.get(value) : decoded(value);
        }
        return m_depth > Nothing;
    }
    bool Default() { return m_depth > Nothing; } ///< a body is an object
    bool StartObject() { return enter(true); }
    bool StartArray() { return m_depth > Nothing && enter(false); }
    bool EndObject(rapidjson::SizeType) { return leave(); }
    bool EndArray(rapidjson::SizeType) { return leave(); }

private:
    /// How far we are on the way, and the depth that belongs to it.
    enum Place : int { Nothing, Body, List, Entries, Entry };

    void takeName(std::string_view name) {
        switch (m_place) {
        case Body:
            m_isOnTheWay = std::exchange(m_isFirstMember, false) && name == "mediaList";
            break;
        case List:
            m_isOnTheWay = name == "media";
            break;
        case Entry:
            m_field = fieldOf(name, m_lastField);
            m_lastField = m_field ? m_field : m_lastField;
            break;
        default:
            break;
        }
    }

    bool enter(bool isObject) {
        if (m_depth == m_place && leadsOn(isObject)) {
            ++m_place;
            if (m_place == List) {
                m_list = QSharedPointer<MediaList>::create();
            } else if (m_place == Entry) {
                m_list->media.append(MediaEntry());
                m_field = nullptr;
            }
        }
        return ++m_depth <= BodyJSONParser::maximumDepth;
    }

    bool leadsOn(bool isObject) {
        switch (m_place) {
        case Body:
            return isObject && m_isOnTheWay;
        case List:
            return !isObject && m_isOnTheWay;
        case Nothing:
            return isObject;
        case Entries:
            return isObject && hasRoom();
        default:
            return false;
        }
    }

    /// Whether one more title is taken; the first that is not is logged.
    bool hasRoom() {
        if (m_list->media.size() < largestLibrary) {
            return true;
        }
        if (!std::exchange(m_isFull, true)) {
            Body::tellDropped("titles", largestLibrary);
        }
        return false;
    }

    bool leave() {
        if (m_depth == m_place) {
            --m_place;
        }
        --m_depth;
        return true;
    }

    QSharedPointer<MediaList> m_list;
    SharedTexts m_texts;
    const Field* m_field = nullptr;     ///< of the name just read; none for an unknown one
    const Field* m_lastField = nullptr; ///< the last one that was known
    int m_depth = 0;
    int m_place = Nothing;
    bool m_isFirstMember = true;
    bool m_isOnTheWay = false; ///< the name just read leads on
    bool m_isFull = false;     ///< and that was logged
};

} // namespace

QSharedPointer<MediaList> readMediaList(std::string_view body) {
    rapidjson::MemoryStream stream(body.data(), body.size());
    rapidjson::Reader reader;
    const auto listener = std::make_unique<Listener>(); // too large for a stack
    const bool failed = reader.Parse<rapidjson::kParseValidateEncodingFlag>(stream, *listener).IsError();
    // The parser takes a zero byte for the end of its input: what stands behind one makes it unparsable.
    return failed || stream.Tell() != body.size() ? nullptr : listener->take();
}

} // namespace Velto::Messaging
