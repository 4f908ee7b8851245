#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>

namespace tidewatch {

/// A label and its figure.
class ClaudeFigure final {
    Q_GADGET
    QML_VALUE_TYPE(claudeFigure)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;
    QString label;  ///< may have two lines
    QString value;
    QString accessibleText;

    bool operator==(const ClaudeFigure&) const = default;
};

/// A line of text with a bar below it: a model, or a month.
class ClaudeBar final {
    Q_GADGET
    QML_VALUE_TYPE(claudeBar)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString mark MEMBER mark FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(QColor valueColor MEMBER valueColor FINAL)
    Q_PROPERTY(QString details MEMBER details FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;
    QString label;
    QString mark;  ///< after the label
    QString value;
    QColor valueColor;    ///< invalid for that of ordinary text
    QString details;      ///< below; may be empty
    double fraction = 0;  ///< 0 to 1
    QColor color;
    QString accessibleText;

    bool operator==(const ClaudeBar&) const = default;
};

/// A limit of the plan, and how much of it is used.
class ClaudeLimit final {
    Q_GADGET
    QML_VALUE_TYPE(claudeLimit)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString reset MEMBER reset FINAL)
    Q_PROPERTY(QString remark MEMBER remark FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText FINAL)

public:
    QString label;
    QString value;        ///< beside the label; may be empty
    double fraction = 0;  ///< 0 to 1
    QColor color;
    QString reset;   ///< when it begins anew
    QString remark;  ///< may be empty

    [[nodiscard]] QString accessibleText() const;

    bool operator==(const ClaudeLimit&) const = default;
};

}  // namespace tidewatch
