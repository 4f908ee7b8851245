#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QString>
#include <functional>

#include "system/views/snapshot_presenter.h"

namespace tidewatch {

/// The base of the presenters of the sidebar's detail panels: what their header shows. Main thread only.
class DetailPresenter : public tidewatch::SnapshotPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the detail panels are")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString symbol READ symbol NOTIFY headerChanged FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY headerChanged FINAL)
    Q_PROPERTY(QString backText READ backText CONSTANT FINAL)

public:
    /// What all detail panels need; all of it must outlive them.
    struct Frame {
        SystemMonitor& monitor;
        SystemWatch& watch;
        std::function<void()> back;
    };

    [[nodiscard]] QString title() const { return title_; }
    [[nodiscard]] QString symbol() const { return header_.symbol; }
    /// Of the symbol.
    [[nodiscard]] QColor color() const { return header_.color; }
    [[nodiscard]] QString backText() const { return "Volver al resumen"; }

    Q_INVOKABLE void back() { back_(); }

Q_SIGNALS:
    void headerChanged();

protected:
    struct Header {
        QString symbol;
        QColor color;
        bool operator==(const Header&) const = default;
    };

    DetailPresenter(const Frame& frame, const QString& title, const Header& header);

    void setHeader(const Header& header) { change(this, header_, header, &DetailPresenter::headerChanged); }

private:
    const QString title_;
    Header header_;
    const std::function<void()> back_;
};

}  // namespace tidewatch
