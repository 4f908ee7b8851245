pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Ui

/*! The background of the statistics window, with the theme's decoration behind the cards. */
Rectangle {
    id: root

    /*! Drives animated backgrounds. */
    property WallClock time

    /*! Whether any of it is visible; otherwise it is not animated. */
    property bool running: true

    color: Style.palette.bg

    // Each exists only while its theme is active: a painted item holds a texture as large as the window.
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
