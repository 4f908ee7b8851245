#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QStringList>
#include <memory>

#include "analysis/insights_engine.h"
#include "platform/api/main_loop.h"
#include "ui/models/row_list.h"
#include "ui/models/stat_tile.h"

namespace tidewatch {

/// The insights of a range of days, recomputed every eight seconds while visible. Main thread only.
class InsightsPresenter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QList<QString> ranges READ ranges CONSTANT FINAL)
    Q_PROPERTY(int rangeIndex READ rangeIndex NOTIFY rangeChanged FINAL)
    Q_PROPERTY(QString sessionTitle READ sessionTitle CONSTANT FINAL)
    Q_PROPERTY(bool hasSession READ hasSession NOTIFY sessionChanged FINAL)
    Q_PROPERTY(QString sessionLength READ sessionLength NOTIFY sessionChanged FINAL)
    Q_PROPERTY(QString sessionDay READ sessionDay NOTIFY sessionChanged FINAL)
    Q_PROPERTY(QString sessionTimes READ sessionTimes NOTIFY sessionChanged FINAL)
    Q_PROPERTY(QString noSession READ noSession CONSTANT FINAL)
    /// The card's accessible text.
    Q_PROPERTY(QString sessionAccessibleText READ sessionAccessibleText NOTIFY sessionChanged FINAL)
    Q_PROPERTY(tidewatch::RowListModel* tiles READ tiles CONSTANT FINAL)

public:
    /// Both must outlive it.
    InsightsPresenter(const InsightsEngine& engine, platform::MainLoop& mainLoop);
    ~InsightsPresenter() override;

    [[nodiscard]] QString title() const { return "RACHA & ANÁLISIS"; }
    [[nodiscard]] QStringList ranges() const;
    [[nodiscard]] int rangeIndex() const;
    [[nodiscard]] QString sessionTitle() const { return "SESIÓN MÁS LARGA SIN PARAR"; }
    [[nodiscard]] bool hasSession() const { return insights_.longest.has_value(); }
    [[nodiscard]] QString sessionLength() const;
    [[nodiscard]] QString sessionDay() const;
    [[nodiscard]] QString sessionTimes() const;
    [[nodiscard]] QString noSession() const {
        return "Aún no hay una sesión larga registrada en este rango.";
    }
    [[nodiscard]] QString sessionAccessibleText() const;
    [[nodiscard]] RowListModel* tiles() { return &tiles_; }

    /// An index outside ranges() has no effect.
    Q_INVOKABLE void selectRange(int index);

    /// Initially not visible.
    void setVisible(bool visible);

Q_SIGNALS:
    void rangeChanged();
    void sessionChanged();

private:
    void compute();
    [[nodiscard]] std::vector<StatTile> makeTiles() const;
    [[nodiscard]] QString peakSubtitle() const;
    [[nodiscard]] QString totalSubtitle() const;
    [[nodiscard]] QString dateOf(const std::optional<DayKey>& day) const;

    const InsightsEngine& engine_;
    platform::MainLoop& mainLoop_;
    InsightsRange range_ = InsightsRange::week;
    Insights insights_;
    RowList<StatTile> tiles_;
    std::unique_ptr<platform::RepeatingTimer> timer_;
};

}  // namespace tidewatch
