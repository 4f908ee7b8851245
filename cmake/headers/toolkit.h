// What most sources that use the toolkit include.
#include <QtQml/qqmlextensionplugin.h>
#include <QtQml/qqmlprivate.h>

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickPaintedItem>
#include <QQuickWindow>
#include <QString>
#include <QTextLayout>
#include <QTimer>
#include <QVariant>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
