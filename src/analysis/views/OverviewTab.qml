import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The day at a glance. */
ScrollPane {
    id: root

    required property OverviewPresenter presenter
    required property InsightsPresenter insights

    ColumnLayout {
        width: parent.width
        spacing: Style.metrics.wideSpacing

        RowLayout {
            Layout.fillWidth: true
            Layout.preferredHeight: 320
            spacing: Style.metrics.wideSpacing

            ProductivityDonut {
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 5
                presenter: root.presenter
            }
            TierColumn {
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 5
                presenter: root.presenter.productive
            }
            TierColumn {
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 5
                presenter: root.presenter.neutral
            }
            TierColumn {
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 5
                presenter: root.presenter.distracting
            }
        }
        HourlyBars {
            Layout.fillWidth: true
            Layout.preferredHeight: 220
            presenter: root.presenter
        }
        InsightsSection {
            Layout.fillWidth: true
            Layout.topMargin: Style.metrics.spacing
            presenter: root.insights
        }
    }
}
