pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player

// Speed, panels and full screen.
Row {
    id: options

    required property PlaybackModel playback
    required property PlayerChrome chrome
    // Holds what opens from here.
    required property Item room
    readonly property real speedWidth: speed.width
    // What the panels belong to.
    readonly property Item chaptersButton: chapters
    readonly property Item tracksButton: tracks
    readonly property Item queueButton: queue

    signal fullscreenToggled

    // Opens and closes something. A press changes what it is only through that.
    component Opener: IconButton {
        checkable: true
        checked: active
        onToggled: checked = Qt.binding(() => active)
        Accessible.role: Accessible.Button
    }

    SpeedMenu {
        id: speed

        anchors.verticalCenter: parent.verticalCenter
        playback: options.playback
        chrome: options.chrome
        room: options.room
    }

    Opener {
        id: chapters

        objectName: "chaptersButton"
        visible: options.playback.chapters.length > 0
        symbol: "list.bullet.rectangle"
        tip: PlayerActions.tip(PlayerActions.Chapters)
        active: options.chrome.showsChapters
        onClicked: options.chrome.showsChapters = !options.chrome.showsChapters
    }

    Opener {
        id: tracks

        objectName: "tracksButton"
        symbol: "captions.bubble"
        tip: PlayerActions.tip(PlayerActions.Tracks)
        active: options.chrome.showsTracks
        onClicked: options.chrome.showsTracks = !options.chrome.showsTracks
    }

    Opener {
        id: queue

        objectName: "queueButton"
        symbol: "list.and.film"
        tip: PlayerActions.tip(PlayerActions.Queue)
        active: options.chrome.showsQueue
        onClicked: options.chrome.showsQueue = !options.chrome.showsQueue
    }

    Opener {
        objectName: "infoButton"
        symbol: "info.circle"
        tip: PlayerActions.tip(PlayerActions.Info)
        active: options.chrome.showsInfo
        onClicked: options.chrome.showsInfo = !options.chrome.showsInfo
    }

    IconButton {
        objectName: "fullscreenButton"
        symbol: options.playback.isFullscreen ? "arrow.down.right.and.arrow.up.left" : "arrow.up.left.and.arrow.down.right"
        tip: PlayerActions.tip(options.playback.isFullscreen ? PlayerActions.ExitFullScreen : PlayerActions.EnterFullScreen)
        onClicked: options.fullscreenToggled()
    }
}
