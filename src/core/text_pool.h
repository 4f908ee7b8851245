#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/gentle_growth.h"

namespace tidewatch {

/// Many short texts in one block of memory, numbered from 0 in the order in which they were added.
class TextPool final {
public:
    std::uint32_t add(std::string_view text) {
        bytes_.append(text);
        ends_.push_back(static_cast<std::uint32_t>(bytes_.size()));
        return static_cast<std::uint32_t>(ends_.size() - 1);
    }

    /// Valid until the next add().
    [[nodiscard]] std::string_view operator[](std::uint32_t id) const {
        const auto begin = id == 0 ? 0 : ends_[id - 1];
        return {bytes_.data() + begin, ends_[id] - begin};
    }

    void trim() {
        trimGently(bytes_);
        trimGently(ends_);
    }

private:
    std::string bytes_;
    std::vector<std::uint32_t> ends_;
};

}  // namespace tidewatch
