#pragma once

#include <map>

#include "platform/api/user_folders.h"

namespace tidewatch::platform {

/// Folders that the test sets; none at first.
class FakeUserFolders final : public UserFolders {
public:
    [[nodiscard]] std::optional<std::string> path(UserFolder folder) const override {
        const auto found = paths.find(folder);
        return found == paths.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<UserFolder, std::string> paths;
};

}  // namespace tidewatch::platform
