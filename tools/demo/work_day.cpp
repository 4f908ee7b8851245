#include "tools/demo/work_day.h"

#include <algorithm>
#include <array>
#include <span>

#include "tools/support/random.h"

namespace tidewatch::demo {

namespace {

using std::chrono::minutes;

/// An activity for a while.
enum class Activity { mail, coding, drawing, writing, figures, meeting, drifting, playing };

struct Ingredient {
    std::string_view app;
    int weight;
};

constexpr std::array mail{Ingredient{"thunderbird", 60}, Ingredient{"com.slack.Slack", 22},
                          Ingredient{"firefox", 10}, Ingredient{"org.gnome.Calendar", 8}};
constexpr std::array coding{
    Ingredient{"code", 56},           Ingredient{"org.gnome.Terminal", 20}, Ingredient{"firefox", 13},
    Ingredient{"com.slack.Slack", 5}, Ingredient{"com.spotify.Client", 2},  Ingredient{"build-monitor", 4}};
constexpr std::array drawing{Ingredient{"org.inkscape.Inkscape", 44}, Ingredient{"org.gimp.GIMP", 34},
                             Ingredient{"firefox", 12}, Ingredient{"org.gnome.Nautilus", 6},
                             Ingredient{"com.spotify.Client", 4}};
constexpr std::array writing{Ingredient{"org.libreoffice.libreoffice-writer", 68}, Ingredient{"firefox", 16},
                             Ingredient{"org.gnome.Evince", 16}};
constexpr std::array figures{Ingredient{"org.libreoffice.libreoffice-calc", 64},
                             Ingredient{"org.gnome.Nautilus", 14}, Ingredient{"thunderbird", 22}};
constexpr std::array meeting{Ingredient{"us.zoom.Zoom", 86}, Ingredient{"org.gnome.Calendar", 6},
                             Ingredient{"com.slack.Slack", 8}};
constexpr std::array drifting{Ingredient{"firefox", 30}, Ingredient{"org.telegram.desktop", 42},
                              Ingredient{"org.videolan.VLC", 20}, Ingredient{"com.spotify.Client", 8}};
constexpr std::array playing{Ingredient{"steam", 66}, Ingredient{"org.videolan.VLC", 24},
                             Ingredient{"org.telegram.desktop", 10}};

std::span<const Ingredient> ingredients(Activity activity) {
    switch (activity) {
        case Activity::mail:
            return mail;
        case Activity::coding:
            return coding;
        case Activity::drawing:
            return drawing;
        case Activity::writing:
            return writing;
        case Activity::figures:
            return figures;
        case Activity::meeting:
            return meeting;
        case Activity::drifting:
            return drifting;
        case Activity::playing:
            break;
    }
    return playing;
}

bool isForAProject(Activity activity) {
    return activity == Activity::coding || activity == Activity::drawing || activity == Activity::writing ||
           activity == Activity::figures;
}

class Day final {
public:
    explicit Day(const DayPlan& plan) : plan_(plan), random_(plan.seed), clock_(plan.start) {}

    std::vector<WorkedMinute> live() {
        spend(Activity::mail, random_.between(15, 35), Share::none);
        if (plan_.meeting) spend(Activity::meeting, random_.between(25, 50), Share::first);
        workUntil(plan_.target * random_.between(20, 28) / 100, Share::first);
        spend(Activity::drifting, random_.between(5, 14), Share::none);
        workUntil(plan_.target * random_.between(45, 55) / 100, Share::first);
        clock_ += minutes(random_.between(50, 80));
        spend(Activity::drifting, drift(), Share::none);
        workUntil(plan_.target, Share::second);
        if (plan_.evening) {
            clock_ = std::max(clock_ + minutes(60), minutes(20 * 60 + random_.between(15, 75)));
            spend(Activity::playing, random_.between(25, 80), Share::none);
        }
        return std::move(worked_);
    }

private:
    [[nodiscard]] int drift() {
        switch (plan_.mood) {
            case Mood::good:
                return random_.between(4, 12);
            case Mood::usual:
                return random_.between(12, 30);
            case Mood::poor:
                break;
        }
        return random_.between(70, 120);
    }

    [[nodiscard]] Activity nextWork() {
        const int throwOfTheDie = random_.between(1, 100);
        if (throwOfTheDie <= 44) return Activity::coding;
        if (throwOfTheDie <= 64) return Activity::drawing;
        if (throwOfTheDie <= 78) return Activity::writing;
        return throwOfTheDie <= 88 ? Activity::figures : Activity::mail;
    }

    void workUntil(minutes target, Share share) {
        while (minutes(static_cast<int>(worked_.size())) < target && clock_ < lastMinute) {
            const auto activity = nextWork();
            const int left = static_cast<int>((target - minutes(static_cast<int>(worked_.size()))).count());
            spend(activity, std::min(random_.between(18, 75), left + 5),
                  isForAProject(activity) ? share : Share::none);
            if (random_.percent(45)) clock_ += minutes(random_.between(4, 16));
            if (plan_.mood == Mood::poor && random_.percent(35)) {
                spend(Activity::drifting, random_.between(8, 25), Share::none);
            }
        }
    }

    void spend(Activity activity, int howLong, Share share) {
        const auto mix = ingredients(activity);
        auto app = pick(mix);
        for (int minute = 0; minute < howLong && clock_ < lastMinute; ++minute, clock_ += minutes(1)) {
            if (random_.percent(24)) app = pick(mix);
            const int seconds = random_.percent(80) ? 60 : random_.between(18, 59);
            worked_.push_back({clock_, seconds, app, share});
        }
    }

    [[nodiscard]] std::string_view pick(std::span<const Ingredient> mix) {
        int place = random_.between(1, 100);
        for (const auto& ingredient : mix) {
            place -= ingredient.weight;
            if (place <= 0) return ingredient.app;
        }
        return mix.back().app;
    }

    static constexpr minutes lastMinute{24 * 60};

    const DayPlan& plan_;
    Random random_;
    minutes clock_;
    std::vector<WorkedMinute> worked_;
};

}  // namespace

std::vector<WorkedMinute> liveThrough(const DayPlan& plan) {
    return Day(plan).live();
}

}  // namespace tidewatch::demo
