#pragma once

#include <string>
#include <utility>
#include <variant>

namespace tidewatch {

/// Why an operation failed, in words for the log or the caller.
struct Error {
    std::string message;
};

/// A value or an error: an Error, or a type derived from it with more detail.
template <class T, class E = Error>
class [[nodiscard]] Result final {
public:
    Result(T value) : state_(std::move(value)) {}
    Result(E error) : state_(std::move(error)) {}

    [[nodiscard]] bool ok() const noexcept { return std::holds_alternative<T>(state_); }
    explicit operator bool() const noexcept { return ok(); }

    /// Only if ok().
    [[nodiscard]] const T& value() const& { return std::get<T>(state_); }
    [[nodiscard]] T&& value() && { return std::get<T>(std::move(state_)); }

    /// Only if not ok().
    [[nodiscard]] const E& error() const { return std::get<E>(state_); }

private:
    std::variant<T, E> state_;
};

/// The result of an operation that returns nothing on success.
using Status = Result<std::monostate>;

[[nodiscard]] inline Status success() {
    return std::monostate{};
}

}  // namespace tidewatch
