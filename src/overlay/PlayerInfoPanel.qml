pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// What is played and how, while the person wants to know. Lower than its content, it scrolls.
OverlaySurface {
    id: panel

    required property PlaybackModel playback
    required property PlayerChrome chrome

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

            InfoRow {
                objectName: "infoSignal"
                label: qsTr("Signal")
                value: panel.playback.dynamicRange.label
            }
            InfoRow {
                objectName: "infoOutput"
                label: qsTr("Output")
                value: panel.playback.output
            }
            InfoRow {
                objectName: "infoDisplay"
                label: qsTr("Display")
                value: panel.playback.display
            }
            Rectangle {
                width: parent.width
                height: Theme.hairline
                color: Theme.infoDivider
            }
            InfoRow {
                objectName: "infoVideo"
                label: qsTr("Video")
                value: panel.playback.videoSize + " · " + panel.playback.frameRate
            }
            InfoRow {
                objectName: "infoCodec"
                label: qsTr("Codec")
                value: panel.playback.codec
            }
            InfoRow {
                objectName: "infoDecoder"
                label: qsTr("Decoder")
                value: Wording.shown(panel.playback.decoder)
            }
            InfoRow {
                objectName: "infoContainer"
                label: qsTr("Container")
                value: panel.playback.container
            }
            InfoRow {
                objectName: "infoDropped"
                label: qsTr("Dropped")
                value: qsTr("%1 decode · %2 output").arg(panel.playback.decoderFrameDrops).arg(panel.playback.outputFrameDrops)
            }
        }
    }
}
