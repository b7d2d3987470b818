pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Theme

// An entry of the menu over the picture: whether it is on, what it is called, how things are, and the
// key that does the same. What opens a menu of its own ends with an arrow; a value between two arrows
// goes back and forth by them, and by the arrow keys, while the menu stays open.
T.MenuItem {
    id: entry

    property string value
    property string keys
    // It can't be done now.
    property string why
    property bool isStepped: false

    signal stepped(int steps)

    font: Theme.field
    implicitWidth: Math.ceil(label.implicitWidth + tail.width) + leftPadding + rightPadding
    implicitHeight: Theme.commandRow
    leftPadding: Theme.menuIndent
    rightPadding: Theme.commandSide
    enabled: why === ""
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: why || [value, keys].filter(part => part !== "").join(", ")
    Accessible.onPressAction: isStepped ? stepped(1) : click()
    Accessible.onIncreaseAction: stepped(1)
    Accessible.onDecreaseAction: stepped(-1)
    Keys.onLeftPressed: event => isStepped ? stepped(-1) : event.accepted = false
    Keys.onRightPressed: event => isStepped ? stepped(1) : event.accepted = false
    Keys.onSpacePressed: event => isStepped ? stepped(1) : event.accepted = false
    Keys.onReturnPressed: event => isStepped ? stepped(1) : event.accepted = false
    Keys.onEnterPressed: event => isStepped ? stepped(1) : event.accepted = false

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

            Text {
                id: back

                height: parent.height
                visible: entry.isStepped
                text: "‹"
                textFormat: Text.PlainText
                font: entry.font
                color: Theme.secondaryText
                verticalAlignment: Text.AlignVCenter
            }

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
                text: entry.subMenu || entry.isStepped ? "›" : entry.keys
                textFormat: Text.PlainText
                font: entry.font
                color: entry.highlighted ? Theme.primaryText : Theme.secondaryText
                verticalAlignment: Text.AlignVCenter
            }
        }
    }

    // A click doesn't close the menu.
    MouseArea {
        objectName: "menuSteps"
        anchors.fill: parent
        visible: entry.isStepped
        onClicked: mouse => entry.stepped(mouse.x < mapFromItem(back, back.width, 0).x + Theme.rowSpacing && mouse.x > mapFromItem(back, -Theme.rowSpacing, 0).x ? -1 : 1)
    }

    background: Rectangle {
        radius: Theme.menuRadius - Theme.commandPadding
        color: entry.down ? Theme.fieldPressed : entry.highlighted && entry.enabled ? Theme.fieldOn : "transparent"
    }
}
