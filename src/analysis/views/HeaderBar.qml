import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The brand, and the selected day with buttons to select another. */
RowLayout {
    id: root

    required property HeaderPresenter presenter

    spacing: Style.metrics.spacing

    ColumnLayout {
        spacing: 2

        Row {
            Accessible.role: Accessible.Heading
            Accessible.name: root.presenter.brand

            PlainText {
                text: root.presenter.brand
                font: Style.tracked(Style.serif(22, Style.Medium), 4)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            PlainText {
                text: "."
                font: Style.tracked(Style.serif(22, Style.Medium), 4)
                color: Style.palette.tierProductive
                Accessible.ignored: true
            }
        }
        AccessibleText {
            text: root.presenter.tagline
            font: Style.sans(12, Style.Regular)
            color: Style.palette.secondaryText
        }
    }
    Item {
        Layout.fillWidth: true
    }
    IconButton {
        objectName: "previousDay"
        symbol: "chevron.left"
        accessibleName: "Día anterior"
        onClicked: root.presenter.previousDay()
    }
    AccessibleText {
        objectName: "date"
        Layout.preferredWidth: 116
        horizontalAlignment: Text.AlignHCenter
        text: root.presenter.date
        font: Style.mono(14, Style.Medium)
        color: Style.palette.primaryText
    }
    IconButton {
        objectName: "nextDay"
        symbol: "chevron.right"
        accessibleName: "Día siguiente"
        enabled: root.presenter.canGoForward
        onClicked: root.presenter.nextDay()
    }
    LinkButton {
        objectName: "today"
        Layout.leftMargin: Style.metrics.spacing
        text: "hoy"
        onClicked: root.presenter.today()
    }
}
