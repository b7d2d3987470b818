pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Theme

// A line of a panel that can be pressed anywhere.
T.AbstractButton {
    id: row

    property color rest: "transparent"
    // How much further to the sides its background reaches.
    property real outset: 0
    // Shown where the pointer rests, if there is one.
    property string tip: ""

    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: click()
    Accessible.onToggleAction: click()

    leftInset: -outset
    rightInset: -outset

    background: Rectangle {
        radius: Theme.rowRadius
        color: row.rest
        border.width: row.visualFocus ? Theme.focusWidth : 0
        border.color: Theme.accent

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: row.down ? Theme.rowPressed : row.hovered ? Theme.rowHovered : "transparent"
        }
    }

    HoverTip {
        control: row
        tip: row.tip
    }
}
