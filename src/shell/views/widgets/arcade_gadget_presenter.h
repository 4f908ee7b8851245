#pragma once

#include "shell/views/widgets/gadget_presenter.h"
#include "wellbeing/views/games/games_presenter.h"

namespace tidewatch {

/// The mini-arcade, with games of its own. Main thread only.
class ArcadeGadgetPresenter final : public tidewatch::GadgetPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(tidewatch::GamesPresenter* games READ games CONSTANT FINAL)

public:
    explicit ArcadeGadgetPresenter(const GamesPresenter::Sources& sources)
        : GadgetPresenter(WidgetKind::arcade), games_(sources) {}

    [[nodiscard]] GamesPresenter* games() { return &games_; }

private:
    void update() override {}
    void visibilityChanged() override { games_.setVisible(isVisible()); }

    GamesPresenter games_;
};

}  // namespace tidewatch
