#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/api/applications.h"

namespace tidewatch::platform {

/// What the text of a desktop entry tells of its application. Nothing if it holds no entry, or one that is
/// marked as removed. What the entry leaves out is empty.
///
/// The name is taken in Spanish where the entry has it: as spoken in the country of `locale` ("es_MX" and
/// the like, with or without what follows; others count as no country), else as spoken anywhere, else in the
/// first country named, else the name without a language.
[[nodiscard]] std::optional<ApplicationInfo> parseDesktopEntry(std::string_view text,
                                                               std::string_view locale);

}  // namespace tidewatch::platform
