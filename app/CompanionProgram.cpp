#include "app/CompanionProgram.h"

#include "app/CompanionSettings.h"

#include <QFileInfo>
#include <QProcess>

#include <utility>

namespace orvex {

namespace {

bool isProgramFile(const QString& path) {
    return !path.isEmpty() && QFileInfo(path).isFile();
}

} // namespace

CompanionProgram::CompanionProgram(QString valueName)
    : m_valueName(std::move(valueName)) {}

bool CompanionProgram::isInstalled() const {
    return isProgramFile(companionPath(m_valueName));
}

bool CompanionProgram::start() const {
    const QString path = companionPath(m_valueName);
    return isProgramFile(path) && QProcess::startDetached(path, {});
}

} // namespace orvex
