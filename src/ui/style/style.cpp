#include "ui/style/style.h"

#include "shell/themes/builtin_themes.h"
#include "ui/style/contrast.h"
#include "ui/style/fonts.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

Style::Decoration toStyle(Decoration decoration) {
    switch (decoration) {
        case Decoration::none:
            return Style::NoDecoration;
        case Decoration::paperGrain:
            return Style::PaperGrain;
        case Decoration::scanlines:
            return Style::Scanlines;
        case Decoration::liquid:
            return Style::Liquid;
    }
    return Style::NoDecoration;
}

QFont font(FontRole role, double size, Style::Weight weight) {
    const auto fontWeight = [weight] {
        switch (weight) {
            case Style::Light:
                return FontWeight::light;
            case Style::Regular:
                return FontWeight::regular;
            case Style::Medium:
                return FontWeight::medium;
            case Style::Semibold:
                return FontWeight::semibold;
            case Style::Bold:
                return FontWeight::bold;
        }
        return FontWeight::regular;
    };
    return toQFont({role, size, fontWeight()});
}

}  // namespace

Style::Style(QObject* parent) : QObject(parent) {
    apply(ochreTheme().dashboard);
}

Style* Style::of(QQmlEngine& engine) {
    return engine.singletonInstance<Style*>(qmlTypeId("Tidewatch.Ui", 1, 0, "Style"));
}

void Style::follow(ThemeController& controller) {
    following_ = controller.changed.connect([this, &controller] { apply(controller.active().dashboard); });
    apply(controller.active().dashboard);
}

QFont Style::serif(double size, Weight weight) const {
    return font(FontRole::serif, size, weight);
}

QFont Style::mono(double size, Weight weight) const {
    return font(FontRole::mono, size, weight);
}

QFont Style::sans(double size, Weight weight) const {
    return font(FontRole::sans, size, weight);
}

QFont Style::system(double size, Weight weight) const {
    return font(FontRole::system, size, weight);
}

QFont Style::heading() const {
    constexpr double size = 11;
    constexpr double spacing = 1.8;
    auto font = tracked(sans(size, Semibold), spacing);
    font.setCapitalization(QFont::AllUppercase);
    return font;
}

QFont Style::tracked(const QFont& font, double spacing) const {
    auto result = font;
    result.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    return result;
}

QColor Style::legibleOn(const QColor& ground, const QColor& color) const {
    return tidewatch::legibleOn(ground, color);
}

void Style::apply(const DashboardStyle& style) {
    palette_ = Palette(style);
    decoration_ = toStyle(style.decoration);
    appearance_ = style.nsAppearance;
    Q_EMIT themeChanged();
}

}  // namespace tidewatch
