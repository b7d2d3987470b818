pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Player
import Tromelo.Theme

// The home window's content.
FocusScope {
    id: library

    required property PlaybackModel playback
    required property PlayerWindowController player

    objectName: "libraryView"
    focus: true

    // A file without a picture has no window of its own: its keys work here.
    Keys.enabled: player.playsWithoutWindow
    Keys.onSpacePressed: playback.togglePlayback()
    Keys.onEscapePressed: player.stopPlayback()
    Keys.onLeftPressed: playback.seekBy(-10)
    Keys.onRightPressed: playback.seekBy(10)
    Keys.onUpPressed: playback.setVolume(playback.volume + 5)
    Keys.onDownPressed: playback.setVolume(playback.volume - 5)

    Rectangle {
        anchors.fill: parent
        color: Theme.backdrop
    }

    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: drop => {
            library.playback.openFiles(drop.urls);
            drop.accept(Qt.CopyAction);
        }
    }

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, 560)
        spacing: Theme.spacing

        Text {
            Layout.fillWidth: true
            text: qsTr("Tromelo")
            font: Theme.title
            color: Theme.primaryText
            horizontalAlignment: Text.AlignHCenter
        }

        Text {
            objectName: "libraryStatus"
            Layout.fillWidth: true
            text: library.player.playsWithoutWindow ? qsTr("%1 has no picture. Space pauses, the arrows seek and set the volume, Esc stops.").arg(library.playback.title) : qsTr("Drop a video here, or choose some to play.")
            font: Theme.body
            color: Theme.secondaryText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 4
            elide: Text.ElideRight
        }

        ActionButton {
            objectName: "libraryOpen"
            Layout.alignment: Qt.AlignHCenter
            focusPolicy: Qt.TabFocus
            text: qsTr("Open…")
            onClicked: library.playback.presentOpenPanel()
        }
    }

    Rectangle {
        objectName: "libraryError"
        visible: library.playback.errorMessage !== ""
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.margin
        width: Math.min(message.implicitWidth + 2 * Theme.spacing, parent.width - 2 * Theme.margin)
        height: message.height + 20
        radius: Math.min(height / 2, 20)
        color: Theme.surface
        border.color: Theme.surfaceEdge

        Text {
            id: message
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.spacing
            text: library.playback.errorMessage
            textFormat: Text.PlainText
            font: Theme.callout
            color: Theme.warning
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
}
