pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// What is played and how, while the person wants to know. Lower than its content, it scrolls.
OverlaySurface {
    id: panel

    required property PlaybackModel playback

    // Made once for all rows, and only while they are seen.
    readonly property list<string> values: visible ? playback.infoValues : []

    objectName: "playerInfoPanel"
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Playback info")
    implicitWidth: Theme.infoWidth
    implicitHeight: rows.implicitHeight + 2 * Theme.infoPadding
    radius: Theme.infoRadius

    // A label and its value on one line; without a label a line that divides.
    component InfoRow: Item {
        id: row

        required property string label
        required property string value

        visible: !label || value !== ""
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
            wrapMode: Text.WordWrap
            elide: Text.ElideRight
            maximumLineCount: Theme.infoLines
            Accessible.ignored: true
        }
    }

    Flickable {
        anchors.fill: parent
        anchors.margins: Theme.infoPadding
        contentHeight: rows.implicitHeight
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive

        Column {
            id: rows

            width: parent.width
            spacing: Theme.infoSpacing

            Repeater {
                model: panel.playback.infoLabels

                InfoRow {
                    required property int index
                    required property string modelData

                    objectName: panel.playback.infoNames[index]
                    label: modelData
                    value: panel.values[index] ?? ""
                }
            }
        }
    }
}
