pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Theme

// A file that was played. It never takes the keyboard: the list has it.
T.AbstractButton {
    id: row

    required property url file
    required property string name
    required property string path
    // The keyboard is on it.
    property bool chosen: false
    // Its menu is open.
    property bool marked: false

    // `first` is the entry to start on; -1 for none.
    signal menuRequested(point place, int first)

    implicitHeight: Theme.sidebarRowHeight
    leftPadding: Theme.rowSide
    rightPadding: Theme.rowSide
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    text: name
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: path
    Accessible.selected: chosen
    Accessible.onPressAction: click()

    HoverTip {
        control: row
        tip: row.marked ? "" : row.path
        below: true
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.WithinBounds
        onTapped: eventPoint => row.menuRequested(eventPoint.position, -1)
    }

    contentItem: Item {
        Symbol {
            id: sign

            anchors.verticalCenter: parent.verticalCenter
            name: "film"
            size: Theme.sidebarSymbolSize
            color: Theme.accent
        }

        OneLine {
            objectName: "recentName"
            anchors.left: sign.right
            anchors.leftMargin: Theme.sidebarRowSpacing
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            content: row.name
            font: Theme.sidebarRow
            color: Theme.primaryText
        }
    }

    background: Rectangle {
        radius: Theme.rowRadius
        color: row.down ? Theme.rowPressed : row.chosen || row.marked ? Theme.rowChosen : row.hovered ? Theme.rowHovered : "transparent"
        border.width: row.chosen ? Theme.focusWidth : 0
        border.color: Theme.accent
    }
}
