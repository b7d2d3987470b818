pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// A short message that stands in nobody's way: the pointer goes through it.
Rectangle {
    id: toast

    required property PlayerChrome chrome

    objectName: "playerToast"
    visible: chrome.toast !== ""
    implicitWidth: Math.ceil(text.implicitWidth) + 32
    implicitHeight: Math.ceil(text.implicitHeight) + 18
    radius: height / 2
    color: Theme.overlaySurface
    border.width: 1
    border.color: Theme.overlayEdge

    Text {
        id: text

        anchors.centerIn: parent
        width: Math.min(implicitWidth, toast.width - 32)
        text: toast.chrome.toast
        textFormat: Text.PlainText
        font: Theme.overlayToast
        color: "white"
        elide: Text.ElideMiddle
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
