import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The day at a glance. */
TabPane {
    id: root

    required property OverviewPage presenter

    ColumnLayout {
        width: parent.width
        spacing: Style.metrics.wideSpacing

        Hint {
            objectName: "preview"
            Layout.fillWidth: true
            text: root.presenter.overview.preview
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.preferredHeight: 320
            spacing: Style.metrics.wideSpacing

            ProductivityDonut {
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 5
                presenter: root.presenter.overview
            }
            TierColumn {
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 5
                presenter: root.presenter.overview.productive
            }
            TierColumn {
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 5
                presenter: root.presenter.overview.neutral
            }
            TierColumn {
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 5
                presenter: root.presenter.overview.distracting
            }
        }
        HourlyBars {
            Layout.fillWidth: true
            Layout.preferredHeight: 220
            presenter: root.presenter.overview
        }
        InsightsSection {
            Layout.fillWidth: true
            Layout.topMargin: Style.metrics.spacing
            presenter: root.presenter.insights
        }
    }
}
