pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// A file that was played. It never takes the keyboard: the list has it.
T.AbstractButton {
    id: row

    required property url file
    required property string name
    required property string path
    required property FilmMemory films
    // The keyboard is on it.
    property bool chosen: false
    // Its menu is open.
    property bool marked: false

    // `first` is the entry to start on; -1 for none.
    signal menuRequested(point place, int first)

    implicitHeight: place.seen > 0 ? Theme.sidebarSeenRowHeight : Theme.sidebarRowHeight
    leftPadding: Theme.rowSide
    rightPadding: Theme.rowSide
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    text: name
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: place.left === "" ? path : place.left + " · " + path
    Accessible.selected: chosen
    Accessible.onPressAction: click()

    FilmPlace {
        id: place

        films: row.films
        file: row.file
        shown: row.Window.visibility !== Window.Hidden
    }

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
            height: seen.visible ? parent.height - seen.height : parent.height
            verticalAlignment: Text.AlignVCenter
            content: row.name
            font: Theme.sidebarRow
            color: Theme.primaryText
        }

        SeenBar {
            id: seen

            objectName: "recentSeen"
            visible: place.seen > 0
            anchors.left: sign.right
            anchors.leftMargin: Theme.sidebarRowSpacing
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.rowRise
            place: place
        }
    }

    background: Rectangle {
        radius: Theme.rowRadius
        color: row.down ? Theme.rowPressed : row.chosen || row.marked ? Theme.rowChosen : row.hovered ? Theme.rowHovered : "transparent"
        border.width: row.chosen ? Theme.focusWidth : 0
        border.color: Theme.accent
    }
}
