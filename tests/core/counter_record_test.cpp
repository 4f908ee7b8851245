#include "core/counter_record.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "core/counter_json.h"

namespace tidewatch {
namespace {

using Words = std::vector<std::string>;
// A record as a simple model: every path and its counter. Paths sort as the nested maps would.
using Model = std::map<Words, std::int64_t>;

std::vector<std::string_view> views(const Words& words) {
    return {words.begin(), words.end()};
}

void readInto(Model& model, const CounterRecord& record, std::size_t level, CounterRecord::Range siblings,
              Words& path) {
    for (auto node = siblings.begin; node < siblings.end; ++node) {
        path.emplace_back(record.text(level, node));
        if (level + 1 == record.depth()) {
            model[path] = record.seconds(node).count();
        } else {
            readInto(model, record, level + 1, record.children(level, node), path);
        }
        path.pop_back();
    }
}

Model modelOf(const CounterRecord& record) {
    Model model;
    Words path;
    readInto(model, record, 0, record.top(), path);
    return model;
}

class CounterRecordOfDepth : public testing::TestWithParam<std::size_t> {
protected:
    std::mt19937 random{20260115};

    Words randomPath() {
        Words path;
        for (std::size_t level = 0; level < GetParam(); ++level) {
            path.push_back(std::string(1 + random() % 2, 'a') + std::to_string(random() % (9 - 2 * level)));
        }
        return path;
    }
};

TEST_P(CounterRecordOfDepth, BehavesLikeMapsOfMaps) {
    CounterRecord record(GetParam());
    Model model;
    for (int step = 0; step < 3000; ++step) {
        const auto path = randomPath();
        const auto amount = static_cast<std::int64_t>(random() % 100) - (random() % 10 == 0 ? 1'000'000 : 0);
        if (random() % 3 == 0) {
            record.set(views(path), Seconds(amount));
            model[path] = amount;
        } else {
            record.add(views(path), Seconds(amount));
            model[path] += amount;
        }
        const auto asked = randomPath();
        const auto known = model.find(asked);
        ASSERT_EQ(record.seconds(views(asked)).count(), known == model.end() ? 0 : known->second);
    }
    EXPECT_EQ(modelOf(record), model);
}

TEST_P(CounterRecordOfDepth, IsTheSameAfterAFile) {
    CounterRecord record(GetParam());
    for (int step = 0; step < 500; ++step)
        record.add(views(randomPath()), Seconds(static_cast<std::int64_t>(random() % 100)));
    const auto text = serializeCounters(record);
    auto reread = parseCounters(text, GetParam());
    ASSERT_TRUE(reread);
    EXPECT_EQ(modelOf(*reread), modelOf(record));
    for (int step = 0; step < 500; ++step) {
        const auto path = randomPath();
        record.add(views(path), Seconds(1));
        reread->add(views(path), Seconds(1));
    }
    EXPECT_EQ(serializeCounters(*reread), serializeCounters(record));
}

TEST_P(CounterRecordOfDepth, ReadingAMissingPathCreatesNothing) {
    CounterRecord record(GetParam());
    EXPECT_EQ(record.seconds(views(randomPath())), Seconds());
    EXPECT_EQ(record.top().size(), 0u);
    record.set(views(Words(GetParam(), "a")), Seconds(1));
    EXPECT_EQ(record.seconds(views(Words(GetParam(), "b"))), Seconds());
    EXPECT_EQ(modelOf(record).size(), 1u);
}

TEST_P(CounterRecordOfDepth, AppendedOutOfOrderAndTwiceItIsSortedAndWithoutDuplicates) {
    Model model;
    std::string text = "{";
    for (int i = 0; i < 200; ++i) {
        auto path = randomPath();
        // The top level's members are whole objects: of duplicate keys the last wins.
        std::erase_if(model, [&](const auto& entry) { return entry.first.front() == path.front(); });
        model[path] = i;
        std::string value = std::to_string(i);
        for (std::size_t level = GetParam(); level-- > 0;) {
            value = (level == 0 ? "\"" : "{\"") + path[level] + "\":" + value + (level == 0 ? "" : "}");
        }
        text += (i == 0 ? "" : ",") + value;
    }
    const auto record = parseCounters(text + "}", GetParam());
    ASSERT_TRUE(record);
    EXPECT_EQ(modelOf(*record), model);
}

TEST_P(CounterRecordOfDepth, ACopyStaysAsItWasWhateverIsBookedAfterIt) {
    CounterRecord record(GetParam());
    Model model;
    const auto book = [&](int times) {
        for (int i = 0; i < times; ++i) {
            Words path{"key" + std::to_string(random() % 9000)};
            while (path.size() < GetParam()) path.push_back("app" + std::to_string(random() % 3000));
            record.add(views(path), Seconds(1));
            ++model[path];
        }
    };
    book(9000);  // several chunks of every column
    const auto early = record;
    const auto earlyModel = model;
    book(2000);
    const auto late = record;
    const auto lateModel = model;
    book(500);
    EXPECT_EQ(modelOf(early), earlyModel);
    EXPECT_EQ(modelOf(late), lateModel);
    EXPECT_EQ(modelOf(record), model);
}

INSTANTIATE_TEST_SUITE_P(CounterRecord, CounterRecordOfDepth, testing::Values(1, 2, 3));

TEST(CounterRecord, InvalidUtf8IsRepaired) {
    CounterRecord record(2);
    const std::vector<std::string_view> raw{"day\xFF", "caf\xE9"};
    const std::vector<std::string_view> repaired{"day\xEF\xBF\xBD", "caf\xEF\xBF\xBD"};
    record.add(raw, Seconds(1));
    record.add(repaired, Seconds(1));
    EXPECT_EQ(record.seconds(raw), Seconds(2));
    EXPECT_EQ(record.top().size(), 1u);
    EXPECT_TRUE(parseCounters(serializeCounters(record), 2));
}

TEST(CounterRecord, CountersLeaveAndReenterTheRangeOfAClock) {
    CounterRecord record(1);
    const std::vector<std::string_view> path{"a"};
    for (const std::int64_t value : {std::int64_t(7), std::int64_t(-1), std::int64_t(1) << 31,
                                     std::int64_t(3), std::numeric_limits<std::int64_t>::min()}) {
        record.set(path, Seconds(value));
        EXPECT_EQ(record.seconds(path), Seconds(value));
    }
}

TEST(CounterRecord, SetReturnsWhetherAnythingChanged) {
    CounterRecord record(2);
    const std::vector<std::string_view> path{"a", "b"};
    EXPECT_TRUE(record.set(path, Seconds(0))) << "there was no such counter";
    EXPECT_FALSE(record.set(path, Seconds(0)));
    EXPECT_TRUE(record.set(path, Seconds(5)));
    EXPECT_FALSE(record.set(path, Seconds(5)));
}

TEST(CounterRecordDeathTest, AnOverflowEndsTheProcessWithAMessage) {
    CounterRecord record(1);
    const std::vector<std::string_view> path{"a"};
    record.set(path, Seconds(std::numeric_limits<std::int64_t>::max()));
    EXPECT_DEATH(record.add(path, Seconds(1)), "overflow");
}

}  // namespace
}  // namespace tidewatch
