#pragma once

#include "simulator/Status.h"
#include "simulator/UnitState.h"

#include <rapidjson/document.h>

#include <string>
#include <string_view>
#include <utility>

namespace Simulator {

/// What a client asks. `body` is always an object, an empty one when the frame had none.
struct Request {
    std::string_view type;
    const rapidjson::Value& body;
};

struct Answer {
    Status status = Status::Ok;
    std::string text; ///< why not, for people
    std::string body;
};

inline Answer refusal(Status status, std::string why) {
    return {status, std::move(why), {}};
}

/// Looks the message up in the catalogue and lets it answer. `body` is the request's raw body.
Answer answerTo(UnitState& state, std::string_view type, std::string_view body);

// One source per topic.
Answer getKelmName(UnitState& state, const Request& request);
Answer setKelmName(UnitState& state, const Request& request);

Answer getNetworkState(UnitState& state, const Request& request);

Answer getUpgrade(UnitState& state, const Request& request);
Answer getUpdate(UnitState& state, const Request& request);

Answer getContentUpdateState(UnitState& state, const Request& request);
Answer requestContentUpdate(UnitState& state, const Request& request);

Answer getMediaList(UnitState& state, const Request& request);

} // namespace Simulator
