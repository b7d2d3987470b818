pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// How loud it is.
Row {
    id: controls

    required property PlaybackModel playback
    // 0 where there is no room for the slider.
    required property real sliderWidth

    spacing: Theme.groupSpacing

    PushButton {
        objectName: "muteButton"
        look: Theme.barButton
        implicitWidth: Theme.muteWidth
        implicitHeight: Theme.muteHeight
        symbol: Format.volumeSymbol(controls.playback.volume, controls.playback.isMuted)
        symbolSize: Theme.muteSymbolSize
        tint: Theme.overlayText
        tip: PlayerActions.tip(controls.playback.isMuted ? PlayerActions.Unmute : PlayerActions.Mute)
        onClicked: controls.playback.toggleMute()
    }

    PlayerSlider {
        objectName: "volumeSlider"
        anchors.verticalCenter: parent.verticalCenter
        visible: width > 0
        width: controls.sliderWidth
        name: qsTr("Volume")
        shown: controls.playback.volume
        maximumValue: 100
        stepSize: PlayerActions.volumeStep
        onMoved: value => controls.playback.setVolume(value)
    }
}
