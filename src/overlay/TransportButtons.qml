pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// To and fro in the file and in the queue.
Row {
    id: transport

    required property PlaybackModel playback

    component Step: IconButton {
        anchors.verticalCenter: parent.verticalCenter
    }

    Step {
        objectName: "previousButton"
        visible: transport.playback.queue.length > 1
        enabled: transport.playback.hasPrevious
        symbol: "backward.end.fill"
        size: Theme.skipSymbolSize
        tip: PlayerActions.tip(PlayerActions.Previous)
        onClicked: transport.playback.playPrevious()
    }

    Step {
        objectName: "backButton"
        symbol: "gobackward.10"
        tip: PlayerActions.tip(PlayerActions.Back)
        onClicked: transport.playback.seekBy(-PlayerActions.seekStep)
    }

    PlayPauseButton {
        playback: transport.playback
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
        size: Theme.skipSymbolSize
        tip: PlayerActions.tip(PlayerActions.Next)
        onClicked: transport.playback.playNext()
    }
}
