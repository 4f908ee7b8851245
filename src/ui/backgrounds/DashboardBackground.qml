pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Ui

/*! The ground of the statistics window, with what the theme lays behind its cards. */
Rectangle {
    id: root

    /*! What moves the grounds that move. */
    property WallClock time

    /*! Whether anything of it can be seen, so that it is worth moving. */
    property bool running: true

    color: Style.palette.bg

    // Each is there only while its theme is worn: a painted item holds a picture as large as the window.
    Repeater {
        model: Style.decoration === Style.PaperGrain ? 1 : 0
        delegate: EditorialPaperGrain {
            objectName: "paperGrain"
            anchors.fill: parent
        }
    }
    Repeater {
        model: Style.decoration === Style.Scanlines ? 1 : 0
        delegate: HackerScanlines {
            objectName: "scanlines"
            anchors.fill: parent
        }
    }
    Repeater {
        model: Style.decoration === Style.Liquid ? 1 : 0
        delegate: LiquidBackground {
            objectName: "liquid"
            anchors.fill: parent
            time: root.time
            running: root.running
            intensity: Style.liquidDecorationIntensity
            reduction: 9
            everyFrames: 2
        }
    }
}
