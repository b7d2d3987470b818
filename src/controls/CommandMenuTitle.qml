pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// The title of a CommandMenu in a CommandMenuBar.
T.MenuBarItem {
    id: title

    required property bool showsLetters
    readonly property CommandMenu commands: menu as CommandMenu

    // For keys: the first click may do no more than highlight the title.
    function open() {
        click();
        if (!menu.visible)
            click();
    }

    objectName: "menuTitle" + text
    font: Theme.field
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    leftPadding: Theme.commandSide
    rightPadding: Theme.commandSide
    hoverEnabled: true
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.onPressAction: open()

    contentItem: Text {
        text: Mnemonic.markedText(title.commands.text, title.showsLetters)
        textFormat: Text.StyledText
        font: title.font
        color: Theme.primaryText
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: Theme.fieldRadius
        color: title.highlighted ? Theme.fieldChosen : title.hovered ? Theme.rowHovered : "transparent"
    }

    Shortcut {
        enabled: !title.menu.visible
        sequence: "Alt+" + Mnemonic.letter(title.commands.text)
        onActivated: title.open()
    }

    Binding {
        target: title.commands
        property: "showsLetters"
        value: title.showsLetters
    }
}
