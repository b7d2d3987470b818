pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Settings
import Tromelo.Theme

// The settings in a window that is as high as its page.
Window {
    id: window

    required property PlayerSettings settings
    required property SettingsPages pages
    required property FilmMemory films
    required property SoundDevices devices

    title: qsTr("Settings")
    color: Theme.backdrop
    width: view.implicitWidth
    height: view.implicitHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: view.implicitHeight
    maximumHeight: view.implicitHeight

    SettingsView {
        id: view

        anchors.fill: parent
        focus: true
        settings: window.settings
        pages: window.pages
        films: window.films
        devices: window.devices
        Keys.onEscapePressed: window.close()
        Keys.onPressed: event => {
            if (event.key === Qt.Key_W && event.modifiers === Qt.ControlModifier)
                window.close();
        }
    }
}
