import QtQuick
import Tidewatch.Ui

/*! A text that is accessible by itself; PlainText is not. */
PlainText {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    // Assistive technology would otherwise see hidden text like text scrolled out of view.
    Accessible.ignored: !visible || text === ""
}
