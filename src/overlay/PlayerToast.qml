pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Glass
import Tromelo.Player
import Tromelo.Theme

// A short message that stands in nobody's way: the pointer goes through it.
GlassSurface {
    id: toast

    required property PlayerChrome chrome

    objectName: "playerToast"
    visible: chrome.toast !== ""
    implicitWidth: Math.ceil(words.implicitWidth) + 2 * Theme.toastPadding
    implicitHeight: Math.ceil(words.implicitHeight) + 2 * Theme.toastRise

    OneLine {
        id: words

        anchors.centerIn: parent
        width: Math.min(Math.ceil(implicitWidth), toast.width - 2 * Theme.toastPadding)
        content: toast.chrome.toast
        font: Theme.overlayToast
        color: "white"
        Accessible.role: Accessible.AlertMessage
        Accessible.name: words.text
        onTextChanged: if (words.text !== "")
            Accessible.announce(words.text)
    }
}
