pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// The titles of a window's CommandMenus. Alt by itself or F10 opens the first one; Alt with the
// letter after "&" in a title opens that one.
T.MenuBar {
    id: bar

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: Theme.commandBarHeight
    leftPadding: Theme.commandPadding
    rightPadding: Theme.commandPadding
    font: Theme.field
    Accessible.role: Accessible.MenuBar

    delegate: CommandMenuTitle {
        height: bar.height - 2 * Theme.fieldInset
        showsLetters: keys.showsLetters
    }

    contentItem: Row {
        topPadding: Theme.fieldInset

        Repeater {
            model: bar.contentModel
        }
    }

    background: Rectangle {
        color: Theme.backdrop

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.hairline
            color: Theme.infoDivider
        }
    }

    MenuKeys {
        id: keys

        bar: bar
        onCalled: (bar.itemAt(0) as CommandMenuTitle).open()
    }
}
