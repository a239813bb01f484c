#include "device/DeviceList.h"

#include "device/DeviceInfo.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace orvex {

int DeviceList::size() const {
    const std::shared_lock lock(m_lock);
    return static_cast<int>(m_units.size());
}

DeviceList::Unit DeviceList::at(int index) const {
    const std::shared_lock lock(m_lock);
    const bool isListed = index >= 0 && index < static_cast<int>(m_units.size());
    return isListed ? m_units[static_cast<std::size_t>(index)] : nullptr;
}

int DeviceList::positionOf(const Unit& unit) const {
    const auto found = std::find(m_units.begin(), m_units.end(), unit);
    return unit && found != m_units.end() ? static_cast<int>(found - m_units.begin()) : -1;
}

int DeviceList::insert(Unit unit) {
    const auto place = std::upper_bound(m_units.begin(), m_units.end(), unit->name(),
                                        [](const QString& wanted, const Unit& listed) {
                                            return wanted.compare(listed->name(), Qt::CaseInsensitive) < 0;
                                        });
    const int index = static_cast<int>(place - m_units.begin());
    const std::unique_lock lock(m_lock);
    m_byUid.insert(unit->uid(), unit);
    m_units.insert(place, std::move(unit));
    return index;
}

void DeviceList::removeAt(int index) {
    const std::unique_lock lock(m_lock);
    const auto place = m_units.begin() + index;
    m_byUid.remove((*place)->uid());
    m_units.erase(place);
}

} // namespace orvex
