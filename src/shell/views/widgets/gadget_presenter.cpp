#include "shell/views/widgets/gadget_presenter.h"

#include <array>

#include "classification/enum_table.h"
#include "ui/models/pane.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {
namespace {

struct GadgetLook {
    WidgetKind value;
    const char* view;
    const char* heading;
};

constexpr auto looks = enumTable(std::array{
    GadgetLook{WidgetKind::productivity, "ProductivityGadget", "PRODUCTIVIDAD HOY"},
    GadgetLook{WidgetKind::system, "SystemGadget", "SISTEMA"},
    GadgetLook{WidgetKind::streak, "StreakGadget", "RACHA & ANÁLISIS"},
    GadgetLook{WidgetKind::goals, "GoalsGadget", "METAS & ESTRELLAS"},
    GadgetLook{WidgetKind::speed, "SpeedGadget", "SPEED TEST"},
    GadgetLook{WidgetKind::project, "ProjectGadget", "PROYECTO ACTIVO"},
    GadgetLook{WidgetKind::topApps, "TopAppsGadget", "TOP APPS HOY"},
    GadgetLook{WidgetKind::arcade, "ArcadeGadget", ""},
});

}  // namespace

GadgetPresenter::GadgetPresenter(WidgetKind kind, Signal<>& changes)
    : kind_(kind), changes_(changes.connect([this] { updateIfVisible(); })) {}

QUrl GadgetPresenter::view() const {
    return viewUrl("Tidewatch.Shell", rowOf(looks, kind_).view);
}

QString GadgetPresenter::symbol() const {
    return text(menuIcon(kind_));
}

QString GadgetPresenter::heading() const {
    return rowOf(looks, kind_).heading;
}

QString GadgetPresenter::accessibleName() const {
    return text(title(kind_));
}

void GadgetPresenter::setTranslucent(bool translucent) {
    change(this, translucent_, translucent, &GadgetPresenter::translucentChanged);
}

}  // namespace tidewatch
