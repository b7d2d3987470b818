pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// How much later something comes than it would, and the way to change that in steps.
RowLayout {
    id: row

    required property string label
    required property real delay // seconds

    signal chosen(real seconds)

    spacing: Theme.trackSpacing
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    Text {
        Layout.fillWidth: true
        text: row.label
        font: Theme.panelText
        color: Theme.secondaryText
    }

    PushButton {
        objectName: "earlier"
        look: Theme.panelButton
        symbol: "minus"
        Accessible.name: qsTr("Earlier")
        onClicked: row.chosen(row.delay - PlayerActions.delayStep)
    }

    Text {
        objectName: "delay"
        Layout.minimumWidth: Theme.delayWidth
        horizontalAlignment: Text.AlignHCenter
        text: Format.delay(row.delay)
        font: Theme.panelNumber
        color: Theme.overlayText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    PushButton {
        objectName: "later"
        look: Theme.panelButton
        symbol: "plus"
        Accessible.name: qsTr("Later")
        onClicked: row.chosen(row.delay + PlayerActions.delayStep)
    }

    PushButton {
        objectName: "resetDelay"
        look: Theme.panelButton
        enabled: row.delay !== 0
        text: qsTr("Reset")
        onClicked: row.chosen(0)
    }
}
