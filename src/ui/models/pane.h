#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>
#include <QUrl>

namespace tidewatch {

/// A part of a window provided by a room: a tab, or a pane in a row. A PaneView creates its view, with the
/// properties `title` and `presenter`, when it is shown; until then a pane costs nothing. A presenter that is
/// a TabPresenter follows its model only while shown.
class Pane final {
    Q_GADGET
    QML_VALUE_TYPE(pane)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QUrl view MEMBER view FINAL)
    Q_PROPERTY(QObject* presenter MEMBER presenter FINAL)
    Q_PROPERTY(double width MEMBER width FINAL)

public:
    QString id;     ///< unique among its siblings
    QString title;  ///< for the tab bar and for assistive technology
    QUrl view;
    QObject* presenter = nullptr;
    double width = 0;  ///< in a row, in points; 0 for the remaining width

    bool operator==(const Pane&) const = default;
};

/// The URL of the view `name` of the module `uri` ("Tidewatch.Analysis").
[[nodiscard]] inline QUrl viewUrl(QString uri, const QString& name) {
    return QUrl("qrc:/qt-project.org/imports/" + uri.replace('.', '/') + '/' + name + ".qml");
}

}  // namespace tidewatch
