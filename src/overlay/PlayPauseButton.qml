pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Says what a press on it does.
PlainButton {
    id: button

    required property PlaybackModel playback

    objectName: "playerPlayPause"
    implicitWidth: Theme.playButtonWidth
    implicitHeight: Theme.playButtonHeight
    tip: PlayerActions.tip(playback.isPaused ? PlayerActions.Play : PlayerActions.Pause)
    onClicked: playback.togglePlayback()

    contentItem: Symbol {
        objectName: "playPauseSymbol"
        name: button.playback.isPaused ? "play.fill" : "pause.fill"
        size: Theme.playSymbolSize
        color: Theme.overlayText
    }
}
