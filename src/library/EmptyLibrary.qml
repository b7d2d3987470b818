pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// What to do while there is nothing to play again.
Column {
    id: empty

    required property PlaybackModel playback
    required property Item backdrop

    spacing: Theme.spacing

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "film.stack"
        size: Theme.emptySymbolSize
        color: Theme.secondaryText
    }

    Text {
        objectName: "emptyTitle"
        width: parent.width
        text: qsTr("Drop a Video")
        font: Theme.emptyTitle
        color: Theme.primaryText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Text {
        objectName: "emptyDescription"
        width: parent.width
        text: qsTr("Or choose some to play. Several videos play as a queue.")
        font: Theme.body
        color: Theme.secondaryText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    PushButton {
        objectName: "openVideos"
        anchors.horizontalCenter: parent.horizontalCenter
        look: Theme.prominentButton
        implicitWidth: implicitContentWidth + leftPadding + rightPadding
        symbol: "folder"
        text: qsTr("Open Videos…")
        tip: PlayerActions.tip(PlayerActions.OpenVideos)
        onClicked: empty.playback.presentOpenPanel()
    }
}
