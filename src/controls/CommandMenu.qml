pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A menu: below a title of a CommandMenuBar, or where the hand asks for what can be done with
// something:
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
// From the keyboard, popup(item, item.width / 2, item.height / 2, firstEntry) begins at an entry.
// Arrows, Home, End and letters after "&" go through it, Esc closes it and gives the keyboard back.
T.Menu {
    id: menu

    // It is used by keys: begins at its first entry, and shows which letter runs which.
    property bool showsLetters: false
    // Its title in a bar; the letter after "&" opens it together with Alt.
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
