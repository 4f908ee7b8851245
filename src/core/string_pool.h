#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/copy_on_write.h"

namespace tidewatch {

/// Many short strings in few blocks of memory, numbered from 0 in insertion order. Copy-on-write; not
/// thread-safe, but copies may be used on other threads.
class StringPool final {
public:
    std::uint32_t add(std::string_view text) {
        if (size_ % textsInBlock == 0) blocks_.emplace_back();
        auto& block = blocks_.back().edit();
        block.bytes.append(text);
        block.ends.push_back(static_cast<std::uint32_t>(block.bytes.size()));
        if (block.ends.size() == textsInBlock) {
            block.bytes.shrink_to_fit();
            block.ends.shrink_to_fit();
        }
        return size_++;
    }

    /// Valid until the next add().
    [[nodiscard]] std::string_view operator[](std::uint32_t id) const {
        const auto& [bytes, ends] = *blocks_[id / textsInBlock];
        const auto place = id % textsInBlock;
        const auto begin = place == 0 ? 0 : ends[place - 1];
        return {bytes.data() + begin, ends[place] - begin};
    }

private:
    static constexpr std::uint32_t textsInBlock = 1024;

    struct Block {
        std::string bytes;
        std::vector<std::uint32_t> ends;
    };

    std::vector<CopyOnWrite<Block>> blocks_;
    std::uint32_t size_ = 0;
};

}  // namespace tidewatch
