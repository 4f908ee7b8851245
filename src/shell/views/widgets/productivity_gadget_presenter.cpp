#include "shell/views/widgets/productivity_gadget_presenter.h"

#include "shell/themes/ochre_palette.h"
#include "ui/style/qt_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

constexpr double lowScore = 0.3;
constexpr double fairScore = 0.6;

QColor colorOf(double score) {
    if (score < lowScore) return toQColor(ochre_palette::distracting);
    return toQColor(score < fairScore ? ochre_palette::amber : ochre_palette::productive);
}

}  // namespace

ProductivityGadgetPresenter::ProductivityGadgetPresenter(WidgetHub& hub)
    : GadgetPresenter(WidgetKind::productivity, hub.changed), hub_(hub) {}

void ProductivityGadgetPresenter::update() {
    const auto now = hub_.todayScore();
    change(this, score_, Score{text(now.displayString()), colorOf(now.score())},
           &ProductivityGadgetPresenter::scoreChanged);
    const auto inTiers = now.productiveSeconds + now.neutralSeconds + now.distractingSeconds;
    const auto bar = [inTiers](const char* label, Seconds seconds, const Color& color) {
        return GadgetBar{.id = label,
                         .value = timeText(seconds),
                         .fraction = share(seconds, inTiers),
                         .color = toQColor(color)};
    };
    bars_.setRows({bar("Productivo", now.productiveSeconds, ochre_palette::productive),
                   bar("Neutral", now.neutralSeconds, ochre_palette::neutral),
                   bar("Distrae", now.distractingSeconds, ochre_palette::distracting)});
}

}  // namespace tidewatch
