import QtQuick
import Tidewatch.Ui

/*! The title of a card or a section. */
PlainText {
    font: Style.heading()
    color: Style.palette.strongMute
    elide: Text.ElideRight
    Accessible.role: Accessible.Heading
    Accessible.name: text
    Accessible.ignored: !visible || text === ""
}
