#pragma once

#include <string>
#include <utility>
#include <variant>

namespace tidewatch {

/// Why an operation failed, in words for the log or for whoever asked.
struct Error {
    std::string message;
};

/// A value or the reason why there is none.
template <class T>
class [[nodiscard]] Result final {
public:
    Result(T value) : state_(std::move(value)) {}
    Result(Error error) : state_(std::move(error)) {}

    [[nodiscard]] bool ok() const noexcept { return std::holds_alternative<T>(state_); }
    explicit operator bool() const noexcept { return ok(); }

    /// Only if ok().
    [[nodiscard]] const T& value() const& { return std::get<T>(state_); }
    [[nodiscard]] T&& value() && { return std::get<T>(std::move(state_)); }

    /// Only if not ok().
    [[nodiscard]] const Error& error() const { return std::get<Error>(state_); }

private:
    std::variant<T, Error> state_;
};

/// The outcome of an operation that gives nothing back when it succeeds.
using Outcome = Result<std::monostate>;

[[nodiscard]] inline Outcome success() {
    return std::monostate{};
}

}  // namespace tidewatch
