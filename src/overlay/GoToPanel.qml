pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// Goes to a time that is typed.
Item {
    id: panel

    required property PlaybackModel playback
    readonly property real target: TypedTime.target(field.text, playback.elapsed, playback.duration)

    signal finished

    objectName: "goToPanel"
    implicitWidth: Theme.goToWidth
    implicitHeight: content.height + 2 * Theme.panelPadding
    Component.onCompleted: field.forceActiveFocus(Qt.PopupFocusReason)

    Column {
        id: content

        x: Theme.panelPadding
        y: Theme.panelPadding
        width: panel.width - 2 * x
        spacing: Theme.trackSpacing

        Text {
            id: title

            text: qsTr("Go to time")
            font: Theme.panelHeader
            color: Theme.overlayText
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        EntryField {
            id: field

            objectName: "goToField"
            width: parent.width
            name: title.text
            placeholderText: Format.clock(panel.playback.duration)
            inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhPreferNumbers
            Accessible.description: hint.text
            onAccepted: if (!isNaN(panel.target)) {
                panel.playback.seekTo(panel.target);
                panel.finished();
            }
        }

        Text {
            id: hint

            objectName: "goToHint"
            width: parent.width
            text: TypedTime.hint(field.text, panel.playback.elapsed, panel.playback.duration)
            font: Theme.panelCaption
            color: Theme.secondaryText
            elide: Text.ElideRight
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
