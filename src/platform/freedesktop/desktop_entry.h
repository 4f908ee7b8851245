#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/api/applications.h"

namespace tidewatch::platform {

/// Parses the text of a desktop entry. Returns nullopt if it has none, or one marked as hidden. Missing keys
/// are empty.
///
/// The name is the Spanish one if available: for the country of `locale` (such as "es_MX", suffixes ignored),
/// else for no country, else for the first country listed, else the unlocalised name.
[[nodiscard]] std::optional<ApplicationInfo> parseDesktopEntry(std::string_view text,
                                                               std::string_view locale);

}  // namespace tidewatch::platform
