#include "messaging/handlers/BodyReader.h"

#include "device/ProgramLog.h"

namespace Velto::Messaging::Body {

QString toQString(const Value& string) {
    return QString::fromUtf8(string.GetString(), static_cast<int>(string.GetStringLength()));
}

void readInto(bool& target, const Value& value) {
    if (value.IsBool()) {
        target = value.GetBool();
    }
}

void readInto(int& target, const Value& value) {
    if (value.IsInt()) {
        target = value.GetInt();
    }
}

void readInto(double& target, const Value& value) {
    if (value.IsNumber()) {
        target = value.GetDouble();
    }
}

void readInto(QString& target, const Value& value) {
    if (value.IsString()) {
        target = toQString(value);
    }
}

void tellDropped(const char* what, std::size_t limit) {
    orvex::programLog()->warn("An answer has more than {} {}, the rest is dropped", limit, what);
}

const Value* firstMember(const Value& object, std::string_view name) {
    if (object.MemberCount() == 0 || textOf(object.MemberBegin()->name) != name) {
        return nullptr;
    }
    return &object.MemberBegin()->value;
}

} // namespace Velto::Messaging::Body
