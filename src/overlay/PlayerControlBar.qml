pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Where playback is and the way to stop and go on.
OverlaySurface {
    id: bar

    required property PlaybackModel playback

    objectName: "playerControlBar"
    implicitWidth: Theme.controlBarWidth
    implicitHeight: 86
    radius: 24

    PlayPauseButton {
        id: play

        anchors.horizontalCenter: parent.horizontalCenter
        y: 12
        isPaused: bar.playback.isPaused
        onClicked: bar.playback.togglePlayback()
    }

    Text {
        anchors.left: parent.left
        anchors.right: elapsed.left
        anchors.leftMargin: 18
        anchors.rightMargin: 12
        anchors.verticalCenter: elapsed.verticalCenter
        text: bar.playback.title
        textFormat: Text.PlainText
        font: Theme.overlayTitle
        color: Theme.overlayText
        elide: Text.ElideMiddle
    }

    Text {
        id: elapsed

        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.top: play.bottom
        anchors.topMargin: 10
        text: Format.clock(bar.playback.elapsed)
        font: Theme.overlayClock
        color: Theme.overlayFaintText
    }
}
