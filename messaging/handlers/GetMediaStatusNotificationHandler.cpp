#include "messaging/handlers/GetMediaStatusNotificationHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

namespace {

constexpr int sourceDetected = 9;
/// Below this the capture is only starting.
constexpr int captureSettled = 5;

struct Code {
    const char* wireText;
    int code;
};

// The states the unit names; 10 is not among them.
constexpr Code audioCodes[] = {
    {"initializing", 0},     {"configuring", 1},    {"configured", 2},     {"starting", 3},
    {"started", 4},          {"stopping", 5},       {"stopped", 6},        {"listening", 7},
    {"silence_detected", 8}, {"ident_success", 9},  {"ident_failure", 11}, {"lost_audio", 12},
    {"program_error", 13},   {"shutting_down", 14}, {"shutdown", 15},
};

constexpr Code motionCodes[] = {{"listening", 0}, {"searching", 1}, {"available", 2}, {"not_available", 3}};

struct Display {
    int code;
    int statusType;
    const char* text;
};

constexpr Display audioDisplays[] = {
    {1, 2, QT_TRANSLATE_NOOP("MediaStatus", "Configuring Audio Capture")},
    {2, 2, QT_TRANSLATE_NOOP("MediaStatus", "Audio Capture Configured")},
    {3, 2, QT_TRANSLATE_NOOP("MediaStatus", "Starting Audio Capture")},
    {4, 2, QT_TRANSLATE_NOOP("MediaStatus", "Audio Capture Started")},
    {5, 2, QT_TRANSLATE_NOOP("MediaStatus", "Stopping Audio Capture")},
    {6, 0, QT_TRANSLATE_NOOP("MediaStatus", "Audio Capture Stopped")},
    {7, 2, QT_TRANSLATE_NOOP("MediaStatus", "Capturing Audio")},
    {8, 2, QT_TRANSLATE_NOOP("MediaStatus", "Silence Detected")},
    {9, 3, QT_TRANSLATE_NOOP("MediaStatus", "Audio Source Detected")},
    {10, 1, QT_TRANSLATE_NOOP("MediaStatus", "Content Identification Lost")},
    {11, 2, QT_TRANSLATE_NOOP("MediaStatus", "Listening and Analyzing Audio")},
    {12, 1, QT_TRANSLATE_NOOP("MediaStatus", "Audio Feed Lost")},
    {13, 1, QT_TRANSLATE_NOOP("MediaStatus", "Audio Capture Error")},
    {-1, 1, QT_TRANSLATE_NOOP("MediaStatus", "Unknown Media State")},
};

constexpr Display motionDisplays[] = {
    {0, 3, QT_TRANSLATE_NOOP("MediaStatus", "Motion Code Found")},
    {1, 2, QT_TRANSLATE_NOOP("MediaStatus", "Looking for Motion Code")},
    {2, 3, QT_TRANSLATE_NOOP("MediaStatus", "Motion Code Available")},
    {3, 2, QT_TRANSLATE_NOOP("MediaStatus", "Motion Code not Available")},
    {-1, 1, QT_TRANSLATE_NOOP("MediaStatus", "Unknown Motion Code")},
};

template <class Table>
int codeOf(const QString& text, const Table& table) {
    for (const Code& entry : table) {
        if (text == QLatin1String(entry.wireText)) {
            return entry.code;
        }
    }
    return -1;
}

struct Label {
    int statusType = 0;
    QString text;
};

template <class Table>
Label labelOf(int code, const Table& table) {
    for (const Display& entry : table) {
        if (entry.code == code) {
            return {entry.statusType, QCoreApplication::translate("MediaStatus", entry.text)};
        }
    }
    return {};
}

struct MediaStatus {
    QString audioState;
    QString motionState;
    QString title;
    int offset = -1;
    int duration = -1;
};

constexpr Body::Member<MediaStatus> statusMembers[] = {
    {"mediaIdState", &Body::field<&MediaStatus::audioState>},
    {"motionCodeState", &Body::field<&MediaStatus::motionState>},
    {"mediaTitle", &Body::field<&MediaStatus::title>},
    {"mediaOffset", &Body::field<&MediaStatus::offset>},
    {"mediaDuration", &Body::field<&MediaStatus::duration>},
};

} // namespace

void GetMediaStatusNotificationHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetMediaStatus") {
        return;
    }
    MediaStatus status;
    const auto body = BodyJSONParser::parse(response);
    for (const auto& member : body->GetObject()) {
        if (member.value.IsObject()) {
            Body::readMembers(member.value, status, statusMembers);
        }
    }

    int audioCode = codeOf(status.audioState, audioCodes);
    if (m_audioCode == sourceDetected && audioCode < captureSettled) {
        audioCode = sourceDetected;
    }
    const Label audio = labelOf(audioCode, audioDisplays);
    Label motion;
    if (audioCode == sourceDetected) {
        motion = labelOf(codeOf(status.motionState, motionCodes), motionDisplays);
    } else {
        status.title.clear();
        status.offset = -1;
        status.duration = -1;
    }

    emit updateSourceDetectedStatusLabelSignal(audio.statusType, audio.text);
    emit updateMotionCodeStatusLabelSignal(motion.statusType, motion.text);
    emit updateMediaInfoTitleLabelSignal(QStringLiteral("mediaTitle"), status.title);
    emit updateMediaInfoProgressBarSignal(status.offset, status.duration);
    m_audioCode = audioCode;
}

} // namespace Velto::Messaging
