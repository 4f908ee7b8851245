#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/api/user_folders.h"

namespace tidewatch::platform {

/// The lines of a user-dirs file: the value of each key, with $HOME replaced by `home`. Values that are
/// neither absolute nor below $HOME are left out, as are lines that are no assignment.
[[nodiscard]] std::map<std::string, std::string> parseUserDirs(std::string_view text,
                                                               const std::string& home);

/// The user's folders according to "user-dirs.dirs" in the configuration directory. What that does not name
/// has its English name in the home directory.
class XdgUserFolders final : public UserFolders {
public:
    XdgUserFolders(std::string home, std::string configDirectory);

    [[nodiscard]] std::optional<std::string> path(UserFolder folder) const override;

private:
    const std::string home_;
    const std::string configDirectory_;
};

}  // namespace tidewatch::platform
