#pragma once

#include <qqmlregistration.h>
#include <QPointer>
#include <array>
#include <cstdint>

#include "wellbeing/views/games/game_colors.h"
#include "wellbeing/views/games/game_field.h"
#include "wellbeing/views/games/tetris_presenter.h"

namespace tidewatch {

/// The falling-blocks board: settled cells, the falling piece and its ghost.
class TetrisField : public tidewatch::GameField {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        tidewatch::TetrisPresenter* presenter READ presenter WRITE setPresenter NOTIFY presenterChanged FINAL)
    /// Side of a cell, in points of the layout.
    Q_PROPERTY(double cell READ cell WRITE setCell NOTIFY cellChanged FINAL)

public:
    explicit TetrisField(QQuickItem* parent = nullptr);

    [[nodiscard]] TetrisPresenter* presenter() const { return presenter_; }
    void setPresenter(TetrisPresenter* presenter);
    [[nodiscard]] double cell() const { return cell_; }
    void setCell(double cell);

Q_SIGNALS:
    void presenterChanged();
    void cellChanged();

protected:
    void paintField(QPainter& painter, const QRectF& dirty) override;

private:
    enum class Kind : std::uint8_t { empty, ghost, solid };
    struct Look {
        Kind kind = Kind::empty;
        int piece = 0;
        bool operator==(const Look&) const = default;
    };
    using Looks = std::array<std::array<Look, tetris::columns>, tetris::rows>;

    [[nodiscard]] Looks looksOf(const TetrisModel& model) const;
    [[nodiscard]] QRectF place(int row, int column) const;
    /// What is drawn there.
    [[nodiscard]] QRectF square(int row, int column) const;
    void drawMark(QPainter& painter, PieceMark mark, const QRectF& cell, const QColor& color) const;
    void sync();

    QPointer<TetrisPresenter> presenter_;
    double cell_ = 15;
    Looks looks_{};
};

}  // namespace tidewatch
