#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tidewatch::platform {

/// The lists in which desktops and users register what opens a type of file, the most important first, as
/// the base-directory variables name them.
[[nodiscard]] std::vector<std::string> standardRegistrationLists();

/// The ids, without ".desktop", of the applications that a list of that kind names for folders, the
/// preferred first.
[[nodiscard]] std::vector<std::string> folderHandlers(std::string_view list);

}  // namespace tidewatch::platform
