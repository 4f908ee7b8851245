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

/// Maps the desktop menu categories of an application, in any order, to ours. Returns nullopt if none of them
/// is specific enough.
[[nodiscard]] std::optional<Category> categoryOfRegistered(std::span<const std::string> registered);

/// The categories of applications that are not in the built-in table. The registration at the time an
/// application was first seen applies for good ("registered.json"): booked time must not be reclassified
/// because its package was removed or updated. Unknown applications are looked up again when the registry has
/// changed. Main thread only.
class RegisteredCategories final {
public:
    /// Reads the file. All three must outlive it.
    RegisteredCategories(platform::FileSystem& files, platform::Log& log,
                         platform::Applications& applications)
        : applications_(applications), registrations_(files, log) {}

    /// Returns nullopt for an application without a usable registration.
    [[nodiscard]] std::optional<Category> category(const AppId& app);

    /// Writes the file if new applications were seen.
    void flush() { registrations_.flush(); }

    /// Rewrites the file on `disk` if it is missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) { registrations_.restoreMissingOn(disk); }

private:
    struct Answer {
        std::optional<Category> category;
        std::uint64_t revision = 0;  ///< of the registry at the lookup
    };

    [[nodiscard]] std::optional<Category> lookUp(const AppId& app);

    platform::Applications& applications_;
    FirstRegistrations registrations_;
    std::unordered_map<AppId, Answer> answers_;
};

}  // namespace tidewatch
