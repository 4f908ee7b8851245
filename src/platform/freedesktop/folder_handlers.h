#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tidewatch::platform {

/// The mimeapps.list files of the XDG base directory variables, in order of precedence.
[[nodiscard]] std::vector<std::string> standardRegistrationLists();

/// The ids, without ".desktop", of the applications registered for folders in such a list, preferred ones
/// first.
[[nodiscard]] std::vector<std::string> folderHandlers(std::string_view list);

}  // namespace tidewatch::platform
