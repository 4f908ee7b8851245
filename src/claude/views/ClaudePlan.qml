import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! What the user pays for the plan, and the field to change it. */
Card {
    id: root

    required property ClaudePresenter presenter

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        Heading {
            Layout.fillWidth: true
            text: root.presenter.planTitle
            // Its unit stays in lower case.
            font: Style.tracked(Style.sans(11, Style.Semibold), 1.8)
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Style.metrics.spacing

            AccessibleText {
                objectName: "subscription"
                Layout.fillWidth: true
                visible: !root.presenter.editingBudget
                text: root.presenter.subscription
                elide: Text.ElideRight
                font: Style.mono(28, Style.Light)
                color: Style.palette.primaryText
            }
            PlainText {
                visible: root.presenter.editingBudget
                text: "$"
                font: Style.mono(28, Style.Light)
                color: Style.palette.primaryText
            }
            ClaudePlanField {
                id: field

                objectName: "budget"
                Layout.fillWidth: true
                Layout.maximumWidth: 160
                visible: root.presenter.editingBudget
                placeholderText: root.presenter.budgetPlaceholder
                text: root.presenter.budgetText
                onTextEdited: root.presenter.budgetText = text
                onSaved: {
                    root.presenter.saveBudget();
                    edit.forceActiveFocus(Qt.TabFocusReason);
                }
                onCancelled: {
                    root.presenter.cancelBudget();
                    edit.forceActiveFocus(Qt.TabFocusReason);
                }
            }
            Item {
                Layout.fillWidth: true
                visible: root.presenter.editingBudget
            }
            TextButton {
                id: edit

                objectName: "editBudget"
                visible: !root.presenter.editingBudget
                text: root.presenter.editTitle
                onClicked: {
                    root.presenter.editBudget();
                    field.forceActiveFocus(Qt.TabFocusReason);
                    field.selectAll();
                }
            }
            TextButton {
                objectName: "saveBudget"
                visible: root.presenter.editingBudget
                primary: true
                text: root.presenter.saveTitle
                onClicked: root.presenter.saveBudget()
            }
        }
        Item {
            Layout.fillHeight: true
        }
        AccessibleText {
            Layout.fillWidth: true
            text: root.presenter.planNote
            wrapMode: Text.WordWrap
            font: Style.sans(12, Style.Regular)
            color: Style.palette.secondaryText
        }
    }
}
