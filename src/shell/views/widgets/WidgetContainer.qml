import QtQuick
import QtQuick.Window
import Tidewatch.Shell
import Tidewatch.Ui

/*! A widget of the desktop: the ground that all have in common, and its gadget. As large as its window. */
Item {
    id: root

    required property GadgetPresenter presenter

    /*! Pixels per point of the layout. */
    readonly property real unit: width / presenter.panelWidth

    implicitWidth: presenter.panelWidth
    implicitHeight: presenter.panelHeight

    Accessible.role: Accessible.Grouping
    Accessible.name: presenter.accessibleName

    Rectangle {
        objectName: "ground"
        anchors.fill: parent
        radius: Style.metrics.widgetRadius * root.unit
        color: root.presenter.translucent ? Style.palette.widget : Style.palette.bg
        // Whole pixels of the screen, whatever the widget's scale.
        border.width: Math.floor(Screen.devicePixelRatio) / Screen.devicePixelRatio
        border.color: Style.palette.stroke
    }
    Loader {
        anchors.fill: parent
        Component.onCompleted: setSource(root.presenter.view, {
            presenter: root.presenter
        })
    }
}
