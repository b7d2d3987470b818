pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// The sidebar: the files that were played last.
Rectangle {
    id: sidebar

    required property PlaybackModel playback
    required property FileManager fileManager

    color: Theme.sidebar

    // Gives the keyboard to the row that had it last.
    function enter() {
        list.forceActiveFocus(Qt.TabFocusReason);
    }

    Text {
        id: heading

        objectName: "recentsHeading"
        x: Theme.sidebarPadding + Theme.rowSide
        height: Theme.headerHeight
        width: parent.width - 2 * x
        text: qsTr("Recently Played")
        font: Theme.sidebarHeader
        color: Theme.secondaryText
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Text {
        objectName: "noRecents"
        visible: sidebar.playback.hasNoRecents
        anchors.top: heading.bottom
        x: heading.x
        width: heading.width
        text: qsTr("Videos you play appear here.")
        font: Theme.libraryText
        color: Theme.secondaryText
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    ListView {
        id: list

        objectName: "recentsList"
        anchors.top: heading.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.sidebarPadding
        bottomMargin: Theme.sidebarPadding
        activeFocusOnTab: count > 0
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        interactive: contentHeight > height
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        // The keyboard starts at the top, whatever has come into the list before.
        currentIndex: -1
        onActiveFocusChanged: if (activeFocus && currentIndex < 0)
            currentIndex = 0
        Accessible.role: Accessible.List
        Accessible.name: heading.text
        // No row is left for the keyboard.
        onCountChanged: if (count === 0 && activeFocus)
            nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)

        Keys.onReturnPressed: open()
        Keys.onEnterPressed: open()
        Keys.onSpacePressed: open()
        Keys.onMenuPressed: showMenu()
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier;
            if (event.accepted)
                showMenu();
        }

        function open() {
            (currentItem as RecentRow)?.click();
        }
        function showMenu() {
            (currentItem as RecentRow)?.menuRequested(Qt.point(currentItem.width / 2, currentItem.height), 0);
        }

        model: RecentsModel {
            files: sidebar.playback.recents
        }

        delegate: RecentRow {
            required property int index

            objectName: "recentRow"
            width: ListView.view.width - Theme.sidebarPadding
            films: sidebar.playback.films
            chosen: list.activeFocus && ListView.isCurrentItem
            marked: menu.visible && menu.file === file
            onClicked: sidebar.playback.openFile(file)
            onMenuRequested: (place, first) => {
                menu.file = file;
                menu.popup(this, place, menu.itemAt(first));
            }
        }

        T.ScrollBar.vertical: ThinScrollBar {}
    }

    CommandMenu {
        id: menu

        // The file that the menu is for, whatever becomes of its row.
        property url file
        // Had the keyboard, and gets it back.
        property Item before: null

        objectName: "recentMenu"
        onAboutToShow: before = sidebar.Window.activeFocusItem
        onClosed: before?.forceActiveFocus(Qt.PopupFocusReason)

        CommandItem {
            objectName: "addToQueue"
            text: qsTr("Add to Queue")
            onTriggered: sidebar.playback.enqueue([menu.file])
        }
        CommandItem {
            objectName: "showInFileManager"
            text: Wording.shown(qsTr("Show in Finder"))
            onTriggered: sidebar.fileManager.show(menu.file)
        }
        CommandItem {
            objectName: "removeFromRecents"
            text: qsTr("Remove from Recents")
            onTriggered: sidebar.playback.removeRecent(menu.file)
        }
    }
}
