#pragma once

#include <string>
#include <string_view>

namespace tidewatch {

/// `text`, UTF-8, with every letter that has a lower-case form in that form, whatever the user's language;
/// one character gives one. Bytes that are not valid UTF-8 stay as they are.
[[nodiscard]] std::string lowerCased(std::string_view text);

}  // namespace tidewatch
