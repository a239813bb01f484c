#pragma once

#include <QString>

#include <rapidjson/document.h>

#include <cstddef>
#include <string_view>

/// How every handler reads a body: the members of an object in their order, by exact name; a member of the
/// wrong type counts as absent, the last of several of the same name wins.
namespace Velto::Messaging::Body {

using Value = rapidjson::Value;

inline std::string_view textOf(const Value& string) {
    return {string.GetString(), string.GetStringLength()};
}

QString toQString(const Value& string);

// Stores the value when it is of the wanted type. An integer is a number written without a fraction that fits
// into 32 bits.
void readInto(bool& target, const Value& value);
void readInto(int& target, const Value& value);
void readInto(double& target, const Value& value);
void readInto(QString& target, const Value& value);

/// One member of a record's object: its name, and what its value does to the record.
template <class Record>
struct Member {
    std::string_view name;
    void (*read)(Record& record, const Value& value);
};

/// For `Member::read`: stores the value in one field of the record.
template <auto Field, class Record>
void field(Record& record, const Value& value) {
    readInto(record.*Field, value);
}

/// Walks an object's members and hands each that the table names to its reader.
template <class Record, class Table>
void readMembers(const Value& object, Record& record, const Table& table) {
    for (const auto& member : object.GetObject()) {
        const std::string_view name = textOf(member.name);
        for (const auto& known : table) {
            if (known.name == name) {
                known.read(record, member.value);
                break;
            }
        }
    }
}

/// As many elements are taken from a list in a body, far more than a unit has of anything listed this way: a
/// frame full of empty elements must not fill the memory.
constexpr std::size_t longestList = 1024;

/// Logs that the rest of a list was dropped; `what` names its elements.
void tellDropped(const char* what, std::size_t limit = longestList);

/// Hands each object of an array to `read`, which may add it to `list`, until that is full. The rest is
/// dropped and logged once. Nothing when the value is no array.
template <class List, class Read>
void readObjects(const Value& value, const List& list, const char* what, Read read) {
    if (!value.IsArray()) {
        return;
    }
    const auto isFull = [&list] { return static_cast<std::size_t>(list.size()) >= longestList; };
    const bool hadRoom = !isFull();
    for (const auto& element : value.GetArray()) {
        if (!element.IsObject()) {
            continue;
        }
        if (isFull()) {
            if (hadRoom) {
                tellDropped(what);
            }
            return;
        }
        read(element);
    }
}

/// The value of the body's first member when that has this name; none otherwise.
const Value* firstMember(const Value& object, std::string_view name);

} // namespace Velto::Messaging::Body
