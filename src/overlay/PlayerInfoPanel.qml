pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Player
import Tromelo.Theme

// What is played and how, while the person wants to know.
OverlaySurface {
    id: panel

    required property PlaybackModel playback
    required property PlayerChrome chrome

    objectName: "playerInfoPanel"
    visible: chrome.showsInfo
    implicitWidth: 330
    implicitHeight: rows.implicitHeight + 28
    radius: 18

    component Row: RowLayout {
        id: row

        required property string label
        required property string value

        spacing: 10

        Text {
            Layout.preferredWidth: 66
            text: row.label
            font: Theme.overlayClock
            color: Theme.overlayFaintText
        }

        Text {
            Layout.fillWidth: true
            text: row.value
            textFormat: Text.PlainText
            font: Theme.overlayClock
            color: Theme.overlayText
            elide: Text.ElideRight
        }
    }

    ColumnLayout {
        id: rows

        anchors.fill: parent
        anchors.margins: 14
        spacing: 8

        Row {
            label: qsTr("Signal")
            value: panel.playback.dynamicRange.label
        }
        Row {
            label: qsTr("Output")
            value: panel.playback.output
        }
        Row {
            label: qsTr("Display")
            value: panel.playback.display
        }
        Row {
            label: qsTr("Video")
            value: panel.playback.videoSize
        }
        Row {
            label: qsTr("Codec")
            value: panel.playback.codec
        }
        Row {
            label: qsTr("Decoder")
            value: panel.playback.decoder
        }
    }
}
