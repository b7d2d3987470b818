pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// The card that lists the keys, in two columns. Lower than its content, it scrolls.
OverlaySurface {
    id: panel

    required property PlayerChrome chrome
    property list<shortcutGroup> groups: PlayerShortcuts.groups

    readonly property real columnWidth: (width - 2 * Theme.shortcutsPadding - Theme.shortcutsGap) / 2
    readonly property real keysWidth: PlayerShortcuts.keysWidth(groups, Theme.shortcutKeys, Theme.shortcutsKeysWidth, columnWidth)

    objectName: "playerShortcutsPanel"
    implicitWidth: Theme.shortcutsWidth
    implicitHeight: body.y + body.contentHeight + Theme.shortcutsPadding
    radius: Theme.shortcutsRadius
    Accessible.role: Accessible.Pane
    Accessible.name: title.text

    // It lies on other views, whose texts must not mix with its own.
    Rectangle {
        z: -1
        anchors.fill: parent
        radius: panel.radius
        color: Theme.shortcutsBacking
    }

    // Nor does what is scrolled here scroll what is behind.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        onWheel: wheel => wheel.accepted = true
    }

    Text {
        id: title

        x: Theme.shortcutsPadding
        anchors.verticalCenter: close.verticalCenter
        text: qsTr("Keyboard Shortcuts")
        font: Theme.overlayHeader
        color: Theme.shortcutsText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    PushButton {
        id: close

        objectName: "closeShortcuts"
        look: Theme.barButton
        anchors.right: parent.right
        // The symbol is in line with what is below it.
        anchors.rightMargin: Theme.shortcutsPadding - (width - Theme.symbolSize) / 2
        y: Theme.shortcutsPadding - (height - title.height) / 2
        symbol: "xmark"
        tip: PlayerActions.tip(PlayerActions.ClosePanel)
        onClicked: panel.chrome.showsShortcuts = false
    }

    Flickable {
        id: body

        objectName: "shortcutsList"
        x: Theme.shortcutsPadding
        y: Theme.shortcutsPadding + Math.ceil(title.height) + Theme.shortcutsSpacing
        // The scroll bar lies beside the text.
        width: parent.width - Theme.shortcutsPadding
        height: parent.height - y - Theme.shortcutsPadding
        contentHeight: Math.ceil(columns.height)
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive

        T.ScrollBar.vertical: ThinScrollBar {
            rightPadding: Theme.shortcutsScrollMargin
        }

        Row {
            id: columns

            spacing: Theme.shortcutsGap

            ShortcutColumn {
                objectName: "shortcutsLeft"
                width: panel.columnWidth
                groups: panel.groups.slice(0, 2)
                keysWidth: panel.keysWidth
            }

            ShortcutColumn {
                objectName: "shortcutsRight"
                width: panel.columnWidth
                groups: panel.groups.slice(2)
                keysWidth: panel.keysWidth
            }
        }
    }
}
