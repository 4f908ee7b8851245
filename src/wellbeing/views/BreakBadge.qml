import QtQuick
import Tidewatch.Ui

/*! The rocking bomb on its disc, with a repeatedly expanding ring. */
Item {
    id: root

    /*! Whether it is animated. */
    property bool running: false

    readonly property color alarm: Style.palette.tierDistracting

    implicitWidth: 110
    implicitHeight: 110

    Rectangle {
        id: ring

        objectName: "ring"
        anchors.fill: parent
        radius: width / 2
        color: Qt.alpha(root.alarm, 0.18)
        opacity: 0.7

        ParallelAnimation {
            objectName: "pulse"
            running: root.running
            loops: Animation.Infinite

            NumberAnimation {
                target: ring
                property: "scale"
                from: 1.0
                to: 1.18
                duration: 1200
                easing.type: Easing.OutQuad
            }

            NumberAnimation {
                target: ring
                property: "opacity"
                from: 0.7
                to: 0
                duration: 1200
                easing.type: Easing.OutQuad
            }
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: 78
        height: 78
        radius: width / 2
        color: root.alarm

        Symbol {
            id: bomb

            objectName: "bomb"
            anchors.centerIn: parent
            width: 54
            height: 54
            name: "bomb"
            side: 38
            color: Style.palette.onFill

            SequentialAnimation {
                objectName: "jiggle"
                running: root.running
                loops: Animation.Infinite

                NumberAnimation {
                    target: bomb
                    property: "turn"
                    from: -8
                    to: 8
                    duration: 180
                    easing.type: Easing.InOutQuad
                }

                NumberAnimation {
                    target: bomb
                    property: "turn"
                    from: 8
                    to: -8
                    duration: 180
                    easing.type: Easing.InOutQuad
                }
            }
        }
    }
}
