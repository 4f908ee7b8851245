import QtQuick
import Tidewatch.Ui

/*! A figure in its place: one that is too long for it becomes smaller instead of being cut off. */
AccessibleText {
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 3
}
