pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// To and fro in the file and in the queue.
Row {
    id: transport

    required property PlaybackModel playback

    component Step: PushButton {
        look: Theme.barButton
        anchors.verticalCenter: parent.verticalCenter
    }

    Step {
        objectName: "previousButton"
        visible: transport.playback.queue.length > 1
        enabled: transport.playback.hasPrevious
        symbol: "backward.end.fill"
        symbolSize: Theme.skipSymbolSize
        tip: PlayerActions.tip(PlayerActions.Previous)
        onClicked: transport.playback.playPrevious()
    }

    Step {
        objectName: "backButton"
        symbol: "gobackward.10"
        tip: PlayerActions.tip(PlayerActions.Back)
        onClicked: transport.playback.seekBy(-PlayerActions.seekStep)
    }

    // Says what a press on it does.
    Step {
        objectName: "playerPlayPause"
        implicitWidth: Theme.playButtonWidth
        implicitHeight: Theme.playButtonHeight
        symbol: transport.playback.isPaused ? "play.fill" : "pause.fill"
        symbolSize: Theme.playSymbolSize
        tint: Theme.overlayText
        tip: PlayerActions.tip(transport.playback.isPaused ? PlayerActions.Play : PlayerActions.Pause)
        onClicked: transport.playback.togglePlayback()
    }

    Step {
        objectName: "forwardButton"
        symbol: "goforward.10"
        tip: PlayerActions.tip(PlayerActions.Forward)
        onClicked: transport.playback.seekBy(PlayerActions.seekStep)
    }

    Step {
        objectName: "nextButton"
        visible: transport.playback.queue.length > 1
        enabled: transport.playback.hasNext
        symbol: "forward.end.fill"
        symbolSize: Theme.skipSymbolSize
        tip: PlayerActions.tip(PlayerActions.Next)
        onClicked: transport.playback.playNext()
    }
}
