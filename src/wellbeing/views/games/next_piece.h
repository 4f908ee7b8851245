#pragma once

#include <qqmlregistration.h>
#include <QPointer>

#include "wellbeing/views/games/game_field.h"
#include "wellbeing/views/games/tetris_presenter.h"

namespace tidewatch {

/// A small picture of the next falling piece.
class NextPiece : public tidewatch::GameField {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        tidewatch::TetrisPresenter* presenter READ presenter WRITE setPresenter NOTIFY presenterChanged FINAL)

public:
    explicit NextPiece(QQuickItem* parent = nullptr);

    [[nodiscard]] TetrisPresenter* presenter() const { return presenter_; }
    void setPresenter(TetrisPresenter* presenter);

Q_SIGNALS:
    void presenterChanged();

protected:
    void paintField(QPainter& painter, const QRectF& dirty) override;

private:
    QPointer<TetrisPresenter> presenter_;
};

}  // namespace tidewatch
