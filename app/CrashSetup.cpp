#include "app/CrashSetup.h"

#include "app/CrashHandlerImpl.h"

#include <Velto/ApplicationInfo.h>
#include <Velto/CrashHandler.h>

#include <filesystem>
#include <memory>

namespace orvex {

void setUpCrashHandling() {
    const std::filesystem::path dataPath = Velto::ApplicationInfo::DataPath();
    const auto name = std::filesystem::u8path(Velto::ApplicationInfo::NormalizedName());
    const auto handler = Velto::CrashHandler::getInstance();
    handler->configure(Velto::CrashHandler::Configuration(name, dataPath, true));
    handler->initialize();
    handler->addObserver(std::make_shared<Velto::CrashHandlerImpl>());
}

} // namespace orvex
