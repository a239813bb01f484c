#pragma once

#include <Velto/Component.h>

#include <memory>
#include <vector>

namespace Velto {

/// Drives every component that registered itself before `Init`: in the order of registration through `Init`
/// and `Resume`, in the opposite order through `Suspend` and `Shutdown`. Main thread only.
/// Each step goes on to the other components after a failure and returns the worst result.
class ComponentConfigurator {
public:
    ComponentConfigurator();
    /// Suspends and shuts down what was resumed and still runs; components that were never resumed just go.
    ~ComponentConfigurator();
    ComponentConfigurator(const ComponentConfigurator&) = delete;
    ComponentConfigurator& operator=(const ComponentConfigurator&) = delete;

    /// Creates and initialises the registered components; `resume` true also resumes them at once.
    Component::Result Init(bool resume);
    Component::Result Resume();
    Component::Result Suspend();
    Component::Result Shutdown();

private:
    void releaseComponents();

    std::vector<std::unique_ptr<Component>> m_components;
    bool m_running = false;
};

/// Makes a component known to the next `ComponentConfigurator::Init`. A second registration under the same
/// name is ignored. `create` makes the component. Static initialisation or main thread.
void RegisterComponent(const char* name, std::unique_ptr<Component> (*create)());

} // namespace Velto

/// Register the two components of this library (discovery and communication). Meant for the program's static
/// initialisation.
extern "C" void VeltoExportQAutoDiscoveryComponent();
extern "C" void VeltoExportZCommComponent();
