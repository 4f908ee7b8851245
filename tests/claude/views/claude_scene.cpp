#include "tests/claude/views/claude_scene.h"

#include <fmt/format.h>

#include <array>
#include <chrono>

namespace tidewatch {
namespace {

constexpr auto tabWindow = R"(
import Tidewatch.Claude

Item {
    id: window
    required property ClaudePresenter presenter

    anchors.fill: parent

    DashboardBackground { anchors.fill: parent }
    ClaudeTab { objectName: "tab"; anchors.fill: parent; title: "Claude"; presenter: window.presenter }
}
)";

constexpr auto cardWindow = R"(
import Tidewatch.Claude

Item {
    id: window
    required property ClaudeCardPresenter presenter

    anchors.fill: parent

    DashboardBackground { anchors.fill: parent }
    ClaudeSidebarCard { objectName: "card"; x: 8; y: 8; width: 204; presenter: window.presenter }
}
)";

}  // namespace

void ClaudeViewsWorld::useForMonths() {
    constexpr std::array models{"claude-opus-4-7", "claude-opus-4-7", "claude-sonnet-4-6",
                                "claude-haiku-4-5"};
    const auto now = machine_.clock.now();
    std::string lines;
    int count = 0;
    for (int day = 0; day < 70; ++day) {
        if (day % 7 == 3) continue;
        for (int hour = 1; hour < 12; hour += 2) {
            const auto civil = civilTime(now - std::chrono::hours(24 * day + hour), std::chrono::seconds(0));
            const auto stamp =
                fmt::format("{:04}-{:02}-{:02}T{:02}:10:00Z", static_cast<int>(civil.date.year()),
                            static_cast<unsigned>(civil.date.month()),
                            static_cast<unsigned>(civil.date.day()), civil.hour);
            lines += test::LogEntry{stamp, 40 + count % 7, 9000 + 3000 * (count % 9),
                                    20000, 300000,         models[static_cast<std::size_t>(count % 4)]}
                         .line();
            ++count;
        }
    }
    machine_.putLog("project/session.jsonl", lines);
    machine_.files.put(machine_.historyJson,
                       serializeMonthHistory({{"2025-12", 61, 155, 20, 700, 8000, 100}}).value());
}

void ClaudeViewsWorld::useLastMonth() {
    machine_.putLog("a.jsonl", test::LogEntry{"2026-02-11T11:00:00", 5, 60000}.line());
}

void ClaudeViewsWorld::show() {
    tab_.setVisible(true);
    card_.setVisible(true);
    machine_.mainLoop.run();
}

void ClaudeScene::showTab(QSize size) {
    UiScene::show(tabWindow, size, {{"presenter", QVariant::fromValue(&tab_)}});
}

void ClaudeScene::showCard() {
    UiScene::show(cardWindow, {220, 330}, {{"presenter", QVariant::fromValue(&card_)}});
}

}  // namespace tidewatch
