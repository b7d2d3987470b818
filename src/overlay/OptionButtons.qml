pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// Speed, panels and full screen.
Row {
    id: options

    required property PlaybackModel playback
    required property PlayerChrome chrome
    // Holds what opens from here.
    required property Item room
    // What the panels belong to, in their order.
    readonly property Repeater panelButtons: panels

    signal fullscreenToggled

    // Opens and closes something. A press changes what it is only through that.
    component Opener: PushButton {
        look: Theme.barButton
        checkable: true
        checked: active
        onToggled: checked = Qt.binding(() => active)
        Accessible.role: Accessible.Button
    }

    SpeedMenu {
        anchors.verticalCenter: parent.verticalCenter
        playback: options.playback
        chrome: options.chrome
        room: options.room
    }

    Repeater {
        id: panels

        model: options.chrome.barPanels

        Opener {
            required property barPanel modelData

            objectName: modelData.button
            visible: modelData.button !== "" && (!modelData.needsPlaces || options.playback.hasPlaces)
            symbol: modelData.symbol
            tip: modelData.tip
            active: options.chrome.panel === modelData.panel
            onClicked: options.chrome.toggle(modelData.panel)
        }
    }

    Opener {
        objectName: "infoButton"
        symbol: "info.circle"
        tip: PlayerActions.tip(PlayerActions.Info)
        active: options.chrome.showsInfo
        onClicked: options.chrome.showsInfo = !options.chrome.showsInfo
    }

    PushButton {
        objectName: "fullscreenButton"
        look: Theme.barButton
        symbol: options.playback.isFullscreen ? "arrow.down.right.and.arrow.up.left" : "arrow.up.left.and.arrow.down.right"
        tip: PlayerActions.tip(options.playback.isFullscreen ? PlayerActions.ExitFullScreen : PlayerActions.EnterFullScreen)
        onClicked: options.fullscreenToggled()
    }
}
