#include "Faults.h"

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

std::optional<Outgoing> faultyAnswer(const Faults& faults, const Header& header, std::string_view body) {
    Outgoing outgoing = wholeAnswer(faults, header, body);
    switch (faults.answer) {
    case AnswerFault::None:
        break;
    case AnswerFault::Drop:
        return std::nullopt;
    case AnswerFault::StallMidFrame:
        outgoing.manner = Manner::HalfThenSilence;
        break;
    case AnswerFault::Garble:
        outgoing.frame = garbled(header, body);
        break;
    case AnswerFault::TruncateBody:
        outgoing.frame = truncated(header, body);
        break;
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
    return outgoing;
}

} // namespace

std::optional<Outgoing> spoil(const Faults& faults, const Header& header, std::string_view body) {
    const bool meant = faults.types.empty() || faults.types.count(header.type) > 0;
    auto outgoing = meant ? faultyAnswer(faults, header, body)
                          : std::optional<Outgoing>(wholeAnswer(faults, header, body));
    if (outgoing)
        outgoing->delay = faults.delay;
    return outgoing;
}

} // namespace Simulator
