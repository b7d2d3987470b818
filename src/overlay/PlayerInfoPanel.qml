pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// What is played and how, while the person wants to know. Lower than its content, it scrolls.
OverlaySurface {
    id: panel

    required property PlaybackModel playback
    required property PlayerChrome chrome

    // Made once for all rows, and only while they are seen.
    readonly property list<string> values: visible ? playback.infoValues : []

    objectName: "playerInfoPanel"
    visible: chrome.showsInfo
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Playback info")
    implicitWidth: Theme.infoWidth
    implicitHeight: rows.implicitHeight + 2 * Theme.infoPadding
    radius: Theme.infoRadius

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
