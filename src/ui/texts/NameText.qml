pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Ui

/*!
    A name that others gave, on one line: what does not fit is cut off at its end, and the whole is told under the
    pointer.
*/
PlainText {
    id: root

    // Not where its letters would begin: it stands beside its icon however it is written.
    horizontalAlignment: Text.AlignLeft
    elide: Text.ElideRight
    maximumLineCount: 1

    HoverHandler {
        id: pointer
    }
    // Made only for a name that asks for it: there may be hundreds.
    Repeater {
        model: root.truncated && pointer.hovered ? 1 : 0
        delegate: Bubble {
            objectName: "bubble"
            text: root.text
        }
    }
}
