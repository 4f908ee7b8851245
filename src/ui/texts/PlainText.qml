import QtQuick

/*! Words just as they are: left to itself, the toolkit takes for markup what looks like it, and fetches its pictures. */
Text {
    textFormat: Text.PlainText
}
