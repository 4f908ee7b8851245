#pragma once

#include <QColor>

#include "shell/views/widgets/gadget_presenter.h"
#include "shell/views/widgets/gadget_rows.h"
#include "shell/widgets/widget_hub.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The productivity of today. Main thread only.
class ProductivityGadgetPresenter final : public tidewatch::GadgetPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString score READ score NOTIFY scoreChanged FINAL)
    Q_PROPERTY(QColor scoreColor READ scoreColor NOTIFY scoreChanged FINAL)
    Q_PROPERTY(QString scoreAccessibleText READ scoreAccessibleText NOTIFY scoreChanged FINAL)
    Q_PROPERTY(tidewatch::RowListModel* bars READ bars CONSTANT FINAL)

public:
    /// `hub` must outlive the presenter.
    explicit ProductivityGadgetPresenter(WidgetHub& hub);

    [[nodiscard]] QString score() const { return score_.text; }
    [[nodiscard]] QColor scoreColor() const { return score_.color; }
    [[nodiscard]] QString scoreAccessibleText() const { return "Productividad: " + score_.text; }
    /// A row per tier, with its time and its share of the time that has one of the three.
    [[nodiscard]] RowListModel* bars() { return &bars_; }

Q_SIGNALS:
    void scoreChanged();

private:
    struct Score {
        QString text;
        QColor color;
        bool operator==(const Score&) const = default;
    };

    void update() override;

    const WidgetHub& hub_;
    Score score_;
    RowList<GadgetBar> bars_;
};

}  // namespace tidewatch
