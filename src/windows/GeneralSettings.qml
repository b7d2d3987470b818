pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Settings
import Tromelo.Theme

// Settings that belong to no particular part of the player.
Item {
    id: page

    required property PlayerSettings settings

    implicitHeight: Math.max(Theme.generalHeight, note.y + note.height + Theme.settingsPadding)

    Rectangle {
        id: form

        x: Theme.settingsPadding
        y: Theme.settingsPadding
        width: parent.width - 2 * x
        height: rows.height
        radius: Theme.formRadius
        color: Theme.surface

        Column {
            id: rows

            x: Theme.rowSpacing
            width: parent.width - 2 * x

            Item {
                width: rows.width
                height: Theme.formRow

                Text {
                    id: label

                    height: parent.height
                    text: qsTr("Hide player controls after")
                    font: Theme.panelText
                    color: Theme.primaryText
                    verticalAlignment: Text.AlignVCenter
                }

                Picker {
                    objectName: "autoHideDelay"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    model: page.settings.autoHideLabels
                    currentIndex: page.settings.autoHideIndex
                    displayText: page.settings.autoHideText
                    Accessible.name: label.text
                    onActivated: index => page.settings.autoHideIndex = index
                }
            }
        }
    }

    Text {
        id: note

        anchors.top: form.bottom
        anchors.topMargin: Theme.rowSpacing
        x: Theme.settingsPadding + Theme.rowSpacing
        width: form.width - 2 * Theme.rowSpacing
        text: qsTr("Controls stay visible while paused, while a panel is open, or while the pointer is over them.")
        font: Theme.panelCallout
        color: Theme.secondaryText
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
