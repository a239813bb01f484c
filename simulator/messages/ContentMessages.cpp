#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

#include <array>
#include <chrono>
#include <ctime>

namespace Simulator {

namespace {

enum ContentStateId {
    Idle = 10,
    Checking = 20,
    CheckFailed = 25,
    Downloading = 30,
    DownloadFailed = 35,
    ServerNotReady = 36,
    InstallPending = 40,
    Installing = 50,
    InstallFailed = 55,
};

struct StateName {
    int id;
    const char* name;
};

constexpr std::array<StateName, 9> stateNames{{{Idle, "idle"},
                                               {Checking, "checking"},
                                               {CheckFailed, "check_failed"},
                                               {Downloading, "downloading"},
                                               {DownloadFailed, "download_failed"},
                                               {ServerNotReady, "server_not_ready"},
                                               {InstallPending, "install_pending"},
                                               {Installing, "installing"},
                                               {InstallFailed, "install_failed"}}};

constexpr int percentPerStep = 20;

std::string nameOf(int id) {
    for (const StateName& state : stateNames)
        if (state.id == id)
            return state.name;
    return {};
}

std::string now() {
    const std::time_t time = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::array<char, sizeof "0000-00-00T00:00:00Z"> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&time));
    return text.data();
}

std::string stateBody(const ContentState& content) {
    const bool progress = content.percent >= 0;
    return Body()
        .integer("stateId", content.id)
        .text("stateName", nameOf(content.id))
        .text("code", content.code)
        .text("message", content.message)
        .integer("progressType", progress ? 1 : 0)
        .text("progressValue", progress ? std::to_string(content.percent) : "")
        .text("updatedTimestamp", content.updatedTimestamp)
        .finish();
}

bool isRunning(const ContentState& content) {
    return content.id == Checking || content.id == Downloading || content.id == InstallPending ||
           content.id == Installing;
}

void enter(ContentState& content, int id, int percent = -1) {
    content.id = id;
    content.percent = percent;
}

void fail(ContentState& content, int id, const char* code, const char* message) {
    enter(content, id);
    content.code = code;
    content.message = message;
    content.lastStatus = "failed";
}

void succeed(ContentState& content) {
    enter(content, Idle);
    content.updatedTimestamp = now();
    content.lastStatus = "success";
}

void afterChecking(ContentState& content) {
    if (content.failure == ContentFailure::Checking)
        return fail(content, CheckFailed, "2501", "The content server did not answer.");
    if (content.failure == ContentFailure::ServerNotReady)
        return fail(content, ServerNotReady, "3601", "The content server is not ready.");
    enter(content, Downloading, 0);
}

void whileDownloading(ContentState& content) {
    content.percent += percentPerStep;
    if (content.failure == ContentFailure::Downloading && content.percent >= 50)
        return fail(content, DownloadFailed, "3502", "The download broke off.");
    if (content.percent > 100)
        enter(content, InstallPending);
}

void whileInstalling(ContentState& content) {
    content.percent += percentPerStep;
    if (content.failure == ContentFailure::Installing && content.percent >= 50)
        return fail(content, InstallFailed, "5503", "The content could not be written.");
    if (content.percent > 100)
        succeed(content);
}

void waitForStep(UnitState& state);

void advance(UnitState& state) {
    ContentState& content = state.content;
    switch (content.id) {
    case Checking:
        afterChecking(content);
        break;
    case Downloading:
        whileDownloading(content);
        break;
    case InstallPending:
        enter(content, Installing, 0);
        break;
    case Installing:
        whileInstalling(content);
        break;
    default:
        return;
    }
    state.notifications.push_back({"GetContentUpdateState", stateBody(content)});
    waitForStep(state);
}

void waitForStep(UnitState& state) {
    const int number = state.content.run;
    if (isRunning(state.content))
        state.steps.push_back({state.content.pace, [number](UnitState& later) {
                                   if (later.content.run == number) // else another update has begun
                                       advance(later);
                               }});
}

} // namespace

void updateFromHere(UnitState& state) {
    ++state.content.run;
    waitForStep(state);
}

Answer getContentUpdateState(UnitState& state, const Request& /*request*/) {
    return answered(stateBody(state.content));
}

/// Asking again while an update runs is answered as the first time and starts no second one.
Answer requestContentUpdate(UnitState& state, const Request& /*request*/) {
    ContentState& content = state.content;
    if (isRunning(content))
        return {};
    content.code = "0";
    content.message.clear();
    content.lastStatus = "in_progress";
    enter(content, Checking);
    state.notifications.push_back({"GetContentUpdateState", stateBody(content)});
    updateFromHere(state);
    return {};
}

Answer getUpdate(UnitState& state, const Request& /*request*/) {
    Body body;
    body.object("last").text("status", state.content.lastStatus).endObject();
    body.object("current").text("updatedTimestamp", state.content.updatedTimestamp).endObject();
    return answered(body.finish());
}

} // namespace Simulator
