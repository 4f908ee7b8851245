import QtQuick
import Tidewatch.Ui

/*! Words that assistive technology reads by themselves: a plain text is silent. */
PlainText {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    // What is hidden is told to assistive technology like what must be scrolled to.
    Accessible.ignored: !visible || text === ""
}
