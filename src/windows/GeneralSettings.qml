pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Settings
import Tromelo.Theme

// Settings that belong to no particular part of the player.
Item {
    id: page

    required property PlayerSettings settings
    required property FilmMemory films

    implicitHeight: Math.max(Theme.generalHeight, forget.y + forget.height + Theme.settingsPadding)

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

            Rectangle {
                width: rows.width
                height: Theme.hairline
                color: Theme.panelDivider
            }

            CheckToggle {
                objectName: "resumesFilms"
                width: rows.width
                height: Theme.formRow
                font: Theme.panelText
                text: qsTr("Go on where I stopped")
                checked: page.settings.resumesFilms
                onToggled: page.settings.resumesFilms = checked
            }

            Rectangle {
                width: rows.width
                height: Theme.hairline
                color: Theme.panelDivider
            }

            CheckToggle {
                objectName: "goesOnInFolder"
                width: rows.width
                height: Theme.formRow
                font: Theme.panelText
                text: qsTr("Go on with the folder's next video")
                checked: page.settings.goesOnInFolder
                onToggled: page.settings.goesOnInFolder = checked
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

    ForgetFilms {
        id: forget

        anchors.top: note.bottom
        anchors.topMargin: Theme.sectionSpacing
        x: Theme.settingsPadding
        width: form.width
        films: page.films
    }
}
