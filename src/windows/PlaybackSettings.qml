pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Settings
import Tromelo.Theme

// How films are played: where they begin and go on, where their sound goes, and what is remembered.
Item {
    id: page

    required property PlayerSettings settings
    required property SoundDevices devices
    required property FilmMemory films

    implicitHeight: forget.y + forget.height + Theme.settingsPadding
    Component.onCompleted: devices.refresh()

    component Divider: Rectangle {
        width: parent.width
        height: Theme.hairline
        color: Theme.panelDivider
    }

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

            CheckToggle {
                objectName: "resumesFilms"
                width: rows.width
                height: Theme.formRow
                font: Theme.panelText
                text: qsTr("Go on where I stopped")
                checked: page.settings.resumesFilms
                onToggled: page.settings.resumesFilms = checked
            }

            Divider {}

            CheckToggle {
                objectName: "goesOnInFolder"
                width: rows.width
                height: Theme.formRow
                font: Theme.panelText
                text: qsTr("Go on with the folder's next video")
                checked: page.settings.goesOnInFolder
                onToggled: page.settings.goesOnInFolder = checked
            }

            Divider {}

            Item {
                width: rows.width
                height: Theme.formRow

                Text {
                    id: label

                    height: parent.height
                    text: qsTr("Sound goes to")
                    font: Theme.panelText
                    color: Theme.primaryText
                    verticalAlignment: Text.AlignVCenter
                }

                Picker {
                    objectName: "audioDevice"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    width: Theme.devicePickerWidth
                    model: page.devices.labels
                    currentIndex: page.devices.index
                    displayText: page.devices.labels[page.devices.index]
                    Accessible.name: label.text
                    onActivated: index => page.devices.index = index
                }
            }

            Divider {}

            CheckToggle {
                objectName: "passesSoundThrough"
                width: rows.width
                height: Theme.formRow
                font: Theme.panelText
                text: qsTr("Leave Dolby and DTS to the receiver")
                checked: page.settings.passesSoundThrough
                onToggled: page.settings.passesSoundThrough = checked
            }
        }
    }

    Text {
        id: note

        anchors.top: form.bottom
        anchors.topMargin: Theme.rowSpacing
        x: Theme.settingsPadding + Theme.rowSpacing
        width: form.width - 2 * Theme.rowSpacing
        text: qsTr("What else can be changed about a film is in the menu over the picture, and there for all films, too.")
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
