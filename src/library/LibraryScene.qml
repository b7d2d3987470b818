pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Player

// The library's window: its scene fades, the window itself stays.
Window {
    id: window

    required property PlaybackModel playback
    required property PlayerWindowController player
    required property SidebarWidth sidebarWidth
    required property FileManager fileManager
    required property Commands commands

    title: qsTr("Tromelo")
    color: "transparent"
    minimumWidth: 760
    minimumHeight: 480
    visible: false

    ColumnLayout {
        objectName: "libraryScene"
        anchors.fill: parent
        spacing: 0

        LibraryMenuBar {
            Layout.fillWidth: true
            commands: window.commands
        }

        LibraryView {
            Layout.fillWidth: true
            Layout.fillHeight: true
            playback: window.playback
            player: window.player
            sidebarWidth: window.sidebarWidth
            fileManager: window.fileManager
        }
    }
}
