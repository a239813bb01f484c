#include "messaging/records/ContentUpdateState.h"

#include <tuple>

namespace orvex {

namespace {

constexpr int stateIdle = 10;

struct StateName {
    int stateId;
    const char* text;
};

constexpr StateName stateNames[] = {
    {20, QT_TRANSLATE_NOOP("ContentUpdateState", "Checking for new content")},
    {25, QT_TRANSLATE_NOOP("ContentUpdateState", "Error checking for new content")},
    {30, QT_TRANSLATE_NOOP("ContentUpdateState", "Downloading content")},
    {35, QT_TRANSLATE_NOOP("ContentUpdateState", "Error downloading content")},
    {36, QT_TRANSLATE_NOOP("ContentUpdateState", "Server content not ready")},
    {40, QT_TRANSLATE_NOOP("ContentUpdateState", "Content install pending")},
    {50, QT_TRANSLATE_NOOP("ContentUpdateState", "Installing content")},
    {55, QT_TRANSLATE_NOOP("ContentUpdateState", "Error installing content")},
};

} // namespace

QString ContentUpdateState::stateText() const {
    if (stateId == stateIdle) {
        return {};
    }
    QString text = stateName;
    for (const StateName& known : stateNames) {
        if (known.stateId == stateId) {
            text = tr(known.text);
        }
    }
    if (text.isEmpty()) {
        return tr("Unknown state");
    }
    if (progressType == 1) {
        text += progressValue == QLatin1String("0") ? QStringLiteral("...")
                                                    : QStringLiteral(" %1%").arg(progressValue);
    }
    return text;
}

QString ContentUpdateState::codeText() const {
    return code == QLatin1String("0") ? QString() : tr("Code: %1").arg(code);
}

bool ContentUpdateState::operator==(const ContentUpdateState& other) const {
    const auto members = [](const ContentUpdateState& s) {
        return std::tie(s.stateId, s.stateName, s.code, s.message, s.progressType, s.progressValue,
                        s.updatedTimestamp);
    };
    return members(*this) == members(other);
}

} // namespace orvex
