import QtQuick
import Tidewatch.Analysis
import Tidewatch.Ui

/*! Lets a tier into the table, or keeps it out. */
Chip {
    required property tierSwitch tier

    text: tier.title
    color: tier.color
    checked: tier.on
}
