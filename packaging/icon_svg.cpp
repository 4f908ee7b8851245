#include "packaging/icon_svg.h"

#include <QStringList>
#include <cmath>

namespace tidewatch {
namespace {

/// A hundredth of a unit is below what can be seen; the drawing's outlines have finer steps.
QString number(double value) {
    return QString::number(std::round(value * 100) / 100);
}

QString point(const QPainterPath::Element& element) {
    return number(element.x) + ' ' + number(element.y);
}

QString pathData(const QPainterPath& path) {
    QStringList parts;
    QString last;
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto element = path.elementAt(i);
        switch (element.type) {
            case QPainterPath::MoveToElement:
                if (i > 0) parts += "Z";
                parts += "M" + point(element);
                break;
            case QPainterPath::LineToElement:
                if (point(element) != last) parts += "L" + point(element);
                break;
            case QPainterPath::CurveToElement:
                parts += "C" + point(element);
                break;
            case QPainterPath::CurveToDataElement:
                parts += point(element);
                break;
        }
        last = point(element);
    }
    parts += "Z";
    return parts.join(' ');
}

QString gradientElement(const QLinearGradient& gradient, const QString& id) {
    QString stops;
    for (const auto& [offset, colour] : gradient.stops()) {
        stops += QString(R"(<stop offset="%1" stop-color="%2"/>)").arg(number(offset), colour.name());
    }
    return QString(
               R"(<linearGradient id="%1" gradientUnits="userSpaceOnUse" x1="%2" y1="%3" x2="%4" y2="%5">%6)"
               "</linearGradient>\n")
        .arg(id, number(gradient.start().x()), number(gradient.start().y()), number(gradient.finalStop().x()),
             number(gradient.finalStop().y()), stops);
}

}  // namespace

QByteArray iconSvg(const std::vector<fathom::FilledShape>& shapes, double units) {
    QString body;
    int gradients = 0;
    for (const auto& [path, fill] : shapes) {
        auto paint = fill.color().name();
        if (fill.style() == Qt::LinearGradientPattern) {
            const auto id = QString("fill%1").arg(++gradients);
            body +=
                gradientElement(QLinearGradient(*static_cast<const QLinearGradient*>(fill.gradient())), id);
            paint = "url(#" + id + ")";
        }
        const auto* rule = path.fillRule() == Qt::OddEvenFill ? "evenodd" : "nonzero";
        body += QString(R"(<path fill="%1" fill-rule="%2" d="%3"/>)").arg(paint, rule, pathData(path)) + '\n';
    }
    return QString(R"(<svg xmlns="http://www.w3.org/2000/svg" width="%1" height="%1" viewBox="0 0 %1 %1">)"
                   "\n<g transform=\"matrix(1 0 0 -1 0 %1)\">\n%2</g>\n</svg>\n")
        .arg(number(units), body)
        .toUtf8();
}

}  // namespace tidewatch
