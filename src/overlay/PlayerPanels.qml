pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player

// The side panels, above their buttons in the bar.
Item {
    id: panels

    required property PlaybackModel playback
    required property PlayerChrome chrome
    required property Item bar
    required property Repeater buttons // in the bar
    property Item backdrop: null

    Repeater {
        model: panels.chrome.barPanels

        PlayerPopover {
            required property barPanel modelData
            required property int index

            name: modelData.name
            bar: panels.bar
            button: panels.buttons.count > index ? panels.buttons.itemAt(index) : null
            backdrop: panels.backdrop
            body: modelData.body
            playback: panels.playback
            isOpen: panels.chrome.panel === modelData.panel
            onDismissed: panels.chrome.close(modelData.panel)
        }
    }
}
