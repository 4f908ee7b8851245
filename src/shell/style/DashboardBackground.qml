import QtQuick
import Tidewatch.Style

/*! The ground of the statistics window, with what the theme lays behind its cards. */
Rectangle {
    id: root

    /*! What moves the grounds that move. */
    property WallTime time

    /*! Whether anything of it can be seen, so that it is worth moving. */
    property bool running: true

    color: Style.palette.bg

    EditorialPaperGrain {
        objectName: "paperGrain"
        anchors.fill: parent
        visible: Style.decoration === Style.PaperGrain
    }

    HackerScanlines {
        objectName: "scanlines"
        anchors.fill: parent
        visible: Style.decoration === Style.Scanlines
    }

    LiquidBackground {
        objectName: "liquid"
        anchors.fill: parent
        visible: Style.decoration === Style.Liquid
        // Bright enough to be seen moving, dark enough for small text on cards that hardly cover it.
        opacity: 0.5
        time: root.time
        running: root.running
        intensity: Style.liquidDecorationIntensity
        reduction: 9
        everyFrames: 2
    }
}
