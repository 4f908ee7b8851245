#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "base/seconds.h"
#include "core/column.h"
#include "core/string_interner.h"
#include "core/string_pool.h"

namespace tidewatch {

/// Seconds under paths of one to three strings: a tree whose inner nodes are maps and whose leaves are
/// counters.
///
/// Siblings are in bytewise order. All nodes of a level are stored in one flat sequence, each branch with the
/// index of its first child; the strings of the first level (days, hours, buckets) are stored once each,
/// those below (applications, projects) recur and are interned. Ten years of ten-minute buckets take about 6
/// MB.
///
/// Lookup is logarithmic in the number of siblings, and constant for the last one, which is the usual case
/// while time advances. Insertion is linear in what follows, thus cheap at the end.
///
/// Copying is cheap (copy on write): a later change copies chunks of some kilobytes.
///
/// Invalid UTF-8 is stored in its repaired form (see utf8.h), so that everything can be written and read
/// back. Not thread-safe; copies may be used on other threads.
class CounterRecord final {
public:
    using Index = std::uint32_t;
    using Path = std::span<const std::string_view>;

    /// A range of siblings: their indices on their level.
    struct Range {
        Index begin = 0;
        Index end = 0;
        [[nodiscard]] Index size() const { return end - begin; }
    };

    /// `depth` is the length of every path, 1 to 3.
    explicit CounterRecord(std::size_t depth) : inner_(depth - 1) {}

    [[nodiscard]] std::size_t depth() const { return inner_.size() + 1; }

    /// The counter at `path`, 0 if there is none; creates no node.
    [[nodiscard]] Seconds seconds(Path path) const;

    /// Sets the counter at `path`, creating missing nodes. Returns whether that changed anything.
    bool set(Path path, Seconds seconds);

    /// Adds to the counter at `path`, creating missing nodes. An overflow aborts the process.
    void add(Path path, Seconds seconds);

    /// The nodes of the first level.
    [[nodiscard]] Range top() const { return {0, size(0)}; }

    /// The children of a branch, which are on `level` + 1.
    [[nodiscard]] Range children(std::size_t level, Index branch) const {
        const auto& first = inner_[level].firstChildren;
        return {first[branch], branch + 1 < first.size() ? first[branch + 1] : size(level + 1)};
    }

    [[nodiscard]] std::optional<Index> find(std::size_t level, Range siblings, std::string_view text) const;

    /// Valid until the record is modified.
    [[nodiscard]] std::string_view text(std::size_t level, Index node) const {
        return textOf(level, textId(level, node));
    }

    /// The id of the node's interned text, 0 to nameCount() - 1; not for the first level.
    [[nodiscard]] std::uint32_t nameId(std::size_t level, Index node) const { return textId(level, node); }
    [[nodiscard]] std::string_view name(std::uint32_t nameId) const { return names_[nameId]; }
    [[nodiscard]] std::uint32_t nameCount() const { return names_.size(); }

    /// The counter of a node of the last level.
    [[nodiscard]] Seconds seconds(Index leaf) const { return Seconds(counters_[leaf]); }

    /// The leaves are stored in chunks of this size: leaf i is number i % leafChunkSize of one.
    static constexpr std::size_t leafChunkSize = PackedColumn<std::int64_t>::chunkSize;

    /// Copies the name ids and counters of a chunk of leaves; see LeafReader.
    void readLeaves(std::size_t chunk, std::array<std::uint32_t, leafChunkSize>& nameIds,
                    std::array<std::int64_t, leafChunkSize>& counters) const {
        leafTexts_.readChunk(chunk, nameIds);
        counters_.readChunk(chunk, counters);
    }

    /// For loading a record node by node in document order: appends a node on `level` under the last node of
    /// the level above. Valid UTF-8 only. finishLoading() must be called before any lookup.
    void appendBranch(std::size_t level, std::string_view text);
    void appendLeaf(std::string_view text, Seconds seconds);

    /// Sorts appended nodes. Of siblings with the same text the last one wins, with its own children only.
    void finishLoading();

private:
    // Texts are indices into keys_ on the first level, into names_ below.
    struct InnerLevel {
        Column<std::uint32_t> texts;
        Column<Index> firstChildren;
    };
    struct Place {
        Index index;
        bool found;
    };

    [[nodiscard]] std::size_t lastLevel() const { return inner_.size(); }
    [[nodiscard]] Index size(std::size_t level) const {
        return static_cast<Index>(level == lastLevel() ? leafTexts_.size() : inner_[level].texts.size());
    }
    [[nodiscard]] std::uint32_t textId(std::size_t level, Index node) const {
        return level == lastLevel() ? leafTexts_[node] : inner_[level].texts[node];
    }
    [[nodiscard]] std::string_view textOf(std::size_t level, std::uint32_t id) const {
        return level == 0 ? keys_[id] : names_[id];
    }
    [[nodiscard]] Place search(std::size_t level, Range siblings, std::string_view text) const;
    [[nodiscard]] std::optional<Index> findLeaf(Path path) const;
    struct Leaf {
        Index index;
        bool isNew;
    };

    Leaf makeLeaf(Path path);
    void insert(std::size_t level, Index index, std::string_view text);
    std::uint32_t idInOrder(std::size_t level, std::string_view text);
    std::uint32_t storeText(std::size_t level, std::string_view text);
    void copyInOrder(std::size_t level, Range siblings, CounterRecord& target) const;

    std::vector<InnerLevel> inner_;
    PackedColumn<std::uint32_t> leafTexts_;
    PackedColumn<std::int64_t> counters_;
    StringPool keys_;
    StringInterner names_;
    // While loading: the text that was last appended on a level under the current parent.
    std::array<std::optional<std::uint32_t>, 3> lastAppended_;
    bool inOrder_ = true;
};

}  // namespace tidewatch
