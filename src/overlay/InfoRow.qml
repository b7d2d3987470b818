pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// A label and its value on one line.
Item {
    id: row

    required property string label
    required property string value

    width: parent.width
    implicitHeight: Math.ceil(text.implicitHeight)
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    Text {
        anchors.baseline: text.baseline
        text: row.label.toUpperCase()
        font: Theme.overlayLabel
        color: Theme.infoLabel
        Accessible.ignored: true
    }

    Text {
        id: text

        x: Theme.infoLabelWidth + Theme.infoLabelGap
        width: row.width - x
        text: row.value
        textFormat: Text.PlainText
        font: Theme.overlayValue
        color: Theme.infoValue
        elide: Text.ElideRight
        maximumLineCount: 1
        Accessible.ignored: true
    }
}
