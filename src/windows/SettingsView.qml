pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Settings
import Tromelo.Theme

// The settings, on four pages. A change takes effect at once.
FocusScope {
    id: view

    required property PlayerSettings settings
    required property SettingsPages pages
    required property FilmMemory films
    required property SoundDevices devices

    implicitWidth: Theme.settingsWidth
    implicitHeight: content.y + content.height

    TabStrip {
        id: tabs

        objectName: "settingsTabs"
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: Theme.commandPadding
        focus: true
        labels: [qsTr("General"), qsTr("Playback"), qsTr("Subtitles"), qsTr("Shortcuts")]
        symbols: ["gearshape", "play.fill", "captions.bubble", "keyboard"]
        current: view.pages.page
        onChosen: index => view.pages.page = index
    }

    Rectangle {
        id: line

        anchors.top: tabs.bottom
        anchors.topMargin: Theme.commandPadding
        width: parent.width
        height: Theme.hairline
        color: Theme.panelDivider
    }

    Loader {
        id: content

        anchors.top: line.bottom
        width: parent.width
        sourceComponent: [general, playback, subtitles, shortcuts][view.pages.page]
    }

    Component {
        id: general

        GeneralSettings {
            settings: view.settings
        }
    }

    Component {
        id: playback

        PlaybackSettings {
            settings: view.settings
            devices: view.devices
            films: view.films
        }
    }

    Component {
        id: subtitles

        SubtitleSettings {
            settings: view.settings
        }
    }

    Component {
        id: shortcuts

        ShortcutList {}
    }
}
