#pragma once

#include <qqmlregistration.h>
#include <QString>
#include <vector>

#include "platform/api/running_applications.h"
#include "system/views/sidebar/detail_presenter.h"
#include "system/views/system_rows.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The base of the presenters of the panels that list processes. Main thread only.
class ConsumersPresenter : public tidewatch::DetailPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the panels with processes are")
    Q_PROPERTY(QString figure READ figure NOTIFY figureChanged FINAL)
    Q_PROPERTY(QString caption READ caption CONSTANT FINAL)
    Q_PROPERTY(double fraction READ fraction NOTIFY figureChanged FINAL)
    Q_PROPERTY(tidewatch::RowListModel* parts READ parts CONSTANT FINAL)
    Q_PROPERTY(QString consumersTitle READ consumersTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* consumers READ consumers CONSTANT FINAL)
    Q_PROPERTY(QString quitText READ quitText CONSTANT FINAL)
    /// Why the last application was not asked to quit; may be empty.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged FINAL)

public:
    /// The large figure, and what it is.
    [[nodiscard]] QString figure() const { return figure_.text; }
    [[nodiscard]] QString caption() const { return caption_; }
    /// Of the bar below it, from 0 to 1.
    [[nodiscard]] double fraction() const { return figure_.fraction; }
    [[nodiscard]] RowListModel* parts() { return &parts_; }
    [[nodiscard]] QString consumersTitle() const { return "TOP CONSUMERS"; }
    [[nodiscard]] RowListModel* consumers() { return &consumers_; }
    [[nodiscard]] QString quitText() const { return "Quit"; }
    [[nodiscard]] QString notice() const { return notice_; }

    /// Asks the running applications of the name in this row to quit. An unknown id has no effect.
    Q_INVOKABLE void quit(const QString& id);

Q_SIGNALS:
    void figureChanged();
    void noticeChanged();

protected:
    ConsumersPresenter(const Frame& frame, const QString& title, const Header& header, const QString& caption,
                       platform::RunningApplications& running);

    struct Figure {
        QString text;
        double fraction = 0;
        bool operator==(const Figure&) const = default;
    };

    void show(const Figure& figure, const std::vector<SystemFigure>& parts,
              const std::vector<SystemConsumer>& consumers);

private:
    void visibilityChanged() override;

    const QString caption_;
    platform::RunningApplications& running_;
    Figure figure_;
    RowList<SystemFigure> parts_;
    RowList<SystemConsumer> consumers_;
    QString notice_;
};

/// The sidebar's panel of the memory.
class MemoryDetailPresenter final : public tidewatch::ConsumersPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")

public:
    /// `running` must outlive the presenter.
    MemoryDetailPresenter(const Frame& frame, platform::RunningApplications& running);

private:
    void update() override;
};

/// The sidebar's panel of the processors.
class CpuDetailPresenter final : public tidewatch::ConsumersPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")

public:
    /// `running` must outlive the presenter.
    CpuDetailPresenter(const Frame& frame, platform::RunningApplications& running);

private:
    void update() override;
};

}  // namespace tidewatch
