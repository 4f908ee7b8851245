#pragma once

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
/// those below (applications, projects) recur and are interned. Ten years of ten-minute buckets take about 5
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
    explicit CounterRecord(std::size_t depth) : levels_(depth) {}

    [[nodiscard]] std::size_t depth() const { return levels_.size(); }

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
        const auto& first = levels_[level].firstChildren;
        return {first[branch], branch + 1 < first.size() ? first[branch + 1] : size(level + 1)};
    }

    [[nodiscard]] std::optional<Index> find(std::size_t level, Range siblings, std::string_view text) const;

    /// Valid until the record is modified.
    [[nodiscard]] std::string_view text(std::size_t level, Index node) const {
        const auto id = levels_[level].texts[node];
        return level == 0 ? keys_[id] : names_[id];
    }

    /// The id of the node's interned text, 0 to nameCount() - 1; not for the first level.
    [[nodiscard]] std::uint32_t nameId(std::size_t level, Index node) const {
        return levels_[level].texts[node];
    }
    [[nodiscard]] std::string_view name(std::uint32_t nameId) const { return names_[nameId]; }
    [[nodiscard]] std::uint32_t nameCount() const { return names_.size(); }

    /// The counter of a node of the last level.
    [[nodiscard]] Seconds seconds(Index leaf) const { return Seconds(counters_[leaf]); }

    /// Calls `visit(std::uint32_t nameId, Seconds seconds)` for each node of a range on the last level. Much
    /// faster than looking them up one by one.
    template <class Visitor>
    void forEachLeaf(Range leaves, Visitor&& visit) const {
        Column<std::uint32_t>::Buffer textBuffer;
        Column<std::int64_t>::Buffer counterBuffer;
        for (std::size_t next = leaves.begin; next < leaves.end;) {
            const auto texts = levels_.back().texts.read(next, leaves.end, textBuffer);
            const auto counters = counters_.read(next, leaves.end, counterBuffer);
            for (std::size_t i = 0; i < texts.size(); ++i) visit(texts[i], Seconds(counters[i]));
            next += texts.size();
        }
    }

    /// For loading a record node by node in document order: appends a node on `level` under the last node of
    /// the level above. Valid UTF-8 only. finishLoading() must be called before any lookup.
    void appendBranch(std::size_t level, std::string_view text);
    void appendLeaf(std::string_view text, Seconds seconds);

    /// Sorts appended nodes. Of siblings with the same text the last one wins, with its own children only.
    void finishLoading();

private:
    struct Level {
        Column<std::uint32_t> texts;  // indices into keys_ on the first level, into names_ below
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
    Column<std::int64_t> counters_;
    StringPool keys_;
    StringInterner names_;
    bool inOrder_ = true;
};

}  // namespace tidewatch
