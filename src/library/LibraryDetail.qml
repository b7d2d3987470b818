pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// The pane beside the sidebar: what was played last, or what to do first.
Item {
    id: detail

    required property PlaybackModel playback
    required property PlayerWindowController player
    required property bool isTargeted

    readonly property bool hasError: playback.errorMessage !== ""
    readonly property bool isDescribed: playback.hasVideo && playback.lastURL.toString() !== ""

    Backdrop {
        id: backdrop
        anchors.fill: parent
    }

    LibraryHeader {
        id: header

        width: parent.width
        playback: detail.playback
    }

    Item {
        anchors.top: header.bottom
        anchors.bottom: messages.visible ? messages.top : parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right

        LastPlayedCard {
            objectName: "lastPlayedCard"
            visible: detail.isDescribed
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.cardMargin, Theme.cardWidth)
            backdrop: backdrop
            playback: detail.playback
        }

        EmptyLibrary {
            objectName: "emptyLibrary"
            visible: !detail.isDescribed
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.cardMargin, Theme.emptyWidth)
            backdrop: backdrop
            playback: detail.playback
        }
    }

    Column {
        id: messages

        visible: detail.hasError || detail.player.playsWithoutWindow
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.margin
        spacing: Theme.messageSpacing

        MessageCapsule {
            objectName: "libraryStatus"
            visible: detail.player.playsWithoutWindow
            anchors.horizontalCenter: parent.horizontalCenter
            room: detail.width - 2 * Theme.margin
            backdrop: backdrop
            symbol: "speaker.wave.2.fill"
            message: qsTr("%1 has no picture. Space pauses, the arrows seek and set the volume, Esc stops.").arg(detail.playback.title)
        }

        MessageCapsule {
            objectName: "libraryError"
            visible: detail.hasError
            anchors.horizontalCenter: parent.horizontalCenter
            room: detail.width - 2 * Theme.margin
            backdrop: backdrop
            symbol: "exclamationmark.triangle.fill"
            message: detail.playback.errorMessage
            tint: Theme.warning
        }
    }

    Loader {
        objectName: "dropHighlight"
        anchors.fill: parent
        anchors.margins: Theme.highlightInset
        active: opacity > 0
        opacity: detail.isTargeted ? 1 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.quick
                easing.type: Easing.OutQuad
            }
        }

        sourceComponent: DropHighlight {}
    }
}
