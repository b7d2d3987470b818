pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// The line beside the sidebar, which a hand drags and the arrow keys move; two clicks put it back.
Item {
    id: divider

    required property SidebarWidth sidebar

    objectName: "sidebarDivider"
    implicitWidth: Theme.hairline
    activeFocusOnTab: true
    Accessible.role: Accessible.Splitter
    Accessible.name: qsTr("Width of the sidebar")
    Accessible.focusable: true
    Keys.onLeftPressed: sidebar.widen(-Theme.dividerStep)
    Keys.onRightPressed: sidebar.widen(Theme.dividerStep)

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: divider.activeFocus ? -Theme.focusWidth / 2 : 0
        anchors.rightMargin: anchors.leftMargin
        color: divider.activeFocus || area.pressed ? Theme.accent : area.containsMouse ? Theme.surfaceHovered : Theme.sidebarEdge
    }

    MouseArea {
        id: area

        // Where in it the hand took hold.
        property real grip: 0

        anchors.fill: parent
        anchors.leftMargin: -Theme.dividerReach
        anchors.rightMargin: -Theme.dividerReach
        cursorShape: Qt.SplitHCursor
        hoverEnabled: true
        onPressed: mouse => grip = mouse.x
        onPositionChanged: mouse => {
            if (pressed)
                divider.sidebar.width = divider.x + mouse.x - grip;
        }
        onDoubleClicked: divider.sidebar.reset()
    }
}
