#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>
#include <vector>

#include "analysis/dashboard_model.h"
#include "classification/app_info_resolver.h"

namespace tidewatch {

/// The icon of an application for the views: at most one of the two names is not empty.
struct IconNames {
    QString desktop;  ///< in the desktop's icon theme, or a path
    QString symbol;   ///< in the program's own symbol table
};
[[nodiscard]] IconNames iconNames(const std::optional<AppIcon>& icon);

/// An application with its time, as a list row.
class AppRow final {
    Q_GADGET
    QML_VALUE_TYPE(appRow)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString iconName MEMBER iconName FINAL)
    Q_PROPERTY(QString symbolName MEMBER symbolName FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString time MEMBER time FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;
    QString iconName;
    QString symbolName;
    QString name;
    QString time;
    QColor color;  ///< of its tier
    QString accessibleText{};

    bool operator==(const AppRow&) const = default;
};

[[nodiscard]] std::vector<AppRow> appRows(const std::vector<AppEntry>& apps);

}  // namespace tidewatch
