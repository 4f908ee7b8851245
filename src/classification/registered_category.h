#pragma once

#include <optional>
#include <span>
#include <string>
#include <unordered_map>

#include "base/named_string.h"
#include "classification/category.h"
#include "platform/api/workspace.h"

namespace tidewatch {

/// The category of an application that registers these categories of the desktop menu standard, main and
/// additional ones, in any order. Nothing if none of them says what kind of application it is.
[[nodiscard]] std::optional<Category> categoryOfRegistered(std::span<const std::string> registered);

/// What the desktop says of applications that the built-in table does not name. Each is asked for once in
/// the life of this object. Main thread only.
class RegisteredCategories final {
public:
    /// `workspace` must outlive it.
    explicit RegisteredCategories(const platform::Workspace& workspace) : workspace_(workspace) {}

    /// Nothing for an application that is not registered, or that registers nothing of use.
    [[nodiscard]] std::optional<Category> category(const AppId& app) const;

private:
    const platform::Workspace& workspace_;
    mutable std::unordered_map<AppId, std::optional<Category>> known_;
};

}  // namespace tidewatch
