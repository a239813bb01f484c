#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <memory>
#include <string>

namespace Velto::Messaging {
class Messenger;
}

namespace orvex {

class Communicator;
class DetailedStatusModel;
class DeviceInfoManager;
class DeviceInfoProxy;
class DeviceListModel;
class MediaListModel;
class MediaListProxy;
class SeatListModel;

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
    QObject* deviceProxy() const;
    QObject* seatListModel() const;
    QObject* mediaListModel() const; ///< sorted and filtered
    QObject* detailedStatusModel() const;

    /// Brings the messenger into service. Once, just before the event loop runs.
    void start();

    // For the pages, in the order that the pages know them by.

    /// Sorts the titles by a role of `MediaListModel`; an unknown name changes nothing. What else they are
    /// sorted by depends on the role: the title, and for the coding date also the release date.
    Q_INVOKABLE void sortMediaList(const QString& roleName, Qt::SortOrder order);
    /// Shows the titles that match a regular expression, whatever their case; an empty one shows all.
    Q_INVOKABLE void filterMediaList(const QString& filter);
    /// `filterId` is a value of `DetailedStatusModel::Filter`.
    Q_INVOKABLE void filterDetailedStatusList(int filterId);
    Q_INVOKABLE QString getAppVersion() const;
    // The companion programs: whether each is installed, and starting it. False when it is not or does not
    // start.
    Q_INVOKABLE bool isControlPanelConfigAppValid() const;
    Q_INVOKABLE bool startControlPanelConfigApp() const;
    Q_INVOKABLE bool isCodedGamingConfigAppValid() const;
    Q_INVOKABLE bool startCodedGamingConfigApp() const;
    Q_INVOKABLE bool isAdaptiveGamingConfigAppValid() const;
    Q_INVOKABLE bool startAdaptiveGamingConfigApp() const;
    /// What this program is: "name", "vendor", "copyright" and "license", and in "parts" a list of
    /// those of others it is made of, each with "name", "license", "homePage" and "copyright".
    Q_INVOKABLE QVariantMap getProduct() const;

private:
    const std::string m_hostName;
    std::shared_ptr<Velto::Messaging::Messenger> m_messenger;
    std::shared_ptr<Communicator> m_communicator;
    std::shared_ptr<DeviceInfoManager> m_deviceManager;
    std::shared_ptr<DeviceListModel> m_deviceListModel;
    std::shared_ptr<DeviceInfoProxy> m_deviceProxy;
    std::shared_ptr<SeatListModel> m_seatListModel;
    std::shared_ptr<MediaListModel> m_mediaListModel;
    MediaListProxy* m_mediaProxy; ///< a child of this object
    std::shared_ptr<DetailedStatusModel> m_detailedStatusModel;
};

} // namespace orvex
