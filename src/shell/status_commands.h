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

/// The commands of the status menu. Main thread only.
class StatusCommands final {
public:
    /// All of it must outlive this object.
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
        /// Shows or hides the floating clock.
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

    /// A failure is shown in a dialog.
    void revealData();
    void toggleLoginItem();

    void quit();

private:
    void writeDay();

    Dependencies dependencies_;
};

}  // namespace tidewatch
