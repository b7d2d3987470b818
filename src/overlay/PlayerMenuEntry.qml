pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Theme

// An entry of the menu over the picture: whether it is on, what it is called, how things are, and the
// key that does the same. What opens a menu of its own ends with an arrow.
T.MenuItem {
    id: entry

    property string value
    property string keys
    // It can't be done now.
    property string why

    font: Theme.field
    implicitWidth: Math.ceil(label.implicitWidth + tail.width) + leftPadding + rightPadding
    implicitHeight: Theme.commandRow
    leftPadding: Theme.menuIndent
    rightPadding: Theme.commandSide
    enabled: why === ""
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: why || [value, keys].filter(part => part !== "").join(", ")
    Accessible.onPressAction: click()

    indicator: Symbol {
        x: Theme.commandSide
        height: entry.height
        visible: entry.checked
        name: "checkmark"
        size: Theme.checkmarkSize
        color: Theme.overlayText
    }

    contentItem: Item {
        opacity: entry.enabled ? 1 : Theme.disabledOpacity

        Text {
            id: label

            height: parent.height
            text: entry.text
            textFormat: Text.PlainText
            font: entry.font
            color: Theme.primaryText
            verticalAlignment: Text.AlignVCenter
        }

        Row {
            id: tail

            anchors.right: parent.right
            height: parent.height
            leftPadding: Theme.commandGap
            spacing: Theme.rowSpacing

            OneLine {
                width: Math.min(implicitWidth, Theme.menuValueWidth)
                height: parent.height
                visible: text !== ""
                content: entry.value
                font: entry.font
                color: entry.highlighted ? Theme.primaryText : Theme.secondaryText
                verticalAlignment: Text.AlignVCenter
            }

            Text {
                height: parent.height
                visible: text !== ""
                text: entry.subMenu ? "›" : entry.keys
                textFormat: Text.PlainText
                font: entry.font
                color: entry.highlighted ? Theme.primaryText : Theme.secondaryText
                verticalAlignment: Text.AlignVCenter
            }
        }
    }

    background: Rectangle {
        radius: Theme.menuRadius - Theme.commandPadding
        color: entry.down ? Theme.fieldPressed : entry.highlighted && entry.enabled ? Theme.fieldOn : "transparent"
    }
}
