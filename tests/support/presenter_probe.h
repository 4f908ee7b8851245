#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>

namespace tidewatch::test {

/// All properties of a presenter: nested presenters as objects, list models as arrays of rows, colours as
/// "#aarrggbb".
[[nodiscard]] QJsonObject probe(const QObject& presenter);

/// Fails the test unless `shown` equals the golden file at `path`; prints the lines that differ. With
/// TIDEWATCH_WRITE_GOLDEN=1 in the environment the file is written instead; review it before committing.
void expectGolden(const QJsonObject& shown, const QString& path);

}  // namespace tidewatch::test
