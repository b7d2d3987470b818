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
        color: divider.activeFocus || drag.active ? Theme.accent : area.hovered ? Theme.surfaceHovered : Theme.sidebarEdge
    }

    Item {
        anchors.fill: parent
        anchors.leftMargin: -Theme.dividerReach
        anchors.rightMargin: -Theme.dividerReach

        HoverHandler {
            id: area
            cursorShape: Qt.SplitHCursor
        }

        TapHandler {
            onDoubleTapped: divider.sidebar.reset()
        }

        DragHandler {
            id: drag

            property real before: 0

            target: null
            yAxis.enabled: false
            dragThreshold: 0
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            onActiveChanged: before = divider.sidebar.width
            onActiveTranslationChanged: if (active)
                divider.sidebar.width = before + activeTranslation.x
        }
    }
}
