// Crashes in the way that its second argument names, after setting up crash handling in the folder that its
// first argument names; with "plain-" before the way, without. Its observer notes in the file "told" whether
// the report was there when it was told.
#include <Velto/ApplicationInfo.h>
#include <Velto/CrashHandler.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace {

namespace fs = std::filesystem;
using Velto::ApplicationInfo;

__attribute__((no_sanitize("address", "thread", "undefined"))) void touchForeignMemory() {
    // Out of the optimiser's sight, which would refuse to compile what it knows to fault.
    static volatile std::uintptr_t nobodysAddress = 64;
    *reinterpret_cast<volatile int*>(nobodysAddress) =
        1; // NOLINT(performance-no-int-to-ptr): the fault itself
}

volatile int depthLimit = 1 << 30;

__attribute__((no_sanitize("address", "thread", "undefined"), noinline)) int overflowStack(int depth) {
    volatile char room[4096] = {};
    room[depth % 4096] = 1;
    return depth >= depthLimit ? 0 : overflowStack(depth + 1) + room[0];
}

class NotingObserver : public Velto::ICrashHandlerObserver {
public:
    explicit NotingObserver(bool faultsItself)
        : m_faultsItself(faultsItself) {}

    void handleCrash() override {
        const bool reportIsThere =
            std::any_of(fs::directory_iterator(ApplicationInfo::DataPath()), {}, [](const auto& entry) {
                return entry.path().extension() == ".txt" && fs::file_size(entry) > 0;
            });
        std::ofstream(ApplicationInfo::DataPath() / "told", std::ios::app)
            << (reportIsThere ? "report;" : "none;");
        if (m_faultsItself) {
            touchForeignMemory();
        }
    }

private:
    bool m_faultsItself;
};

void crash(std::string_view how) {
    if (how == "memory" || how == "observer") {
        touchForeignMemory();
    } else if (how == "thread") {
        std::thread(&touchForeignMemory).join();
    } else if (how == "abort") {
        std::abort();
    } else if (how == "exception") {
        throw std::runtime_error("seat 3 on fire");
    } else if (how == "overflow") {
        std::exit(overflowStack(0));
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    constexpr std::string_view plainMark = "plain-";
    std::string_view how = argv[2];
    const bool isPlain = how.substr(0, plainMark.size()) == plainMark;
    how.remove_prefix(isPlain ? plainMark.size() : 0);
    ApplicationInfo::Init("Crash Test", u8"Zoë-席", "Orvex", "1.2.3", argv[1],
                          ApplicationInfo::DataFolderType::User, argc, argv);
    const auto handler = Velto::CrashHandler::getInstance();
    handler->configure({fs::path("CrashTest"), ApplicationInfo::DataPath(), !isPlain});
    handler->initialize();
    handler->addObserver(std::make_shared<NotingObserver>(how == "observer"));
    crash(how);
    return 0;
}
