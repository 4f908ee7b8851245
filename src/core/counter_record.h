#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "base/seconds.h"
#include "core/column.h"
#include "core/counter_column.h"
#include "core/string_interner.h"
#include "core/string_pool.h"

namespace tidewatch {

/// Seconds under paths of one to three texts: a tree whose inner nodes are maps and whose leaves are
/// counters.
///
/// Siblings stand in ascending order of their bytes. All nodes of a level lie side by side in one sequence of
/// flat rows, a branch knowing where its children begin; the texts of the first level (days, hours, buckets)
/// are kept as they are, those below it (applications, projects) recur and are interned. Ten years of
/// ten-minute buckets take some 8 MB.
///
/// Looking a path up costs the logarithm of the siblings, and nothing for the last one, which a clock that
/// goes forward always means. A new path costs what lies behind it, thus next to nothing at the end.
///
/// A copy costs next to nothing and shares all that neither of the two has changed since; what is changed
/// then is copied in pieces of some kilobytes.
///
/// Texts that are not valid UTF-8 are taken as their repaired form (see utf8.h), so that what is kept can
/// always be written and read back. Not safe from several threads; copies may be used on others.
class CounterRecord final {
public:
    using Index = std::uint32_t;
    using Path = std::span<const std::string_view>;

    /// A run of siblings: their places on their level.
    struct Range {
        Index begin = 0;
        Index end = 0;
        [[nodiscard]] Index size() const { return end - begin; }
    };

    /// `depth` is the length of every path, 1 to 3.
    explicit CounterRecord(std::size_t depth) : levels_(depth) {}

    [[nodiscard]] std::size_t depth() const { return levels_.size(); }

    /// The counter at `path`, 0 if there is none; makes no node.
    [[nodiscard]] Seconds seconds(Path path) const;

    /// Replaces the counter at `path`, or makes it and what is missing above it. Whether that changed
    /// anything.
    bool set(Path path, Seconds seconds);

    /// Adds to the counter at `path`; one that is missing counts as 0. An overflow ends the process.
    void add(Path path, Seconds seconds);

    /// The nodes of the first level.
    [[nodiscard]] Range top() const { return {0, size(0)}; }

    /// The children of a branch; they lie on the level below, `level` + 1.
    [[nodiscard]] Range children(std::size_t level, Index branch) const {
        const auto& first = levels_[level].firstChildren;
        return {first[branch], branch + 1 < first.size() ? first[branch + 1] : size(level + 1)};
    }

    [[nodiscard]] std::optional<Index> find(std::size_t level, Range siblings, std::string_view text) const;

    /// Valid until the record changes.
    [[nodiscard]] std::string_view text(std::size_t level, Index node) const {
        const auto id = levels_[level].texts[node];
        return level == 0 ? keys_[id] : names_[id];
    }

    /// A number that stands for the node's text on every level but the first, from 0 to nameCount() - 1.
    [[nodiscard]] std::uint32_t nameId(std::size_t level, Index node) const {
        return levels_[level].texts[node];
    }
    [[nodiscard]] std::string_view name(std::uint32_t nameId) const { return names_[nameId]; }
    [[nodiscard]] std::uint32_t nameCount() const { return names_.size(); }

    /// The counter of a node of the last level.
    [[nodiscard]] Seconds seconds(Index leaf) const { return Seconds(counters_[leaf]); }

    /// For building a whole record, node by node as they stand in a text: a new last node of `level` under
    /// the last node above it. Valid UTF-8 only. To be followed by finishLoading() before anything is looked
    /// up.
    void appendBranch(std::size_t level, std::string_view text);
    void appendLeaf(std::string_view text, Seconds seconds);

    /// Brings appended nodes into order. Of siblings with the same text the one
    /// appended last stays, with its own children only.
    void finishLoading();

private:
    struct Level {
        Column<std::uint32_t> texts;  // in keys_ on the first level, in names_ below it
        Column<Index> firstChildren;  // empty on the last level
    };
    struct Place {
        Index index;
        bool found;
    };

    [[nodiscard]] std::size_t lastLevel() const { return levels_.size() - 1; }
    [[nodiscard]] Index size(std::size_t level) const {
        return static_cast<Index>(levels_[level].texts.size());
    }
    [[nodiscard]] Place search(std::size_t level, Range siblings, std::string_view text) const;
    [[nodiscard]] std::optional<Index> findLeaf(Path path) const;
    struct Leaf {
        Index index;
        bool isNew;
    };

    Leaf makeLeaf(Path path);
    void insert(std::size_t level, Index index, std::string_view text);
    void append(std::size_t level, std::string_view text);
    std::uint32_t storeText(std::size_t level, std::string_view text);
    void copyInOrder(std::size_t level, Range siblings, CounterRecord& target) const;

    std::vector<Level> levels_;
    CounterColumn counters_;
    StringPool keys_;
    StringInterner names_;
    bool inOrder_ = true;
};

}  // namespace tidewatch
