#pragma once

#include <QFont>
#include <QObject>
#include <QQmlEngine>

#include "base/signal.h"
#include "shell/themes/theme_controller.h"
#include "ui/style/metrics.h"
#include "ui/style/palette.h"

namespace tidewatch {

/// What all views share: the active theme's palette, the measures and the brand's fonts. One in an engine,
/// made by it on first use; wears the first theme until it is told to follow a controller.
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

    /// The one of this engine, which owns it. Nothing if the engine does not know the module.
    [[nodiscard]] static Style* of(QQmlEngine& engine);

    /// Wears the active theme of `controller`, which must outlive this object, from now on.
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

    /// The font of headings: small, heavy and spaced capitals, whatever the case of the text.
    Q_INVOKABLE [[nodiscard]] QFont heading() const;

    /// `font` with so many pixels more between its letters.
    Q_INVOKABLE [[nodiscard]] QFont tracked(const QFont& font, double spacing) const;

    /// `color` as text can wear it on `ground`: as it is where it is easy to read there, else as much darker
    /// or lighter as it must be. It depends on nothing else, so that a view that gives it the palette's
    /// ground is asked again when the theme changes.
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
