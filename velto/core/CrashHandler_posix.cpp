#include "core/AlternateStack.h"
#include "core/CrashReporting.h"

#include <execinfo.h>
#include <fcntl.h>
#include <pthread.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <exception>
#include <string_view>

namespace Velto::detail {

namespace {

struct FatalSignal {
    int number;
    const char* name;
};

constexpr std::array<FatalSignal, 5> fatalSignals = {
    {{SIGSEGV, "SIGSEGV"}, {SIGBUS, "SIGBUS"}, {SIGFPE, "SIGFPE"}, {SIGILL, "SIGILL"}, {SIGABRT, "SIGABRT"}}};

/// Set before the handlers are installed and never changed.
struct Prepared {
    std::string pathPrefix;
    std::string headline;
};

Prepared& prepared() {
    static Prepared texts;
    return texts;
}
// Read in the handlers instead of the function above, which may take a lock.
const Prepared* preparedTexts = nullptr;

// Observers run on this stack, and one of them opens a message box: a toolkit's event loop needs room. Memory
// that is never touched costs nothing.
constexpr std::size_t stackSize = std::size_t{4} * 1024 * 1024;

std::uint64_t currentThread() noexcept {
    return static_cast<std::uint64_t>(syscall(SYS_gettid));
}

void writeAll(int file, const char* text, std::size_t size) noexcept {
    while (size > 0) {
        const ssize_t written = write(file, text, size);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return;
        }
        text += written;
        size -= static_cast<std::size_t>(written);
    }
}

void writeBacktrace(int file) noexcept {
    std::array<void*, 128> frames{};
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    backtrace_symbols_fd(frames.data(), count, file);
}

void writeReport(const char* cause) noexcept {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    const auto processId = static_cast<std::uint64_t>(getpid());

    static CrashText path;
    path << preparedTexts->pathPrefix.c_str();
    path.utcTime(now.tv_sec) << "-" << processId << ".txt";
    const int opened = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    const int file = opened < 0 ? STDERR_FILENO : opened;

    static CrashText head;
    head << preparedTexts->headline.c_str() << " crashed\nTime: ";
    head.utcTime(now.tv_sec) << "\nProcess: " << processId << "\nThread: " << currentThread()
                             << "\nCause: " << cause << "\nBacktrace:\n";
    writeAll(file, head.c_str(), head.size());
    writeBacktrace(file);
    if (opened < 0) {
        return;
    }
    close(opened);
    static CrashText notice;
    notice << "Crashed (" << cause << "); the report is " << path.c_str() << "\n";
    writeAll(STDERR_FILENO, notice.c_str(), notice.size());
}

void restoreDefault(int signalNumber) noexcept {
    struct sigaction action {};
    action.sa_handler = SIG_DFL;
    sigaction(signalNumber, &action, nullptr);
}

[[noreturn]] void endBySignal(int signalNumber) noexcept {
    restoreDefault(signalNumber);
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, signalNumber);
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    raise(signalNumber);
    _exit(128 + signalNumber);
}

[[noreturn]] void waitForEnd() noexcept {
    for (;;) {
        pause();
    }
}

const char* signalName(int number) noexcept {
    for (const FatalSignal& known : fatalSignals) {
        if (known.number == number) {
            return known.name;
        }
    }
    return "signal";
}

void handleSignal(int number, siginfo_t* info, void* /*context*/) {
    const CrashTurn turn = takeCrashTurn(currentThread());
    if (turn == CrashTurn::Wait) {
        waitForEnd();
    }
    if (turn == CrashTurn::End) {
        endBySignal(number);
    }
    static CrashText cause;
    cause << signalName(number);
    if (info->si_code > 0 && number != SIGABRT) {
        cause << " at address ";
        cause.hex(reinterpret_cast<std::uintptr_t>(info->si_addr));
    }
    writeReport(cause.c_str());
    tellCrashObservers();

    restoreDefault(number);
    if (info->si_code <= 0 || number == SIGABRT) {
        // Sent, not caused by an instruction: nothing raises it again by itself. Pending until we return.
        raise(number);
    }
    // Otherwise the same instruction faults again with its own context, as a core dump should show it.
}

[[noreturn]] void handleTerminate() noexcept {
    const CrashTurn turn = takeCrashTurn(currentThread());
    if (turn == CrashTurn::Wait) {
        waitForEnd();
    }
    if (turn == CrashTurn::Report) {
        writeReport(terminationCause().c_str());
        tellCrashObservers();
    }
    restoreDefault(SIGABRT);
    std::abort();
}

void warmUpBacktrace() {
    // The first call loads a library and allocates; neither is allowed in a handler.
    std::array<void*, 4> frames{};
    backtrace(frames.data(), static_cast<int>(frames.size()));
}

} // namespace

AlternateStack::AlternateStack() {
    void* memory =
        mmap(nullptr, stackSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        return;
    }
    // The lowest page is left without access: an overflow of this stack must not run into foreign memory.
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    mprotect(memory, page, PROT_NONE);
    stack_t stack{};
    stack.ss_sp = static_cast<char*>(memory) + page;
    stack.ss_size = stackSize - page;
    stack_t previous{};
    if (sigaltstack(&stack, &previous) != 0) {
        munmap(memory, stackSize);
        return;
    }
    m_memory = memory;
    if ((previous.ss_flags & SS_DISABLE) == 0) {
        m_previous = previous.ss_sp;
        m_previousSize = previous.ss_size;
    }
}

AlternateStack::~AlternateStack() {
    if (!m_memory) {
        return;
    }
    stack_t stack{};
    stack.ss_sp = m_previous;
    stack.ss_size = m_previousSize;
    stack.ss_flags = m_previous ? 0 : SS_DISABLE;
    sigaltstack(&stack, nullptr);
    munmap(m_memory, stackSize);
}

bool installCrashHandlers(const CrashHandler::Configuration& configuration, const std::string& headline) {
    std::error_code ignored;
    const std::filesystem::path folder = std::filesystem::absolute(configuration.dataPath, ignored);
    prepared() = {(folder / configuration.name).native() + "-crash-", headline};
    preparedTexts = &prepared();
    warmUpBacktrace();
    // For the thread that starts the program, and so for as long as the process lives.
    static const AlternateStack mainStack;

    for (const FatalSignal& fatal : fatalSignals) {
        struct sigaction action {};
        action.sa_sigaction = &handleSignal;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK;
        sigemptyset(&action.sa_mask);
        if (sigaction(fatal.number, &action, nullptr) != 0) {
            return false;
        }
    }
    std::set_terminate(&handleTerminate);
    return true;
}

} // namespace Velto::detail
