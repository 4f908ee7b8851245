#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// The desktop-file id of the sandboxed application of a process, from the sandbox's metadata. Returns
/// nullopt for an unsandboxed process, or one that cannot be inspected. `procDirectory` is for tests.
[[nodiscard]] std::optional<std::string> sandboxedApplication(pid_t process,
                                                              const std::string& procDirectory = "/proc");

/// The application id in the text of a Flatpak information file.
[[nodiscard]] std::optional<std::string> flatpakId(std::string_view information);

/// The desktop-file id ("name_application") in the text of a control-group file of a Snap.
[[nodiscard]] std::optional<std::string> snapId(std::string_view controlGroups);

}  // namespace tidewatch::platform
