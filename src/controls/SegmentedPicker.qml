pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A few choices side by side, one of them chosen. Tab goes to that one, the arrows choose another.
Rectangle {
    id: picker

    required property list<string> labels
    required property int current
    property int focusPolicy: Qt.StrongFocus

    signal chosen(int index)

    implicitWidth: segments.implicitWidth + 2 * Theme.fieldInset
    implicitHeight: Theme.fieldHeight
    radius: Theme.fieldRadius
    color: Theme.fieldSurface
    border.width: Theme.hairline
    border.color: Theme.fieldEdge
    Accessible.role: Accessible.Grouping
    Keys.onLeftPressed: if (current > 0)
        chosen(current - 1)
    Keys.onRightPressed: if (current < labels.length - 1)
        chosen(current + 1)

    Row {
        id: segments

        x: Theme.fieldInset
        y: Theme.fieldInset

        Repeater {
            model: picker.labels

            T.Button {
                id: segment

                required property int index
                required property string modelData
                readonly property bool isChosen: index === picker.current

                objectName: "segment" + modelData
                focusPolicy: isChosen || activeFocus ? picker.focusPolicy : picker.focusPolicy & Qt.ClickFocus
                text: modelData
                font: Theme.field
                implicitWidth: Math.ceil(implicitContentWidth) + 2 * Theme.fieldSide
                implicitHeight: picker.height - 2 * Theme.fieldInset
                hoverEnabled: true
                // A press doesn't check it by itself: `current` does.
                checkable: true
                checked: isChosen
                onToggled: checked = Qt.binding(() => isChosen)
                Accessible.role: Accessible.RadioButton
                Accessible.name: text
                Accessible.onPressAction: click()
                Accessible.onToggleAction: click()
                onClicked: picker.chosen(index)
                onIsChosenChanged: if (isChosen && Window.activeFocusItem?.parent === segments && !activeFocus)
                    forceActiveFocus(Qt.TabFocusReason)

                contentItem: Text {
                    text: segment.text
                    font: segment.font
                    color: segment.isChosen ? Theme.primaryText : Theme.secondaryText
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }

                background: Rectangle {
                    radius: Theme.fieldRadius - Theme.fieldInset
                    color: segment.isChosen ? Theme.fieldChosen : segment.hovered ? Theme.rowHovered : "transparent"
                    border.width: segment.visualFocus ? Theme.focusWidth : 0
                    border.color: Theme.accent
                }
            }
        }
    }
}
