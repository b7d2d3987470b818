pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// The transport: buttons above, the position below. Nothing in it takes the keyboard.
OverlaySurface {
    id: bar

    required property PlaybackModel playback
    required property PlayerChrome chrome

    readonly property Item chaptersButton: options.chaptersButton
    readonly property Item tracksButton: options.tracksButton
    readonly property Item queueButton: options.queueButton

    signal fullscreenToggled

    objectName: "playerControlBar"
    implicitWidth: Theme.controlBarWidth
    implicitHeight: content.y + content.implicitHeight + Theme.barBottom
    radius: Theme.barRadius
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Playback controls")

    Column {
        id: content

        x: Theme.barSide
        y: Theme.barTop
        width: bar.width - 2 * Theme.barSide
        spacing: Theme.barSpacing

        Item {
            width: content.width
            height: Theme.playButtonHeight

            VolumeControls {
                anchors.verticalCenter: parent.verticalCenter
                playback: bar.playback
                sliderWidth: options.row.volumeWidth
            }

            TransportButtons {
                x: options.row.transportX
                spacing: options.row.transportSpacing
                anchors.verticalCenter: parent.verticalCenter
                playback: bar.playback
            }

            OptionButtons {
                id: options

                readonly property controlBarRow row: Format.controlBarRow(content.width, bar.playback.queue.length > 1, bar.playback.chapters.length > 0, speedWidth)

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: row.optionsSpacing
                playback: bar.playback
                chrome: bar.chrome
                room: bar.parent
                onFullscreenToggled: bar.fullscreenToggled()
            }
        }

        TimeRow {
            width: content.width
            playback: bar.playback
        }
    }
}
