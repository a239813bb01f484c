#include "messaging/handlers/GetExperienceModesHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

#include <algorithm>
#include <optional>

namespace Velto::Messaging {

using orvex::ExperienceModesState;

namespace {

void readModeId(std::optional<int>& id, const Body::Value& value) {
    if (value.IsInt()) {
        id = value.GetInt();
    }
}

constexpr Body::Member<std::optional<int>> modeMembers[] = {{"id", &readModeId}};

void readModes(ExperienceModesState& state, const Body::Value& value) {
    Body::readObjects(value, state.modeIds, "experience modes", [&state](const Body::Value& element) {
        std::optional<int> id;
        Body::readMembers(element, id, modeMembers);
        if (id) {
            state.modeIds.append(*id);
        }
    });
}

constexpr Body::Member<ExperienceModesState> stateMembers[] = {
    {"selectedModeId", &Body::field<&ExperienceModesState::selectedModeId>},
    {"state", &Body::field<&ExperienceModesState::state>},
    {"status", &Body::field<&ExperienceModesState::status>},
    {"statusMessage", &Body::field<&ExperienceModesState::statusMessage>},
    {"experienceModes", &readModes},
};

} // namespace

void GetExperienceModesHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetExperienceModes") {
        return;
    }
    ExperienceModesState state;
    Body::readMembers(*BodyJSONParser::parse(response), state, stateMembers);
    std::sort(state.modeIds.begin(), state.modeIds.end());
    m_modes.replace(std::move(state));
    emit experienceModesResponseReceived(QStringLiteral("getExperienceModes"), QVariant());
}

} // namespace Velto::Messaging
