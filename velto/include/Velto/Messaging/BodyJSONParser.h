#pragma once

#include <Velto/Messaging/IMessage.h>

#include <rapidjson/document.h>

#include <memory>

namespace Velto::Messaging {

/// Turns a message's body into a JSON document.
class BodyJSONParser {
public:
    /// Objects and arrays may stand inside one another this deep; a deeper body counts as unparsable.
    static constexpr int maximumDepth = 64;

    /// Never none: a body that is missing, unparsable (also: invalid UTF-8) or no object gives an empty
    /// object. Any thread.
    static std::shared_ptr<rapidjson::Document> parse(const std::shared_ptr<const IMessage>& message);
};

} // namespace Velto::Messaging
