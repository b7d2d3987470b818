pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Settings
import Tromelo.Theme

// How subtitles are drawn, with a preview.
Column {
    id: page

    required property PlayerSettings settings
    readonly property real room: width - 2 * Theme.settingsPadding

    padding: Theme.settingsPadding
    spacing: Theme.spacing

    SubtitlePreview {
        id: preview

        objectName: "subtitlePreview"
        width: page.room
        height: 110
        settings: page.settings
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    SubtitleStyleControls {
        width: page.room
        settings: page.settings
    }

    Item {
        width: page.room
        height: reset.height

        Text {
            height: parent.height
            text: qsTr("Changes apply immediately, including during playback.")
            font: Theme.panelCallout
            color: Theme.secondaryText
            verticalAlignment: Text.AlignVCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        PushButton {
            id: reset

            objectName: "resetSubtitleStyle"
            anchors.right: parent.right
            text: qsTr("Reset")
            onClicked: page.settings.resetSubtitleStyle()
        }
    }
}
