pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// An entry of a CommandMenu. The letter after "&" runs it while its menu is open.
T.MenuItem {
    id: item

    // The keys that run it without the menu, for people to read; it doesn't listen for them itself.
    property string keys

    font: Theme.field
    implicitWidth: Math.ceil(label.implicitWidth + keysLabel.width) + leftPadding + rightPadding
    implicitHeight: Theme.commandRow
    leftPadding: Theme.commandSide
    rightPadding: Theme.commandSide
    hoverEnabled: true
    Accessible.name: Mnemonic.plainText(text)
    Accessible.description: keys
    Accessible.onPressAction: click()

    contentItem: Item {
        opacity: item.enabled ? 1 : Theme.disabledOpacity

        Text {
            id: label

            height: parent.height
            text: Mnemonic.markedText(item.text, (item.menu as CommandMenu)?.showsLetters ?? false)
            textFormat: Text.StyledText
            font: item.font
            color: Theme.primaryText
            verticalAlignment: Text.AlignVCenter
        }

        Text {
            id: keysLabel

            anchors.right: parent.right
            width: item.keys === "" ? 0 : implicitWidth
            height: parent.height
            leftPadding: Theme.commandGap
            text: item.keys
            textFormat: Text.PlainText
            font: item.font
            color: item.highlighted ? Theme.primaryText : Theme.secondaryText
            verticalAlignment: Text.AlignVCenter
        }
    }

    background: Rectangle {
        radius: Theme.menuRadius - Theme.commandPadding
        color: item.down ? Theme.fieldPressed : item.highlighted && item.enabled ? Theme.fieldOn : "transparent"
    }

    Shortcut {
        enabled: item.enabled && (item.menu?.visible ?? false)
        sequence: Mnemonic.letter(item.text)
        onActivated: item.click()
    }
}
