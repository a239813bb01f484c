#include "device/DisplayTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace orvex::DisplayTexts {

namespace {

// lupdate sees a context only where it is written out, so each text below repeats this one.
QString translated(const char* text) {
    return QCoreApplication::translate("DeviceInfoProxy", text);
}

struct ExperienceMode {
    int mode;
    const char* name;
    const char* description;
};

constexpr ExperienceMode experienceModes[] = {
    {0, QT_TRANSLATE_NOOP("DeviceInfoProxy", "Orvex Coded Video"),
     QT_TRANSLATE_NOOP(
         "DeviceInfoProxy",
         "Premium haptic experience for Orvex coded movies and TV shows, using audio synchronization.")},
    {1, QT_TRANSLATE_NOOP("DeviceInfoProxy", "Orvex Coded Gaming"),
     QT_TRANSLATE_NOOP("DeviceInfoProxy",
                       "Premium haptic experience for Orvex coded apps, simulators and games.")},
    {2, QT_TRANSLATE_NOOP("DeviceInfoProxy", "Adaptive Audio"),
     QT_TRANSLATE_NOOP(
         "DeviceInfoProxy",
         "Automated haptic experience for any movie, music and TV show, using audio processing.")},
    {3, QT_TRANSLATE_NOOP("DeviceInfoProxy", "Adaptive Gaming"),
     QT_TRANSLATE_NOOP("DeviceInfoProxy",
                       "Haptic experience using real-time events from game controller or keyboard.")},
};

constexpr ExperienceMode unknownMode = {
    -1, QT_TRANSLATE_NOOP("DeviceInfoProxy", "Unknown Mode - Update Your App"),
    QT_TRANSLATE_NOOP("DeviceInfoProxy", "Update your app to see the newest Quivera Modes.")};

const ExperienceMode& modeOf(int mode) {
    for (const ExperienceMode& known : experienceModes) {
        if (known.mode == mode) {
            return known;
        }
    }
    return unknownMode;
}

struct ModeError {
    int first;
    int last;
    const char* text;
};

constexpr auto agentError =
    QT_TRANSLATE_NOOP("DeviceInfoProxy", "Error with Quivera agent (%1) - try restarting the Quivera app");
constexpr auto appOrDeviceError = QT_TRANSLATE_NOOP(
    "DeviceInfoProxy", "Oops, something went wrong (%1) - try restarting the Quivera app or device");
constexpr auto noSeatError = QT_TRANSLATE_NOOP(
    "DeviceInfoProxy", "No seat detected (%1) - connect your device or check your connections");
constexpr auto adaptiveGamingError =
    QT_TRANSLATE_NOOP("DeviceInfoProxy", "Error with Adaptive Gaming (%1) - try restarting your PC or "
                                         "reinstalling the software");
constexpr auto adaptiveGamingSetupError = QT_TRANSLATE_NOOP(
    "DeviceInfoProxy", "Error with Adaptive Gaming setup (%1) - try reinstalling the software");
constexpr auto otherError =
    QT_TRANSLATE_NOOP("DeviceInfoProxy", "Oops, something went wrong (%1) - try restarting your PC or "
                                         "reinstalling the software");

constexpr ModeError modeErrors[] = {
    {0, 0, QT_TRANSLATE_NOOP("DeviceInfoProxy", "OK")},
    {100, 100,
     QT_TRANSLATE_NOOP("DeviceInfoProxy",
                       "Quivera Mode selection failed (%1) - try restarting the Quivera app or device")},
    {101, 101,
     QT_TRANSLATE_NOOP("DeviceInfoProxy", "Error with haptic device (%1) - try replugging your cables")},
    {102, 103, agentError},
    {104, 104, appOrDeviceError},
    {200, 200, appOrDeviceError},
    {890, 890, noSeatError},
    {891, 891, adaptiveGamingError},
    {892, 893, adaptiveGamingSetupError},
    {894, 899, adaptiveGamingError},
    {910, 910, noSeatError},
    {1100, 1100, agentError},
    {1101, 1102, adaptiveGamingError},
};

} // namespace

QString mediaTime(int seconds) {
    if (seconds < 0) {
        return QStringLiteral("--:--");
    }
    const auto padded = [](int number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    const int hours = seconds / 3600;
    const int minutes = seconds % 3600 / 60;
    const QString tail = QLatin1Char(':') + padded(seconds % 60);
    return hours == 0 ? QString::number(minutes) + tail
                      : QString::number(hours) + QLatin1Char(':') + padded(minutes) + tail;
}

QString updateTime(const QDateTime& time) {
    const QDateTime local = time.toLocalTime();
    return local.isValid() ? QLocale().toString(local, QLocale::ShortFormat)
                           : QCoreApplication::translate("DeviceInfoProxy", "N/A", "update time");
}

QString experienceModeName(int mode) {
    return translated(modeOf(mode).name);
}

QString experienceModeDescription(int mode) {
    return translated(modeOf(mode).description);
}

QString modeIsChanging() {
    return translated(QT_TRANSLATE_NOOP("DeviceInfoProxy", "Please wait for mode change..."));
}

QString experienceModeError(int code) {
    for (const ModeError& known : modeErrors) {
        if (code >= known.first && code <= known.last) {
            const QString text = translated(known.text);
            return code == 0 ? text : text.arg(code);
        }
    }
    return translated(otherError).arg(code);
}

// The states are on the scale of the services: 0 stopped, 1 error, 2 in progress, 3 good.
QString softwareHealthHint(int status) {
    switch (status) {
    case 3:
        return {};
    case 2:
        return translated(QT_TRANSLATE_NOOP("DeviceInfoProxy", "It is starting. Please wait a moment."));
    case 1:
        return translated(QT_TRANSLATE_NOOP(
            "DeviceInfoProxy", "Restart your PC. If this does not help, reinstall the Quivera software."));
    case 0:
        return translated(
            QT_TRANSLATE_NOOP("DeviceInfoProxy", "It is not running. Restart the Quivera app or your PC."));
    default:
        return translated(
            QT_TRANSLATE_NOOP("DeviceInfoProxy", "Update your app to learn what this state means."));
    }
}

} // namespace orvex::DisplayTexts
