pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Glass
import Tromelo.Theme

// A sentence at the bottom, with a symbol before it; two lines at most.
GlassSurface {
    id: capsule

    required property string symbol
    required property string message
    property color tint: Theme.primaryText
    // The room for it.
    required property real room
    readonly property string told: visible ? message : ""

    implicitWidth: Math.min(room, Math.ceil(words.implicitWidth) + words.x + Theme.messagePadding)
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
