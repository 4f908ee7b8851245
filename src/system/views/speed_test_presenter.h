#pragma once

#include <qqmlregistration.h>
#include <QString>

#include "base/signal.h"
#include "system/speed_tester.h"
#include "system/views/system_rows.h"
#include "ui/models/row_list.h"
#include "ui/models/tab_presenter.h"

namespace tidewatch {

/// The display values of a speed test with its gauge. Main thread only.
class SpeedTestPresenter final : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString compactTitle READ compactTitle CONSTANT FINAL)
    Q_PROPERTY(QString buttonText READ buttonText NOTIFY figuresChanged FINAL)
    // The gauge.
    Q_PROPERTY(double value READ value NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double scaleMax READ scaleMax NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString valueText READ valueText NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString caption READ caption CONSTANT FINAL)
    Q_PROPERTY(QString status READ status NOTIFY figuresChanged FINAL)
    /// Average, peak and latency.
    Q_PROPERTY(tidewatch::RowListModel* stats READ stats CONSTANT FINAL)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double progress READ progress NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString progressTitle READ progressTitle CONSTANT FINAL)
    Q_PROPERTY(QString progressText READ progressText NOTIFY figuresChanged FINAL)

public:
    /// `speed` must outlive the presenter.
    explicit SpeedTestPresenter(SpeedTester& speed);

    [[nodiscard]] QString title() const { return "INTERNET SPEED TEST"; }
    [[nodiscard]] QString compactTitle() const { return "SPEED TEST"; }
    [[nodiscard]] QString buttonText() const { return figures_.button; }
    /// Of the gauge, in megabits per second.
    [[nodiscard]] double value() const { return figures_.value; }
    [[nodiscard]] double scaleMax() const { return figures_.scaleMax; }
    [[nodiscard]] QString valueText() const;
    [[nodiscard]] QString caption() const { return "Mbps ↓"; }
    [[nodiscard]] QString status() const { return figures_.status; }
    [[nodiscard]] RowListModel* stats() { return &stats_; }
    [[nodiscard]] bool isRunning() const { return figures_.isRunning; }
    /// Of a running test, from 0 to 1.
    [[nodiscard]] double progress() const { return figures_.progress; }
    [[nodiscard]] QString progressTitle() const { return "Progreso"; }
    [[nodiscard]] QString progressText() const;

    /// Starts a test, or cancels the running one.
    Q_INVOKABLE void press();

Q_SIGNALS:
    void figuresChanged();

private:
    struct Figures {
        QString button = "Probar";
        double value = 0;
        double scaleMax = 50;
        QString status;
        bool isRunning = false;
        double progress = 0;
        bool operator==(const Figures&) const = default;
    };

    void update() override;
    [[nodiscard]] QString statusNow() const;

    SpeedTester& speed_;
    Figures figures_;
    RowList<SystemFigure> stats_;
    Connection speedChanged_;
};

}  // namespace tidewatch
