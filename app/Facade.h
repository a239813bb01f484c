#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <string>

namespace Velto::Messaging {
class Messenger;
}

namespace orvex {

class Communicator;
class DeviceInfoManager;
class DeviceListModel;

/// The root of the program's objects: makes the messenger, the core and the models, wires them, and offers
/// the user interface what concerns the program as a whole. Published as "api". GUI thread.
class Facade : public QObject, public std::enable_shared_from_this<Facade> {
    Q_OBJECT

public:
    /// `hostName` names the one unit to connect to; empty finds units on the network. Used as typed.
    explicit Facade(std::string hostName);
    /// Callbacks from the network have stopped before any of the objects goes.
    ~Facade() override;
    Facade(const Facade&) = delete;
    Facade& operator=(const Facade&) = delete;

    // The objects that are published to the user interface.
    QObject* deviceManager() const;
    QObject* deviceListModel() const;

    /// Brings the messenger into service. Once, just before the event loop runs.
    void start();

    Q_INVOKABLE QString getAppVersion() const;

private:
    const std::string m_hostName;
    std::shared_ptr<Velto::Messaging::Messenger> m_messenger;
    std::shared_ptr<Communicator> m_communicator;
    std::shared_ptr<DeviceInfoManager> m_deviceManager;
    std::shared_ptr<DeviceListModel> m_deviceListModel;
};

} // namespace orvex
