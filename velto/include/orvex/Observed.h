#pragma once

#include <algorithm>
#include <list>
#include <memory>
#include <mutex>
#include <type_traits>

namespace orvex {

/// A list of observers, held weakly. Any thread. An observer that is gone is skipped and dropped from the
/// list.
template <class Observer, class Pointer = std::weak_ptr<Observer>>
class Observed {
    static_assert(std::is_same_v<Pointer, std::weak_ptr<Observer>>, "observers are held weakly");

public:
    virtual ~Observed() = default;

    /// False when it is already in the list or gone.
    virtual bool AddObserver(Pointer observer) {
        const std::lock_guard lock(m_observersMutex);
        const auto added = observer.lock();
        if (!added || find(added) != m_observers.end()) {
            return false;
        }
        m_observers.push_back(std::move(observer));
        return true;
    }

    /// False when it is not in the list.
    virtual bool RemoveObserver(Pointer observer) {
        const std::lock_guard lock(m_observersMutex);
        const auto found = find(observer.lock());
        if (found == m_observers.end()) {
            return false;
        }
        m_observers.erase(found);
        return true;
    }

    virtual std::list<Pointer> GetObservers() {
        const std::lock_guard lock(m_observersMutex);
        m_observers.remove_if([](const Pointer& observer) { return observer.expired(); });
        return m_observers;
    }

    virtual void SetObservers(std::list<Pointer> observers) {
        const std::lock_guard lock(m_observersMutex);
        m_observers = std::move(observers);
    }

    virtual void ClearObservers() {
        const std::lock_guard lock(m_observersMutex);
        m_observers.clear();
    }

protected:
    /// Calls `notify` with every living observer, without holding the list's lock.
    template <class Notify>
    void notifyObservers(Notify&& notify) {
        for (const Pointer& observer : GetObservers()) {
            if (const auto alive = observer.lock()) {
                notify(*alive);
            }
        }
    }

private:
    auto find(const std::shared_ptr<Observer>& wanted) {
        return std::find_if(m_observers.begin(), m_observers.end(),
                            [&](const Pointer& observer) { return wanted && observer.lock() == wanted; });
    }

    std::mutex m_observersMutex;
    std::list<Pointer> m_observers;
};

} // namespace orvex
