#include "core/counter_record.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/utf8.h"

namespace tidewatch {

Seconds CounterRecord::seconds(Path path) const {
    const auto leaf = findLeaf(path);
    return leaf ? seconds(*leaf) : Seconds();
}

bool CounterRecord::set(Path path, Seconds seconds) {
    const auto [leaf, isNew] = makeLeaf(path);
    if (!isNew && this->seconds(leaf) == seconds) return false;
    counters_.set(leaf, seconds.count());
    return true;
}

void CounterRecord::add(Path path, Seconds amount) {
    const auto leaf = makeLeaf(path).index;
    counters_.set(leaf, (seconds(leaf) + amount).count());
}

std::optional<CounterRecord::Index> CounterRecord::find(std::size_t level, Range siblings,
                                                        std::string_view text) const {
    const ValidUtf8 valid(text);
    const auto place = search(level, siblings, valid.text());
    return place.found ? std::optional(place.index) : std::nullopt;
}

void CounterRecord::appendBranch(std::size_t level, std::string_view text) {
    auto& [texts, firstChildren] = inner_[level];
    texts.append(idInOrder(level, text));
    firstChildren.append(size(level + 1));
    lastAppended_[level + 1].reset();
}

void CounterRecord::appendLeaf(std::string_view text, Seconds seconds) {
    leafTexts_.append(idInOrder(lastLevel(), text));
    counters_.append(seconds.count());
}

void CounterRecord::finishLoading() {
    if (inOrder_) return;
    CounterRecord ordered(depth());
    copyInOrder(0, top(), ordered);
    *this = std::move(ordered);
}

CounterRecord::Place CounterRecord::search(std::size_t level, Range siblings, std::string_view wanted) const {
    if (siblings.size() == 0) return {siblings.end, false};
    const auto last = text(level, siblings.end - 1);
    if (wanted == last) return {siblings.end - 1, true};
    if (wanted > last) return {siblings.end, false};

    Index low = siblings.begin;
    Index high = siblings.end - 1;
    while (low < high) {
        const auto middle = low + (high - low) / 2;
        if (text(level, middle) < wanted) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return {low, text(level, low) == wanted};
}

std::optional<CounterRecord::Index> CounterRecord::findLeaf(Path path) const {
    auto siblings = top();
    std::optional<Index> node;
    for (std::size_t level = 0; level < depth(); ++level) {
        node = find(level, siblings, path[level]);
        if (!node) return std::nullopt;
        if (level < lastLevel()) siblings = children(level, *node);
    }
    return node;
}

CounterRecord::Leaf CounterRecord::makeLeaf(Path path) {
    auto siblings = top();
    Index parent = 0;
    for (std::size_t level = 0;; ++level) {
        const ValidUtf8 valid(path[level]);
        const auto place = search(level, siblings, valid.text());
        if (!place.found) {
            insert(level, place.index, valid.text());
            if (level > 0) inner_[level - 1].firstChildren.addFrom(parent + 1, 1);
        }
        if (level == lastLevel()) return {place.index, !place.found};
        parent = place.index;
        siblings = children(level, parent);
    }
}

void CounterRecord::insert(std::size_t level, Index index, std::string_view text) {
    const auto id = storeText(level, text);
    if (level == lastLevel()) {
        leafTexts_.insert(index, id);
        counters_.insert(index, 0);
    } else {
        auto& [texts, firstChildren] = inner_[level];
        firstChildren.insert(index, index == texts.size() ? size(level + 1) : firstChildren[index]);
        texts.insert(index, id);
    }
}

std::uint32_t CounterRecord::idInOrder(std::size_t level, std::string_view text) {
    const auto id = storeText(level, text);
    auto& last = lastAppended_[level];
    if (last && textOf(level, *last) >= text) inOrder_ = false;
    last = id;
    return id;
}

std::uint32_t CounterRecord::storeText(std::size_t level, std::string_view text) {
    return level == 0 ? keys_.add(text) : names_.intern(text);
}

void CounterRecord::copyInOrder(std::size_t level, Range siblings, CounterRecord& target) const {
    std::vector<Index> order(siblings.size());
    std::iota(order.begin(), order.end(), siblings.begin);
    std::ranges::stable_sort(order, {}, [&](Index node) { return text(level, node); });
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto node = order[i];
        if (i + 1 < order.size() && text(level, order[i + 1]) == text(level, node)) continue;
        if (level == lastLevel()) {
            target.appendLeaf(text(level, node), seconds(node));
        } else {
            target.appendBranch(level, text(level, node));
            copyInOrder(level + 1, children(level, node), target);
        }
    }
}

}  // namespace tidewatch
