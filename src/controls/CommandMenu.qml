pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A menu, opened by a title in a CommandMenuBar or as the context menu of something:
//
//     CommandMenu {
//         id: rowMenu
//
//         CommandItem {
//             text: qsTr("&Play")
//             keys: "Return"
//             onTriggered: row.play()
//         }
//         CommandDivider {}
//     }
//
//     TapHandler {
//         acceptedButtons: Qt.RightButton
//         onTapped: rowMenu.popup()
//     }
//
// Opened by a key, popup(item, item.width / 2, item.height / 2, firstEntry) starts on an entry. The
// arrows, Home, End and the letters after "&" move through it; Esc closes it and gives the keyboard
// back.
T.Menu {
    id: menu

    // It is used from the keyboard: it starts on its first entry and shows which letter runs which.
    property bool showsLetters: false
    // Its title in a bar; Alt with the letter after "&" opens it.
    property string text

    title: Mnemonic.plainText(text)
    margins: Theme.fieldInset
    padding: Theme.commandPadding
    implicitWidth: Math.max(Theme.commandMenuWidth, contentWidth + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
    delegate: CommandItem {}
    onOpened: if (showsLetters)
        currentIndex = 0

    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        currentIndex: menu.currentIndex

        T.ScrollBar.vertical: ThinScrollBar {}
    }

    background: Rectangle {
        radius: Theme.menuRadius
        color: Theme.fieldList
        border.width: Theme.hairline
        border.color: Theme.overlayEdge
    }
}
