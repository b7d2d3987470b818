pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player

// The home window's content.
FocusScope {
    id: library

    required property PlaybackModel playback
    required property PlayerWindowController player
    required property SidebarWidth sidebarWidth
    required property FileManager fileManager

    // A file without a picture has no window of its own: its keys work here.
    readonly property bool hasPlayersKeys: player.playsWithoutWindow

    objectName: "libraryView"
    focus: true
    onHasPlayersKeysChanged: if (hasPlayersKeys)
        content.forceActiveFocus()

    Keys.onPressed: event => event.accepted = player.handleLibraryKey(event.key, event.modifiers, event.isAutoRepeat)

    Item {
        id: content

        anchors.fill: parent
        focus: true

        Keys.enabled: !library.hasPlayersKeys
        Keys.onUpPressed: recents.enter()
        Keys.onDownPressed: recents.enter()

        DropTargetState {
            id: drop

            objectName: "dropTarget"
            anchors.fill: parent
            onFilesDropped: files => library.playback.openFiles(files)
        }

        RecentsList {
            id: recents

            objectName: "librarySidebar"
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            width: library.sidebarWidth.width
            playback: library.playback
            fileManager: library.fileManager
        }

        LibraryDetail {
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.left: divider.right
            anchors.right: parent.right
            playback: library.playback
            player: library.player
            isTargeted: drop.isTargeted
        }

        SidebarDivider {
            id: divider

            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.left: recents.right
            sidebar: library.sidebarWidth
        }
    }
}
