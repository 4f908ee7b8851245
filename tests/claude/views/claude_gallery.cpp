// The tab "Claude" and the sidebar's card.

#include "tests/claude/views/claude_scene.h"
#include "ui/gallery.h"

namespace tidewatch {
namespace {

const std::vector<GalleryState<ClaudeScene>> states{
    {"empty", [](ClaudeScene& scene) { scene.ClaudeViewsWorld::show(); }},
    {"quiet",
     [](ClaudeScene& scene) {
         scene.useLastMonth();
         scene.ClaudeViewsWorld::show();
     }},
    {"used",
     [](ClaudeScene& scene) {
         scene.useForMonths();
         scene.ClaudeViewsWorld::show();
     }},
};

}  // namespace

void paint(Gallery& gallery) {
    gallery.paintStates(states, [&](ClaudeScene& scene, const QString& state, const QString& theme) {
        const auto name = state + "-" + theme;
        for (const int width : {820, 1130}) {
            scene.showTab({width, 1060});
            gallery.save(scene.picture(), QString("%1-%2").arg(name).arg(width));
        }
        scene.showCard();
        gallery.save(scene.picture(), name + "-card");
    });
}

}  // namespace tidewatch
