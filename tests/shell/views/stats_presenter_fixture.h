#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "shell/views/stats_scene.h"

namespace tidewatch {

/// The statistics window's models, with what the tests of its presenters share.
struct StatsPresenterTest : testing::Test, StatsWorld {
    void showTab(int tab) {
        presenter_.selectTab(tab);
        appear();
    }

    [[nodiscard]] DayKey daysAgo(int days) const {
        return services_.counting.days.dayKey(machine_.clock.now() - std::chrono::hours(24 * days));
    }

    /// A day with this many productive and distracting seconds.
    void bookScore(const DayKey& day, int productive, int distracting) {
        if (productive > 0) book("code", day, 9, 0, productive);
        if (distracting > 0) book("supertuxkart", day, 9, 10, distracting);
    }

    [[nodiscard]] std::string comparison() { return dashboard_.overview()->comparison().toStdString(); }
};

}  // namespace tidewatch
