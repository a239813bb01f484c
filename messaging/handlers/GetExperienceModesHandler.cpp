#include "messaging/handlers/GetExperienceModesHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

#include <algorithm>

namespace Velto::Messaging {

using orvex::ExperienceModesState;

namespace {

void readModeId(QList<int>& ids, const Body::Value& value) {
    if (value.IsInt()) {
        ids.append(value.GetInt());
    }
}

constexpr Body::Member<QList<int>> modeMembers[] = {{"id", &readModeId}};

void readModes(ExperienceModesState& state, const Body::Value& value) {
    if (!value.IsArray()) {
        return;
    }
    for (const auto& element : value.GetArray()) {
        if (!element.IsObject()) {
            continue;
        }
        QList<int> ids;
        Body::readMembers(element, ids, modeMembers);
        if (!ids.isEmpty()) {
            state.modeIds.append(ids.last());
        }
    }
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
