pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Glass
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

    // A sentence at the bottom, with a symbol before it; two lines at most.
    component MessageCapsule: GlassSurface {
        id: capsule

        required property string symbol
        required property string message
        property color tint: Theme.primaryText
        readonly property string told: visible ? message : ""

        anchors.horizontalCenter: parent.horizontalCenter
        backdrop: behind
        implicitWidth: Math.min(detail.width - 2 * Theme.margin, Math.ceil(words.implicitWidth) + words.x + Theme.messagePadding)
        implicitHeight: words.height + 2 * Theme.messageRise
        Accessible.role: Accessible.AlertMessage
        Accessible.name: message
        onToldChanged: if (told !== "")
            Accessible.announce(told, Accessible.Assertive)

        Symbol {
            id: sign

            x: Theme.messagePadding
            anchors.verticalCenter: parent.verticalCenter
            name: capsule.symbol
            size: Theme.buttonSymbolSize
            color: capsule.tint
        }

        Text {
            id: words

            objectName: "messageText"
            x: Theme.messagePadding + sign.width + Theme.messageSpacing
            y: Theme.messageRise
            width: capsule.width - x - Theme.messagePadding
            text: capsule.message
            textFormat: Text.PlainText
            font: Theme.libraryMessage
            color: capsule.tint
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }
    }

    Backdrop {
        id: behind
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
            backdrop: behind
            playback: detail.playback
        }

        EmptyLibrary {
            objectName: "emptyLibrary"
            visible: !detail.isDescribed
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.cardMargin, Theme.emptyWidth)
            backdrop: behind
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
            symbol: "speaker.wave.2.fill"
            message: qsTr("%1 has no picture. Space pauses, the arrows seek and set the volume, Esc stops.").arg(detail.playback.title)
        }

        MessageCapsule {
            objectName: "libraryError"
            visible: detail.hasError
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
