pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// The transport: buttons above, the position below. Nothing in it takes the keyboard.
OverlaySurface {
    id: bar

    required property PlaybackModel playback
    required property PlayerChrome chrome

    readonly property Repeater panelButtons: optionButtons.panelButtons
    readonly property SliderInput position: times.input
    readonly property real positionX: x + content.x + position.x

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

        ControlBarRow {
            id: row

            width: content.width
            height: Theme.playButtonHeight
            transport: transportButtons
            options: optionButtons
            mute: Theme.muteWidth
            gap: Theme.groupSpacing
            fullVolume: Theme.volumeWidth
            leastVolume: Theme.volumeLeastWidth
            wideGaps: Qt.point(Theme.transportSpacing, Theme.optionsSpacing)
            tightGaps: Qt.point(Theme.transportTightSpacing, Theme.optionsTightSpacing)

            VolumeControls {
                anchors.verticalCenter: parent.verticalCenter
                playback: bar.playback
                sliderWidth: row.volumeWidth
            }

            TransportButtons {
                id: transportButtons

                x: row.transportX
                spacing: row.transportSpacing
                anchors.verticalCenter: parent.verticalCenter
                playback: bar.playback
            }

            OptionButtons {
                id: optionButtons

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
            id: times

            width: content.width
            playback: bar.playback
        }
    }
}
