pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Player
import Tromelo.Theme

// The speeds to choose from. A press anywhere else dismisses it and does nothing besides.
MouseArea {
    id: list

    required property PlaybackModel playback
    // What it belongs to, in its own coordinates.
    required property rect anchor

    signal dismissed

    objectName: "speedList"
    hoverEnabled: true
    acceptedButtons: Qt.AllButtons
    onPressed: dismissed()
    onWheel: wheel => wheel.accepted = true

    Rectangle {
        readonly property point place: PopoverFrame.placeAbove(list.anchor, Qt.size(width, height), Qt.size(list.parent.width, list.parent.height))

        x: place.x
        y: place.y
        width: Theme.menuWidth
        height: speeds.implicitHeight + 2 * speeds.y
        radius: Theme.menuRadius
        color: Theme.menuSurface
        border.width: Theme.hairline
        border.color: Theme.overlayEdge
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Playback speed")

        Column {
            id: speeds

            x: Theme.menuPadding
            y: Theme.menuPadding
            width: parent.width - 2 * x

            Repeater {
                model: Format.speeds

                T.AbstractButton {
                    id: entry

                    required property real modelData
                    readonly property bool isCurrent: Format.isSameSpeed(modelData, list.playback.speed)

                    objectName: "speed" + text
                    width: speeds.width
                    implicitHeight: Theme.menuRow
                    focusPolicy: Qt.NoFocus
                    hoverEnabled: true
                    text: Format.speed(modelData)
                    // A press changes it only through the speed.
                    checkable: true
                    checked: isCurrent
                    onToggled: checked = Qt.binding(() => isCurrent)
                    Accessible.role: Accessible.MenuItem
                    Accessible.onPressAction: click()
                    onClicked: {
                        list.playback.setSpeed(modelData);
                        list.dismissed();
                    }

                    background: Rectangle {
                        radius: Theme.controlRadius
                        color: entry.hovered ? Theme.controlActive : "transparent"
                    }

                    contentItem: Item {
                        Symbol {
                            objectName: "speedCheckmark"
                            x: Theme.menuPadding
                            height: parent.height
                            visible: entry.isCurrent
                            name: "checkmark"
                            size: Theme.checkmarkSize
                            color: Theme.overlayText
                        }

                        Text {
                            x: Theme.menuIndent
                            height: parent.height
                            verticalAlignment: Text.AlignVCenter
                            text: entry.text
                            font: Theme.overlayValue
                            color: Theme.overlayText
                        }
                    }
                }
            }
        }
    }
}
