#pragma once

#include "Exchange.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"

#include <memory>
#include <string>

inline std::string probe(const std::string& id, const std::string& service = "KELM") {
    return R"({"service":")" + service + R"(","version":1,"id":")" + id + "\"}";
}

/// Units that hear probes on a port of their own.
class Discovery : public testing::Test {
protected:
    std::unique_ptr<Simulator::SimulatedUnit> started(const std::string& address = "127.0.0.1",
                                                      const std::string& name = {}) {
        Simulator::UnitOptions options;
        options.address = address;
        options.name = name;
        auto unit = std::make_unique<Simulator::SimulatedUnit>(m_host, options);
        unit->start();
        return unit;
    }

    const std::uint16_t m_port = freeUdpPort();
    Simulator::SimulatorHost m_host{Simulator::HostOptions{true, m_port}};
    Prober m_prober;
};
