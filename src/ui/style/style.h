#pragma once

#include <QFont>
#include <QObject>
#include <QQmlEngine>

#include "base/signal.h"
#include "shell/themes/theme_controller.h"
#include "ui/style/metrics.h"
#include "ui/style/palette.h"

namespace tidewatch {

/// The style shared by all views: the active theme's palette, metrics and the brand's fonts. One per engine,
/// created by it on first use; uses the first theme until follow() is called.
class Style final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(tidewatch::Palette palette READ palette NOTIFY themeChanged FINAL)
    Q_PROPERTY(Decoration decoration READ decoration NOTIFY themeChanged FINAL)
    Q_PROPERTY(bool dark READ dark NOTIFY themeChanged FINAL)
    Q_PROPERTY(tidewatch::Metrics metrics READ metrics CONSTANT FINAL)
    Q_PROPERTY(double liquidDecorationIntensity READ liquidIntensity CONSTANT FINAL)

public:
    enum Decoration { NoDecoration, PaperGrain, Scanlines, Liquid };
    Q_ENUM(Decoration)
    enum Weight { Light, Regular, Medium, Semibold, Bold };
    Q_ENUM(Weight)

    explicit Style(QObject* parent = nullptr);

    /// The engine's instance, owned by the engine. Null if the module is not imported.
    [[nodiscard]] static Style* of(QQmlEngine& engine);

    /// Applies the active theme of `controller`, which must outlive this object, now and on changes.
    void follow(ThemeController& controller);

    [[nodiscard]] const Palette& palette() const { return palette_; }
    [[nodiscard]] Decoration decoration() const { return decoration_; }
    [[nodiscard]] bool dark() const { return appearance_ == Appearance::dark; }
    [[nodiscard]] Metrics metrics() const { return {}; }
    [[nodiscard]] double liquidIntensity() const { return liquidDecorationIntensity; }

    /// Fonts of the brand and of the desktop, `size` in pixels.
    Q_INVOKABLE [[nodiscard]] QFont serif(double size, tidewatch::Style::Weight weight) const;
    Q_INVOKABLE [[nodiscard]] QFont mono(double size, tidewatch::Style::Weight weight) const;
    Q_INVOKABLE [[nodiscard]] QFont sans(double size, tidewatch::Style::Weight weight) const;
    Q_INVOKABLE [[nodiscard]] QFont system(double size, tidewatch::Style::Weight weight) const;

    /// The font of headings: small, bold, letter-spaced capitals, whatever the case of the text.
    Q_INVOKABLE [[nodiscard]] QFont heading() const;

    /// `font` with this letter spacing in pixels.
    Q_INVOKABLE [[nodiscard]] QFont tracked(const QFont& font, double spacing) const;

    /// `color` adjusted for text on `ground`: unchanged if legible, else just as much darker or lighter as
    /// needed. Depends only on its arguments, so that a binding to the palette's ground is re-evaluated when
    /// the theme changes.
    Q_INVOKABLE [[nodiscard]] QColor legibleOn(const QColor& ground, const QColor& color) const;

Q_SIGNALS:
    void themeChanged();

private:
    void apply(const DashboardStyle& style);

    Palette palette_;
    Decoration decoration_ = NoDecoration;
    Appearance appearance_ = Appearance::dark;
    Connection following_;
};

}  // namespace tidewatch
