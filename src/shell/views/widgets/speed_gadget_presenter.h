#pragma once

#include "shell/views/widgets/gadget_presenter.h"
#include "system/speed_tester.h"

namespace tidewatch {

/// The speed test of the line. Main thread only.
class SpeedGadgetPresenter final : public tidewatch::GadgetPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(double value READ value NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double scaleMax READ scaleMax NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString valueText READ valueText NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString caption READ caption CONSTANT FINAL)
    Q_PROPERTY(QString status READ status NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString buttonText READ buttonText NOTIFY figuresChanged FINAL)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY figuresChanged FINAL)

public:
    /// `speed` must outlive the presenter.
    explicit SpeedGadgetPresenter(SpeedTester& speed);

    /// Of the gauge, in megabits per second.
    [[nodiscard]] double value() const { return figures_.value; }
    [[nodiscard]] double scaleMax() const { return figures_.scaleMax; }
    [[nodiscard]] QString valueText() const;
    [[nodiscard]] QString caption() const { return "Mbps"; }
    [[nodiscard]] QString status() const { return figures_.status; }
    [[nodiscard]] QString buttonText() const { return isRunning() ? "Detener" : "Probar"; }
    [[nodiscard]] bool isRunning() const { return figures_.isRunning; }

    /// Starts a test, or cancels the running one.
    Q_INVOKABLE void press();

Q_SIGNALS:
    void figuresChanged();

private:
    struct Figures {
        double value = 0;
        double scaleMax = 50;
        QString status;
        bool isRunning = false;
        bool operator==(const Figures&) const = default;
    };

    void update() override;

    SpeedTester& speed_;
    Figures figures_;
};

}  // namespace tidewatch
