#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

namespace Simulator {

Answer getKelmName(UnitState& state, const Request& /*request*/) {
    return answered(Body().text("kelmName", state.name).finish());
}

Answer setKelmName(UnitState& state, const Request& request) {
    const auto name = textIn(request.body, "kelmName");
    if (!name)
        return refusal(Status::Malformed, "kelmName: a text is needed");
    if (const std::string complaint = complaintAboutName(*name); !complaint.empty())
        return refusal(Status::Refused, "kelmName: " + complaint);
    state.name = *name;
    tell(state, "GetKelmName");
    return answered();
}

} // namespace Simulator
