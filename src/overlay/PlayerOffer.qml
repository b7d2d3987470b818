pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Theme

// Something that can be done for a while, below the toast that tells why. It isn't the chrome's.
PushButton {
    required property PlayerToast reason

    look: Theme.closeButton
    backdrop: reason.backdrop
    anchors.horizontalCenter: reason.horizontalCenter
    y: reason.y + reason.implicitHeight + Theme.toastGap
    tipBelow: true
    Accessible.name: Wording.withoutKey(tip)
}
