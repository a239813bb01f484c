#include "Faults.h"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <utility>

namespace Simulator {

namespace {

using Velto::Wire::Header;

/// A frame no limit applies to.
std::string unlimitedFrame(Header header, std::string_view body) {
    header.text.clear();
    std::string frame = Velto::Wire::encodeFrame(header, {}).value_or("\n");
    frame.append(body);
    return frame;
}

std::string garbled(const Header& header, std::string_view body) {
    std::string frame = unlimitedFrame(header, body);
    frame.replace(0, 2, "}{");
    return frame;
}

std::string truncated(const Header& header, std::string_view body) {
    return unlimitedFrame(header, body.empty() ? "{" : body.substr(0, body.size() / 2));
}

std::string oversized(const Header& header) {
    std::string frame = unlimitedFrame(header, {});
    frame.append(Velto::Wire::maximumFrameSize + 1 - frame.size(), ' ');
    return frame;
}

std::string withOversizedHeader(const Header& header, std::string_view body) {
    const std::string padding = "{\"padding\":\"" + std::string(Velto::Wire::maximumHeaderSize, 'x') + "\",";
    return padding + unlimitedFrame(header, body).substr(1);
}

Outgoing wholeAnswer(const Faults& faults, const Header& header, std::string_view body) {
    Outgoing outgoing;
    if (auto frame = Velto::Wire::encodeFrame(header, body)) {
        outgoing.frame = std::move(*frame);
    } else {
        // An error without a body always fits; its type came in within the limit.
        const Header tooLarge{Velto::Wire::Kind::Error, header.type, header.number, "the answer is too large",
                              4};
        outgoing.frame = Velto::Wire::encodeFrame(tooLarge, {}).value_or(std::string());
    }
    if (faults.trickle.count() > 0) {
        outgoing.manner = Manner::Trickle;
        outgoing.interval = faults.trickle;
    }
    return outgoing;
}

/// A value of another kind in place of each, down to the last.
void twist(rapidjson::Value& value) {
    if (value.IsObject()) {
        for (auto& member : value.GetObject())
            twist(member.value);
    } else if (value.IsArray() && !value.Empty()) {
        for (auto& element : value.GetArray())
            twist(element);
    } else if (value.IsString()) {
        value.SetInt(static_cast<int>(value.GetStringLength()));
    } else if (value.IsBool() || value.IsArray()) {
        value.SetString("false");
    } else {
        value.SetBool(true);
    }
}

std::string twisted(std::string_view body) {
    rapidjson::Document document;
    document.Parse(body.data(), body.size());
    if (document.HasParseError())
        return R"(["no object"])"; // an answer without a body
    twist(document);
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    document.Accept(writer);
    return {buffer.GetString(), buffer.GetSize()};
}

Header misnamed(Header header) {
    header.type = header.type == "GetUpdate" ? "GetKelmName" : "GetUpdate";
    return header;
}

Header failed(Header header) {
    header.kind = Velto::Wire::Kind::Error;
    header.text = "the unit could not do it";
    header.status = 4;
    return header;
}

std::vector<Outgoing> faultyAnswer(const Faults& faults, const Header& header, std::string_view body) {
    Outgoing outgoing = wholeAnswer(faults, header, body);
    switch (faults.answer) {
    case AnswerFault::None:
        break;
    case AnswerFault::Drop:
        return {};
    case AnswerFault::StallMidFrame:
        outgoing.manner = Manner::HalfThenSilence;
        break;
    case AnswerFault::Garble:
        outgoing.frame = garbled(header, body);
        break;
    case AnswerFault::TruncateBody:
        outgoing.frame = truncated(header, body);
        break;
    case AnswerFault::WrongTypes:
        return {wholeAnswer(faults, header, twisted(body))};
    case AnswerFault::OtherMessage:
        return {wholeAnswer(faults, misnamed(header), body)};
    case AnswerFault::Duplicate:
        return {outgoing, outgoing};
    case AnswerFault::Error:
        return {wholeAnswer(faults, failed(header), {})};
    case AnswerFault::OversizeFrame:
        outgoing.frame = oversized(header);
        break;
    case AnswerFault::OversizeHeader:
        outgoing.frame = withOversizedHeader(header, body);
        break;
    case AnswerFault::Close:
        outgoing.manner = Manner::Close;
        break;
    case AnswerFault::Reset:
        outgoing.manner = Manner::Reset;
        break;
    }
    return {outgoing};
}

} // namespace

std::vector<Outgoing> spoil(const Faults& faults, const Header& header, std::string_view body) {
    const bool meant = faults.types.empty() || faults.types.count(header.type) > 0;
    if (!meant)
        return {wholeAnswer(faults, header, body)};
    auto answers = faultyAnswer(faults, header, body);
    for (Outgoing& outgoing : answers)
        outgoing.delay = faults.delay;
    return answers;
}

} // namespace Simulator
