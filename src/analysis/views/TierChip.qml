import QtQuick
import Tidewatch.Analysis
import Tidewatch.Ui

/*! Filters the table by a tier. */
Chip {
    required property tierSwitch tier

    text: tier.title
    color: tier.color
    checked: tier.on
}
