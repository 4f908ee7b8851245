#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "shell/views/stats_scene.h"
#include "shell/views/widgets/gadgets.h"
#include "ui/ui_scene.h"

namespace tidewatch {

inline constexpr std::int64_t kilobyte = 1024;
inline constexpr std::int64_t gigabyte = kilobyte * kilobyte * kilobyte;

inline const platform::PrimaryLink wireless{"wlp2s0", platform::WirelessLink{"CasaNube 5G", -58}};
inline const platform::PrimaryLink wired{"enp3s0", std::nullopt};

/// The gadgets on a fake machine; initially nothing is booked, and nothing is known of the machine.
class GadgetsWorld : public StatsWorld {
public:
    /// Books to the application "code", which is productive, "supertuxkart", which distracts, and
    /// "org.gnome.Nautilus", which does neither.
    void bookTiers(std::int64_t productive, std::int64_t distracting, std::int64_t neutral = 0);

    /// Weeks of realistic work, with an active project.
    void useBelievableDay();
    void activateProject(const char* name, const char* colorHex);

    /// A day of 24 hours in each counter, in the goal even more, and long names.
    void useLongestTexts();

    struct Machine {
        std::optional<platform::PrimaryLink> link = wireless;
        std::int64_t volume = 118 * gigabyte;  ///< the free quarter of it; 0 for none
        platform::InterfaceBytes traffic{.received = 10'000'000, .sent = 800'000};  ///< in two seconds
    };
    /// A machine with a load of 37 %.
    void useMachine(const Machine& machine);
    void useMachine() { useMachine(Machine()); }

    /// A speed test: up to its half, whole, or with a failure.
    void startSpeedTest();
    void failSpeedTest();
    void completeSpeedTest();

    /// Shows the widget of this kind.
    GadgetPresenter& appear(WidgetKind kind);

    [[nodiscard]] WidgetHub& hub() { return services_.widgets.hub; }
    [[nodiscard]] GadgetPresenter& gadget(WidgetKind kind) { return gadgets_.presenter(kind); }

    Gadgets gadgets_{services_.widgets.hub, gamesSources(machine_.platform, services_, keys_)};
};

/// Containers in a window with a wallpaper, in any theme.
class GadgetsScene : public GadgetsWorld, public UiScene {
public:
    ~GadgetsScene() override;

    using UiScene::theme_;

    /// Recreates the window with one widget, in its corner, scaled by `scale`.
    void showWidget(WidgetKind kind, double scale = 1);

    /// Recreates the window with all of them beside one another on this wallpaper, a QML gradient or colour.
    void showAll(const QString& wallpaper, double scale = 1);
};

}  // namespace tidewatch
