#include "core/Areas.h"

#include <Velto/ComponentConfigurator.h>

#include <spdlog/logger.h>

#include <algorithm>
#include <exception>
#include <string>
#include <system_error>

namespace Velto {

namespace {

struct Registration {
    std::string name;
    std::unique_ptr<Component> (*create)();
};

std::vector<Registration>& registrations() {
    // Made at first use: registration happens in static initialisation, in no particular order.
    static std::vector<Registration> list;
    return list;
}

/// A component may throw what the standard library throws when the system refuses a thread or memory.
template <class Step>
Component::Result guarded(const char* stepName, Step&& step) {
    try {
        return step();
    } catch (const std::exception& e) {
        detail::areaLogger(detail::Area::Threading)
            ->error("Component step {} failed: {}", stepName, e.what());
    }
    return Component::Result::FatalFailure;
}

Component::Result worse(Component::Result a, Component::Result b) {
    return std::max(a, b);
}

template <class Iterator>
Component::Result drive(Iterator first, Iterator last, const char* stepName,
                        Component::Result (Component::*step)()) {
    auto result = Component::Result::Success;
    for (; first != last; ++first) {
        Component& component = **first;
        result = worse(result, guarded(stepName, [&component, step] { return (component.*step)(); }));
    }
    return result;
}

} // namespace

void RegisterComponent(const char* name, std::unique_ptr<Component> (*create)()) {
    auto& list = registrations();
    const bool known =
        std::any_of(list.begin(), list.end(), [name](const Registration& r) { return r.name == name; });
    if (!known) {
        list.push_back({name, create});
    }
}

ComponentConfigurator::ComponentConfigurator() = default;

ComponentConfigurator::~ComponentConfigurator() {
    if (m_running) {
        Suspend();
        Shutdown();
    }
    releaseComponents();
}

Component::Result ComponentConfigurator::Init(bool resume) {
    if (!m_components.empty()) {
        return Component::Result::ConfigurationFailure;
    }
    auto result = Component::Result::Success;
    for (const Registration& registration : registrations()) {
        result = worse(result, guarded("Init", [this, &registration] {
                           auto component = registration.create();
                           if (!component) {
                               return Component::Result::ConfigurationFailure;
                           }
                           m_components.push_back(std::move(component));
                           return m_components.back()->Init();
                       }));
    }
    return resume ? worse(result, Resume()) : result;
}

Component::Result ComponentConfigurator::Resume() {
    m_running = true;
    return drive(m_components.begin(), m_components.end(), "Resume", &Component::Resume);
}

Component::Result ComponentConfigurator::Suspend() {
    m_running = false;
    return drive(m_components.rbegin(), m_components.rend(), "Suspend", &Component::Suspend);
}

Component::Result ComponentConfigurator::Shutdown() {
    const auto result = drive(m_components.rbegin(), m_components.rend(), "Shutdown", &Component::Shutdown);
    releaseComponents();
    m_running = false;
    return result;
}

void ComponentConfigurator::releaseComponents() {
    // A vector's own order would be the order of creation.
    while (!m_components.empty()) {
        m_components.pop_back();
    }
}

} // namespace Velto
