#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>
#include <QUrl>

namespace tidewatch {

/// A part of a window, as its room gives it: a tab, or what stands beside others in a row. A PaneView makes
/// its view when it comes on show, from the properties `title` and `presenter`; until then a pane costs
/// nothing. A presenter that is a TabPresenter follows its model only meanwhile.
class Pane final {
    Q_GADGET
    QML_VALUE_TYPE(pane)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QUrl view MEMBER view FINAL)
    Q_PROPERTY(QObject* presenter MEMBER presenter FINAL)
    Q_PROPERTY(double width MEMBER width FINAL)

public:
    QString id;     ///< its own among those that it stands with
    QString title;  ///< for the tab bar and for assistive technology
    QUrl view;
    QObject* presenter = nullptr;
    double width = 0;  ///< in a row, in points; 0 for what the others leave

    bool operator==(const Pane&) const = default;
};

/// Where the view `name` of the module `uri` ("Tidewatch.Analysis") lies.
[[nodiscard]] inline QUrl viewUrl(QString uri, const QString& name) {
    return QUrl("qrc:/qt-project.org/imports/" + uri.replace('.', '/') + '/' + name + ".qml");
}

}  // namespace tidewatch
