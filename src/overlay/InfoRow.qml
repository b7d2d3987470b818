pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// A label and its value on one line; without a label a line that divides.
Item {
    id: row

    required property string label
    required property string value

    width: parent.width
    implicitHeight: label ? Math.ceil(text.implicitHeight) : Theme.hairline
    Accessible.role: label ? Accessible.StaticText : Accessible.Separator
    Accessible.name: label ? label + ": " + value : ""

    Rectangle {
        anchors.fill: parent
        visible: !row.label
        color: Theme.infoDivider
    }

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
