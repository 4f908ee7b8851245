#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QObject>
#include <QStringList>
#include <functional>

#include "base/signal.h"
#include "core/timer_engine.h"
#include "platform/api/clock.h"
#include "shell/themes/theme_controller.h"
#include "ui/backgrounds/panel_background.h"
#include "ui/backgrounds/wall_clock.h"

namespace tidewatch {

/// The display values of the floating clock. Main thread only. Follows the engine and the theme, and notifies
/// only of changes, so that an ordinary second updates two texts.
class ClockPresenter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    // The day and the session.
    Q_PROPERTY(QString digits READ digits NOTIFY digitsChanged FINAL)
    Q_PROPERTY(QString sessionLine READ sessionLine NOTIFY sessionLineChanged FINAL)
    Q_PROPERTY(QColor dotColor READ dotColor NOTIFY dotColorChanged FINAL)
    Q_PROPERTY(QStringList stars READ stars NOTIFY starsChanged FINAL)
    Q_PROPERTY(QList<QColor> starColors READ starColors NOTIFY starsChanged FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY accessibleTextChanged FINAL)
    // The theme. Lengths and fonts are those of the unscaled drawing.
    Q_PROPERTY(double panelWidth READ panelWidth NOTIFY themeChanged FINAL)
    Q_PROPERTY(double panelHeight READ panelHeight NOTIFY themeChanged FINAL)
    Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY themeChanged FINAL)
    Q_PROPERTY(double paddingTop READ paddingTop NOTIFY themeChanged FINAL)
    Q_PROPERTY(double paddingLeading READ paddingLeading NOTIFY themeChanged FINAL)
    Q_PROPERTY(double paddingBottom READ paddingBottom NOTIFY themeChanged FINAL)
    Q_PROPERTY(double paddingTrailing READ paddingTrailing NOTIFY themeChanged FINAL)
    Q_PROPERTY(tidewatch::PanelBackgroundItem::Kind background READ background NOTIFY themeChanged FINAL)
    Q_PROPERTY(bool backgroundMoves READ backgroundMoves NOTIFY themeChanged FINAL)
    Q_PROPERTY(QString label READ label NOTIFY themeChanged FINAL)
    Q_PROPERTY(QFont labelFont READ labelFont NOTIFY themeChanged FINAL)
    Q_PROPERTY(QFont digitFont READ digitFont NOTIFY themeChanged FINAL)
    Q_PROPERTY(QFont sessionFont READ sessionFont NOTIFY themeChanged FINAL)
    Q_PROPERTY(bool digitsHaveEqualWidth READ digitsHaveEqualWidth NOTIFY themeChanged FINAL)
    Q_PROPERTY(bool sessionDigitsHaveEqualWidth READ sessionDigitsHaveEqualWidth NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor primaryText READ primaryText NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor secondaryText READ secondaryText NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor textShade READ textShade NOTIFY themeChanged FINAL)
    Q_PROPERTY(bool showsLabel READ showsLabel NOTIFY themeChanged FINAL)
    Q_PROPERTY(bool showsStatusDot READ showsStatusDot NOTIFY themeChanged FINAL)
    Q_PROPERTY(bool showsDailyTotal READ showsDailyTotal NOTIFY themeChanged FINAL)
    // The window that it is shown in.
    Q_PROPERTY(bool translucent READ translucent NOTIFY translucentChanged FINAL)
    Q_PROPERTY(bool onScreen READ onScreen NOTIFY onScreenChanged FINAL)
    Q_PROPERTY(tidewatch::WallClock* wallClock READ wallClock CONSTANT FINAL)

public:
    /// The day's stars, 0 or more; queried at every change of the engine.
    using StarsToday = std::function<int()>;

    /// All references must outlive this object.
    ClockPresenter(TimerEngine& engine, ThemeController& theme, const platform::Clock& clock,
                   StarsToday starsToday);

    [[nodiscard]] QString digits() const { return digits_; }
    [[nodiscard]] QString sessionLine() const { return sessionLine_; }
    [[nodiscard]] QColor dotColor() const { return dotColor_; }
    [[nodiscard]] QStringList stars() const { return stars_; }
    [[nodiscard]] QList<QColor> starColors() const { return starColors_; }
    [[nodiscard]] QString accessibleText() const { return accessibleText_; }

    [[nodiscard]] double panelWidth() const { return active().size.width; }
    [[nodiscard]] double panelHeight() const { return active().size.height; }
    [[nodiscard]] double cornerRadius() const { return active().cornerRadius; }
    [[nodiscard]] double paddingTop() const { return active().padding.top; }
    [[nodiscard]] double paddingLeading() const { return active().padding.leading; }
    [[nodiscard]] double paddingBottom() const { return active().padding.bottom; }
    [[nodiscard]] double paddingTrailing() const { return active().padding.trailing; }
    [[nodiscard]] PanelBackgroundItem::Kind background() const;
    [[nodiscard]] bool backgroundMoves() const { return active().background == PanelBackground::liquid; }
    [[nodiscard]] QString label() const;
    [[nodiscard]] QFont labelFont() const;
    [[nodiscard]] QFont digitFont() const;
    [[nodiscard]] QFont sessionFont() const;
    [[nodiscard]] bool digitsHaveEqualWidth() const {
        return active().digitFont.digits == Digits::monospaced;
    }
    [[nodiscard]] bool sessionDigitsHaveEqualWidth() const {
        return active().dailyTotalFont.digits == Digits::monospaced;
    }
    [[nodiscard]] QColor primaryText() const;
    [[nodiscard]] QColor secondaryText() const;
    [[nodiscard]] QColor textShade() const;
    [[nodiscard]] bool showsLabel() const { return active().label.has_value(); }
    [[nodiscard]] bool showsStatusDot() const { return active().showsStatusDot; }
    [[nodiscard]] bool showsDailyTotal() const { return active().showsDailyTotal; }

    [[nodiscard]] bool translucent() const { return translucent_; }
    [[nodiscard]] bool onScreen() const { return onScreen_; }
    [[nodiscard]] WallClock* wallClock() { return &wallClock_; }

    /// Whether the desktop may show through the panel; initially true.
    void setTranslucent(bool translucent);

    /// Whether any of the panel is visible, so that it should be animated; initially false.
    void setOnScreen(bool onScreen);

Q_SIGNALS:
    void digitsChanged();
    void sessionLineChanged();
    void dotColorChanged();
    void starsChanged();
    void accessibleTextChanged();
    void themeChanged();
    void translucentChanged();
    void onScreenChanged();

private:
    [[nodiscard]] const Theme& active() const { return theme_.active(); }
    void syncEngine();
    void syncTheme();
    void updateDot();
    void updateStars();
    void updateAccessibleText();
    template <class Value>
    void change(Value& value, const Value& to, void (ClockPresenter::*changed)());

    TimerEngine& engine_;
    ThemeController& theme_;
    StarsToday starsToday_;
    WallClock wallClock_;
    QString digits_;
    QString sessionLine_;
    QColor dotColor_;
    int filledStars_ = 0;
    QStringList stars_;
    QList<QColor> starColors_;
    QString accessibleText_;
    bool translucent_ = true;
    bool onScreen_ = false;
    Connection engineChanged_;
    Connection themeChanged_;
};

}  // namespace tidewatch
