#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>

#include "base/signal.h"
#include "wellbeing/break_reminder.h"

namespace tidewatch {

/// The display values of the break alert. Main thread only. Notifies only of changes: while an alert is
/// active, an ordinary second updates one text.
class BreakPresenter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(bool alertActive READ alertActive NOTIFY alertActiveChanged FINAL)
    // Why it was raised.
    Q_PROPERTY(QString headline READ headline NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString subline READ subline NOTIFY alertChanged FINAL)
    // The exercise.
    Q_PROPERTY(QString icon READ icon NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString instruction READ instruction NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString motivational READ motivational NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString sittingText READ sittingText NOTIFY sittingTextChanged FINAL)
    Q_PROPERTY(QString dismissText READ dismissText CONSTANT FINAL)

public:
    /// `reminder` must outlive this object.
    explicit BreakPresenter(BreakReminder& reminder, QObject* parent = nullptr);

    [[nodiscard]] bool alertActive() const { return alertActive_; }
    [[nodiscard]] QString headline() const;
    [[nodiscard]] QString subline() const;
    [[nodiscard]] QString icon() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString instruction() const;
    [[nodiscard]] QString motivational() const;
    [[nodiscard]] QString sittingText() const { return sittingText_; }
    [[nodiscard]] QString dismissText() const;

    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void alertActiveChanged();
    void alertChanged();
    void sittingTextChanged();

private:
    void sync();

    BreakReminder& reminder_;
    bool alertActive_ = false;
    Stretch stretch_;
    BreakReason reason_;
    QString sittingText_;
    Connection changed_;
};

}  // namespace tidewatch
