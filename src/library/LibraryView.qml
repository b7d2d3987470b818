pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

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

        // The line beside the sidebar, which a hand drags and the arrow keys move; two clicks put
        // it back.
        Item {
            id: divider

            objectName: "sidebarDivider"
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.left: recents.right
            width: Theme.hairline
            activeFocusOnTab: true
            Accessible.role: Accessible.Splitter
            Accessible.name: qsTr("Width of the sidebar")
            Accessible.focusable: true
            Keys.onLeftPressed: library.sidebarWidth.widen(-Theme.dividerStep)
            Keys.onRightPressed: library.sidebarWidth.widen(Theme.dividerStep)

            // The line is translucent, and what is behind the window is none of its business.
            Rectangle {
                anchors.fill: parent
                color: Theme.backdrop
            }

            Rectangle {
                anchors.fill: parent
                anchors.leftMargin: divider.activeFocus ? -Theme.focusWidth / 2 : 0
                anchors.rightMargin: anchors.leftMargin
                color: divider.activeFocus || area.pressed ? Theme.accent : area.containsMouse ? Theme.surfaceHovered : Theme.sidebarEdge
            }

            MouseArea {
                id: area

                // Where the hand took hold of it.
                property real grip: 0

                anchors.fill: parent
                anchors.leftMargin: -Theme.dividerReach
                anchors.rightMargin: -Theme.dividerReach
                cursorShape: Qt.SplitHCursor
                hoverEnabled: true
                onPressed: mouse => grip = mouse.x
                onPositionChanged: mouse => {
                    if (pressed)
                        library.sidebarWidth.width = divider.x + mouse.x - grip;
                }
                onDoubleClicked: library.sidebarWidth.reset()
            }
        }
    }
}
