pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// The tabs of a window's pages, each a symbol and a word. Tab goes to the current one, the arrows
// turn to another.
Row {
    id: strip

    required property list<string> labels
    required property list<string> symbols
    required property int current

    signal chosen(int index)

    spacing: Theme.commandPadding
    Accessible.role: Accessible.PageTabList
    Keys.onLeftPressed: if (current > 0)
        chosen(current - 1)
    Keys.onRightPressed: if (current < labels.length - 1)
        chosen(current + 1)

    Repeater {
        model: strip.labels

        T.Button {
            id: tab

            required property int index
            required property string modelData
            readonly property bool isCurrent: index === strip.current
            readonly property color tint: isCurrent ? Theme.accent : Theme.secondaryText

            objectName: "tab" + modelData
            width: Theme.tabWidth
            height: Theme.tabHeight
            focusPolicy: isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            focus: isCurrent
            hoverEnabled: true
            text: modelData
            Accessible.role: Accessible.PageTab
            Accessible.name: text
            Accessible.selected: isCurrent
            Accessible.onPressAction: click()
            onClicked: strip.chosen(index)
            onIsCurrentChanged: if (isCurrent && !activeFocus)
                forceActiveFocus(Qt.TabFocusReason)

            contentItem: Column {
                topPadding: Theme.commandPadding
                spacing: Theme.commandPadding / 2

                Symbol {
                    width: tab.width
                    name: strip.symbols[tab.index]
                    size: Theme.tabSymbolSize
                    color: tab.tint
                }

                Text {
                    width: tab.width
                    text: tab.text
                    font: Theme.panelCaption
                    color: tab.tint
                    horizontalAlignment: Text.AlignHCenter
                }
            }

            background: Rectangle {
                radius: Theme.controlRadius
                color: tab.isCurrent ? Theme.surface : tab.hovered ? Theme.rowHovered : "transparent"
                border.width: tab.visualFocus ? Theme.focusWidth : 0
                border.color: Theme.accent
            }
        }
    }
}
