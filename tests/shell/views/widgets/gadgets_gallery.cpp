// The eight widgets of the desktop in every state, on three wallpapers, and at three scales.

#include "shell/views/widgets/gadgets_scene.h"
#include "ui/gallery.h"

namespace tidewatch {
namespace {

struct Wallpaper {
    const char* name;
    const char* item;
};

constexpr std::array wallpapers{
    Wallpaper{"light", R"(Rectangle { anchors.fill: parent; color: "#f2f4f6" })"},
    Wallpaper{"dark", R"(Rectangle { anchors.fill: parent; color: "#101418" })"},
    Wallpaper{"coloured", R"(Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "#e8743b" }
            GradientStop { position: 0.5; color: "#c43a7c" }
            GradientStop { position: 1; color: "#2f6fd0" }
        }
    })"},
};

const std::vector<GalleryState<GadgetsScene>> states{
    {"empty", [](GadgetsScene&) {}},
    {"one",
     [](GadgetsScene& scene) {
         scene.bookTiers(4000, 0);
         scene.startSpeedTest();
         scene.useMachine({.link = wired, .volume = 0});
     }},
    {"believable",
     [](GadgetsScene& scene) {
         scene.useBelievableDay();
         scene.completeSpeedTest();
         scene.useMachine();
     }},
    {"long", [](GadgetsScene& scene) { scene.useLongestTexts(); }},
};

}  // namespace

void paint(Gallery& gallery) {
    gallery.paintStates(states, [&](GadgetsScene& scene, const QString& state, const QString& theme) {
        for (const auto& [name, item] : wallpapers) {
            scene.showAll(item);
            gallery.save(scene.picture(), QString("%1-%2-%3").arg(theme, state, name));
        }
        for (const double scale : {0.5, 2.0}) {
            scene.showAll(wallpapers[1].item, scale);
            gallery.save(scene.picture(), QString("%1-%2-at-%3").arg(theme, state).arg(scale));
        }
    });
}

}  // namespace tidewatch
