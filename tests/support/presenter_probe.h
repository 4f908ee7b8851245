#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>

namespace tidewatch::test {

/// Everything that a presenter shows, property by property: the presenters it holds as objects, its lists as
/// arrays of their rows, colours as "#aarrggbb".
[[nodiscard]] QJsonObject probe(const QObject& presenter);

/// Fails the test unless `shown` is what the file at `path` says; prints the lines that differ. With
/// TIDEWATCH_WRITE_GOLDEN=1 in the environment the file is written instead, to be read before it is kept.
void expectGolden(const QJsonObject& shown, const QString& path);

}  // namespace tidewatch::test
