#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QPointF>
#include <QString>
#include <optional>

class QPainter;

namespace tidewatch {

/// A font that remembers the glyphs of the texts it has drawn: shaping a text costs many times more than
/// drawing it. For lines whose parts recur, as those of a running clock do. Not thread-safe.
class ShapedFont final {
public:
    explicit ShapedFont(const QFont& font = {}) : font_(font), metrics_(font) {}

    [[nodiscard]] const QFont& font() const { return font_; }
    [[nodiscard]] const QFontMetricsF& metrics() const { return metrics_; }

    /// As QFontMetricsF::horizontalAdvance().
    [[nodiscard]] double advance(QChar character);
    [[nodiscard]] double advance(const QString& text);

    /// The advance of the widest of the ten digits.
    [[nodiscard]] double widestDigit();

    /// Draws `text` with the painter's pen, its baseline starting at `origin`.
    void draw(QPainter& painter, const QPointF& origin, const QString& text);

private:
    [[nodiscard]] const QList<QGlyphRun>& glyphs(const QString& text);

    QFont font_;
    QFontMetricsF metrics_;
    QHash<QChar, double> characterAdvances_;
    QHash<QString, double> advances_;
    QHash<QString, QList<QGlyphRun>> glyphs_;
    std::optional<double> widestDigit_;
};

}  // namespace tidewatch
