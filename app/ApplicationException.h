#pragma once

#include <stdexcept>

namespace orvex {

/// What this program throws when a step cannot be done; its text is fit for the log or standard error.
class ApplicationException : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace orvex
