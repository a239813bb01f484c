#pragma once

#include <QDateTime>
#include <QString>

/// The translated texts that stand for a unit's codes and numbers. Any thread.
namespace orvex::DisplayTexts {

/// "m:ss" or "h:mm:ss"; "--:--" below zero.
QString mediaTime(int seconds);

/// Local time in the locale's short form; "N/A" when invalid.
QString updateTime(const QDateTime& time);

QString experienceModeName(int mode);
QString experienceModeDescription(int mode);
/// Stands for the description while there is no mode to describe.
QString modeIsChanging();
/// `code` as the unit reports it with its modes, 0 for none.
QString experienceModeError(int code);

/// What the user can do about a program's state; empty when it is well.
QString softwareHealthHint(int status);

} // namespace orvex::DisplayTexts
