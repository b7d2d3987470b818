pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player

// The library's window: its scene fades, the window itself stays.
Window {
    id: window

    required property PlaybackModel playback
    required property PlayerWindowController player

    title: qsTr("Tromelo")
    color: "transparent"
    minimumWidth: 760
    minimumHeight: 480
    visible: false

    LibraryView {
        objectName: "libraryScene"
        anchors.fill: parent
        playback: window.playback
        player: window.player
    }
}
