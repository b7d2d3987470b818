pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Player

// All that is in the library's window. It fades; the window itself stays.
ColumnLayout {
    id: scene

    required property PlaybackModel playback
    required property PlayerWindowController player
    required property SidebarWidth sidebarWidth
    required property FileManager fileManager
    required property Commands commands

    anchors.fill: parent
    spacing: 0

    LibraryMenuBar {
        Layout.fillWidth: true
        commands: scene.commands
        isPrivate: scene.playback.isPrivate
    }

    LibraryView {
        Layout.fillWidth: true
        Layout.fillHeight: true
        playback: scene.playback
        player: scene.player
        sidebarWidth: scene.sidebarWidth
        fileManager: scene.fileManager
    }
}
