#include "core/Areas.h"
#include "core/CrashReporting.h"

#include <Velto/ApplicationInfo.h>
#include <Velto/CrashHandler.h>

#include <cxxabi.h>
#include <spdlog/logger.h>

#include <atomic>
#include <cstdlib>
#include <deque>
#include <exception>
#include <limits>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>

namespace Velto {

namespace {

struct Observation {
    std::shared_ptr<ICrashHandlerObserver> observer;
    std::atomic<Observation*> next{nullptr};
};

/// Grows under a lock and is read without one.
class Observers {
public:
    Observers() = default;
    // A fault later than this, in the last steps of the process, tells nobody.
    ~Observers() { m_first = nullptr; }
    Observers(const Observers&) = delete;
    Observers& operator=(const Observers&) = delete;

    void add(std::shared_ptr<ICrashHandlerObserver> observer) {
        const std::lock_guard lock(m_mutex);
        Observation* const last = m_observations.empty() ? nullptr : &m_observations.back();
        Observation& added = m_observations.emplace_back();
        added.observer = std::move(observer);
        (last ? last->next : m_first).store(&added, std::memory_order_release);
    }

    const Observation* first() const noexcept { return m_first.load(std::memory_order_acquire); }

private:
    std::mutex m_mutex;
    std::deque<Observation> m_observations;
    std::atomic<Observation*> m_first{nullptr};
};

Observers& observers() {
    static Observers list;
    return list;
}

struct Setup {
    std::mutex mutex;
    std::optional<CrashHandler::Configuration> configuration;
    bool initialized = false;
};

Setup& setup() {
    static Setup values;
    return values;
}

std::atomic<std::uint64_t> firstThread{0};
std::atomic<bool> reported{false};

} // namespace

CrashHandler::Configuration::Configuration(std::filesystem::path applicationName,
                                           std::filesystem::path folder, bool isEnabled)
    : name(std::move(applicationName))
    , dataPath(std::move(folder))
    , enabled(isEnabled) {}

std::shared_ptr<CrashHandler> CrashHandler::getInstance() {
    static const std::shared_ptr<CrashHandler> instance(new CrashHandler);
    return instance;
}

bool CrashHandler::configure(const Configuration& configuration) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(configuration.dataPath, ignored)) {
        return false;
    }
    const std::lock_guard lock(setup().mutex);
    setup().configuration = configuration;
    return true;
}

bool CrashHandler::initialize() {
    const std::lock_guard lock(setup().mutex);
    if (!setup().configuration || setup().initialized) {
        return false;
    }
    // The list must exist before the first fault: a function-local static takes a lock when it is made.
    observers();
    setup().initialized = !setup().configuration->enabled ||
                          detail::installCrashHandlers(*setup().configuration, detail::crashHeadline());
    if (!setup().initialized) {
        detail::areaLogger(detail::Area::CoreUtils)->error("The crash handlers cannot be installed");
    }
    return setup().initialized;
}

void CrashHandler::addObserver(std::shared_ptr<ICrashHandlerObserver> observer) {
    if (observer) {
        observers().add(std::move(observer));
    }
}

namespace detail {

CrashTurn takeCrashTurn(std::uint64_t threadId) noexcept {
    std::uint64_t nobody = 0;
    if (firstThread.compare_exchange_strong(nobody, threadId)) {
        return CrashTurn::Report;
    }
    return reported || nobody == threadId ? CrashTurn::End : CrashTurn::Wait;
}

void tellCrashObservers() noexcept {
    reported = true;
    for (const Observation* entry = observers().first(); entry;
         entry = entry->next.load(std::memory_order_acquire)) {
        try {
            entry->observer->handleCrash();
        } catch (...) {
            // The process ends anyway, and with the first fault's own cause.
            continue;
        }
    }
}

std::string crashHeadline() {
    const std::string name = ApplicationInfo::Name();
    return (name.empty() ? "Program" : name) + " " + ApplicationInfo::Version();
}

std::string terminationCause() noexcept {
    try {
        const std::type_info* type = abi::__cxa_current_exception_type();
        if (!type) {
            return "std::terminate without an exception";
        }
        int status = 0;
        const std::unique_ptr<char, decltype(&std::free)> readable(
            abi::__cxa_demangle(type->name(), nullptr, nullptr, &status), &std::free);
        std::string cause = std::string("uncaught exception ") + (readable ? readable.get() : type->name());
        try {
            std::rethrow_exception(std::current_exception());
        } catch (const std::exception& e) {
            cause += std::string(": ") + e.what();
        } catch (...) {
            return cause;
        }
        return cause;
    } catch (...) {
        return {};
    }
}

CrashText& CrashText::operator<<(const char* text) noexcept {
    while (*text != '\0' && m_size + 1 < m_text.size()) {
        m_text[m_size++] = *text++;
    }
    return *this;
}

CrashText& CrashText::operator<<(std::uint64_t number) noexcept {
    return padded(number, 1);
}

CrashText& CrashText::padded(std::uint64_t number, int width) noexcept {
    std::array<char, std::numeric_limits<std::uint64_t>::digits10 + 2> digits{};
    std::size_t first = digits.size() - 1;
    while (first > 0 && (number != 0 || width > 0)) {
        digits[--first] = static_cast<char>('0' + number % 10);
        number /= 10;
        --width;
    }
    return *this << &digits[first];
}

CrashText& CrashText::hex(std::uint64_t number) noexcept {
    std::array<char, 17> digits{};
    std::size_t first = digits.size() - 1;
    do {
        digits[--first] = "0123456789abcdef"[number % 16];
        number /= 16;
    } while (number != 0);
    return *this << "0x" << &digits[first];
}

CrashText& CrashText::utcTime(std::int64_t secondsSince1970) noexcept {
    // gmtime is not allowed in a signal handler. Days are counted from 1 March of the year 0, so that the
    // leap day is the last of its year.
    constexpr std::int64_t secondsPerDay = 86400;
    constexpr std::uint64_t daysBefore1970 = 719468;
    constexpr std::uint64_t daysPer400Years = 146097;
    const auto seconds = static_cast<std::uint64_t>(secondsSince1970 % secondsPerDay);
    const std::uint64_t days = static_cast<std::uint64_t>(secondsSince1970 / secondsPerDay) + daysBefore1970;
    const std::uint64_t day400 = days % daysPer400Years;
    const std::uint64_t year400 = (day400 - day400 / 1460 + day400 / 36524 - day400 / 146096) / 365;
    const std::uint64_t dayOfYear = day400 - (365 * year400 + year400 / 4 - year400 / 100);
    const std::uint64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const std::uint64_t day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    const std::uint64_t month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    const std::uint64_t year = days / daysPer400Years * 400 + year400 + (month <= 2 ? 1 : 0);
    padded(year, 4).padded(month, 2).padded(day, 2) << "T";
    return padded(seconds / 3600, 2).padded(seconds / 60 % 60, 2).padded(seconds % 60, 2) << "Z";
}

} // namespace detail

} // namespace Velto
