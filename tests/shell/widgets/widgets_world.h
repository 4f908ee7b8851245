#pragma once

#include <string>

#include "app/program_world.h"

namespace tidewatch {

/// The whole program, with widgets on its fake screen.
class WidgetsWorld : public ProgramWorld {
protected:
    void store(const std::string& widgetsJson) {
        machine_.files.put("/home/user/.tidewatch/widgets.json", widgetsJson);
    }
    [[nodiscard]] std::string stored() const { return file("widgets.json"); }

    [[nodiscard]] FakeFloatingWindow& window(WidgetKind kind) { return surfaces_.widget(kind); }
    [[nodiscard]] WidgetHub& hub() { return program_->services.widgets.hub; }

    /// Presses at one point, releases at another, and lets what this posts run.
    void drag(WidgetKind kind, platform::Point from, platform::Point to) {
        const auto& gestures = window(kind).gestures();
        gestures.mouseDown(from);
        gestures.mouseDragged(to);
        gestures.mouseUp(to);
        machine_.mainLoop.run();
    }
    void click(WidgetKind kind) { drag(kind, {100, 100}, {100, 100}); }

    void toggle(WidgetKind kind) { ASSERT_TRUE(choose(std::string(title(kind)))); }
};

}  // namespace tidewatch
