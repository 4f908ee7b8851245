#pragma once

#include <QColor>

#include "shell/views/widgets/gadget_presenter.h"
#include "shell/widgets/widget_hub.h"

namespace tidewatch {

/// The active project and its time today. Main thread only.
class ProjectGadgetPresenter final : public tidewatch::GadgetPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(bool hasProject READ hasProject NOTIFY projectChanged FINAL)
    Q_PROPERTY(QString name READ name NOTIFY projectChanged FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY projectChanged FINAL)
    Q_PROPERTY(QString time READ time NOTIFY projectChanged FINAL)
    Q_PROPERTY(QString timeTitle READ timeTitle CONSTANT FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY projectChanged FINAL)
    Q_PROPERTY(QString noProject READ noProject CONSTANT FINAL)
    Q_PROPERTY(QString noProjectHelp READ noProjectHelp CONSTANT FINAL)

public:
    /// `hub` must outlive the presenter.
    explicit ProjectGadgetPresenter(WidgetHub& hub);

    [[nodiscard]] bool hasProject() const { return project_.exists; }
    [[nodiscard]] QString name() const { return project_.name; }
    [[nodiscard]] QColor color() const { return project_.color; }
    [[nodiscard]] QString time() const { return project_.time; }
    [[nodiscard]] QString timeTitle() const { return "hoy"; }
    [[nodiscard]] QString accessibleText() const;
    [[nodiscard]] QString noProject() const { return "Sin proyecto activo"; }
    [[nodiscard]] QString noProjectHelp() const { return "Elígelo en el menú de la barra"; }

Q_SIGNALS:
    void projectChanged();

private:
    struct ShownProject {
        bool exists = false;
        QString name;
        QColor color;
        QString time;
        bool operator==(const ShownProject&) const = default;
    };

    void update() override;

    const WidgetHub& hub_;
    ShownProject project_;
};

}  // namespace tidewatch
