pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Ui

/*!
    An external name on one line, elided at its end if it does not fit, with the full name as a tool tip.
*/
PlainText {
    id: root

    // Left-aligned even for right-to-left text: it is next to its icon.
    horizontalAlignment: Text.AlignLeft
    elide: Text.ElideRight
    maximumLineCount: 1

    HoverHandler {
        id: pointer
    }
    // Created only if needed: there may be hundreds of names.
    Repeater {
        model: root.truncated && pointer.hovered ? 1 : 0
        delegate: Bubble {
            objectName: "bubble"
            text: root.text
        }
    }
}
