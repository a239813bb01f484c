#pragma once

#include <QSharedPointer>

#include <algorithm>
#include <memory>
#include <vector>

namespace orvex {

// Records that stand behind pointers are compared by what they hold: a unit that repeats an answer has
// changed nothing, although every answer is parsed into a new object.

template <class T>
bool contentEquals(const T& left, const T& right) {
    return left == right;
}

template <class T>
bool contentEquals(const std::shared_ptr<T>& left, const std::shared_ptr<T>& right) {
    return left == right || (left && right && *left == *right);
}

template <class T>
bool contentEquals(const QSharedPointer<T>& left, const QSharedPointer<T>& right) {
    return left == right || (left && right && *left == *right);
}

template <class T>
bool contentEquals(const std::vector<std::shared_ptr<T>>& left,
                   const std::vector<std::shared_ptr<T>>& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const auto& a, const auto& b) { return contentEquals(a, b); });
}

} // namespace orvex
