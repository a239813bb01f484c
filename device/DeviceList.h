#pragma once

#include <QHash>
#include <QString>

#include <memory>
#include <shared_mutex>
#include <vector>

namespace orvex {

class DeviceInfo;

/// The known units in the order of their names, without regard to case; of one uid there is one.
///
/// Changed on the GUI thread, read there or, by `size` and `at`, on any.
class DeviceList {
public:
    using Unit = std::shared_ptr<DeviceInfo>;

    int size() const;
    Unit at(int index) const; ///< none when out of range

    const std::vector<Unit>& units() const { return m_units; }
    Unit find(const QString& uid) const { return m_byUid.value(uid); } ///< none when not listed
    int positionOf(const Unit& unit) const;                            ///< -1 when not listed

    /// Behind the units of the same name. Returns its position.
    int insert(Unit unit);
    /// A position within the list.
    void removeAt(int index);

private:
    mutable std::shared_mutex m_lock; ///< held where the two below change, and by readers on other threads
    std::vector<Unit> m_units;
    QHash<QString, Unit> m_byUid;
};

} // namespace orvex
