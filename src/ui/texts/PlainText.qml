import QtQuick

/*! Plain text: by default the toolkit interprets anything that looks like markup, and fetches its images. */
Text {
    textFormat: Text.PlainText
}
