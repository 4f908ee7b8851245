#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/broadcaster.h"
#include "core/daily_store.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/api/desktop.h"
#include "platform/api/login_item.h"
#include "shell/surfaces.h"
#include "shell/themes/theme_controller.h"

namespace tidewatch {

/// What the rows of the status menu do. Main thread only.
class StatusCommands final {
public:
    /// What the commands work on; all of it must outlive this object.
    struct Dependencies {
        Settings& settings;
        const Broadcaster& broadcaster;
        TimerEngine& engine;
        DailyStore& days;
        ThemeController& theme;
        platform::Desktop& desktop;
        platform::LoginItem& loginItem;
        Dialogs& dialogs;
        StatisticsWindow& statistics;
        /// Puts the floating clock on the screen or takes it away.
        std::function<void()> toggleVisible;
        std::function<void()> refreshStatusBarTitle;
        std::function<void()> terminate;
    };

    explicit StatusCommands(Dependencies dependencies);

    void switchTheme(std::string_view id);
    void switchSize(double scale);
    void switchIdle(std::int64_t seconds);
    void switchDayStart(int hour);
    void toggleVisible();
    void resetToday();

    void showStats();

    /// A failure is told in a dialog.
    void revealData();
    void toggleLoginItem();

    void quit();

private:
    void writeDay();

    Dependencies dependencies_;
};

}  // namespace tidewatch
