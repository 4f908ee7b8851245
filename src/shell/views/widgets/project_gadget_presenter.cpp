#include "shell/views/widgets/project_gadget_presenter.h"

#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

QColor colorOf(const WidgetHub::ActiveProject& project) {
    const auto color = Project{.id = {}, .name = {}, .colorHex = project.colorHex}.color();
    return {color.red, color.green, color.blue};
}

}  // namespace

ProjectGadgetPresenter::ProjectGadgetPresenter(WidgetHub& hub)
    : GadgetPresenter(WidgetKind::project, hub.changed), hub_(hub) {}

QString ProjectGadgetPresenter::accessibleText() const {
    return hasProject() ? name() + ": " + time() + " " + timeTitle() : noProject();
}

void ProjectGadgetPresenter::update() {
    ShownProject now;
    if (const auto active = hub_.activeProject()) {
        now = {.exists = true,
               .name = nameText(active->name),
               .color = colorOf(*active),
               .time = timeText(active->seconds)};
    }
    change(this, project_, now, &ProjectGadgetPresenter::projectChanged);
}

}  // namespace tidewatch
