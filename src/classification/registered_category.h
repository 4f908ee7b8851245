#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>

#include "base/tagged_string.h"
#include "classification/category.h"
#include "classification/first_registrations.h"
#include "platform/api/applications.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// The category of an application that registers these categories of the desktop menu standard, main and
/// additional ones, in any order. Nothing if none of them says what kind of application it is.
[[nodiscard]] std::optional<Category> categoryOfRegistered(std::span<const std::string> registered);

/// What the desktop says of applications that the built-in table does not name. What an application
/// registered when it was first met holds for good ("registered.json"): time that was booked to it must not
/// count as something else because its package was removed or updated since. One that was unknown is asked
/// for again once the desktop may have it. Main thread only.
class RegisteredCategories final {
public:
    /// Reads the file. All three must outlive it.
    RegisteredCategories(platform::FileSystem& files, platform::Log& log,
                         platform::Applications& applications)
        : applications_(applications), registrations_(files, log) {}

    /// Nothing for an application that is not registered, or that registers nothing of use.
    [[nodiscard]] std::optional<Category> category(const AppId& app);

    /// Writes the file if an application was met that it does not have.
    void flush() { registrations_.flush(); }

    /// Lets `disk` write the file again if it has gone missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) { registrations_.restoreMissingOn(disk); }

private:
    struct Answer {
        std::optional<Category> category;
        std::uint64_t revision = 0;  ///< of the registry that was asked
    };

    [[nodiscard]] std::optional<Category> lookUp(const AppId& app);

    platform::Applications& applications_;
    FirstRegistrations registrations_;
    std::unordered_map<AppId, Answer> answers_;
};

}  // namespace tidewatch
