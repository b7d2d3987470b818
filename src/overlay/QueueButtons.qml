pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// What can be done with the queue as a whole.
RowLayout {
    id: buttons

    required property PlaybackModel playback
    readonly property Item first: shuffle
    readonly property Item last: save

    spacing: Theme.detailsSpacing

    PushButton {
        id: shuffle

        objectName: "shuffleQueue"
        look: Theme.panelSwitch
        symbol: "shuffle"
        tip: PlayerActions.tip(PlayerActions.Shuffle)
        active: buttons.playback.isShuffled
        Accessible.checkable: true
        Accessible.checked: active
        onClicked: buttons.playback.toggleShuffle()
    }

    PushButton {
        objectName: "repeatAll"
        look: Theme.panelSwitch
        symbol: "repeat"
        tip: PlayerActions.tip(PlayerActions.RepeatAll)
        active: buttons.playback.isRepeatingAll
        Accessible.checkable: true
        Accessible.checked: active
        onClicked: buttons.playback.toggleRepeatAll()
    }

    Item {
        Layout.fillWidth: true
    }

    PushButton {
        objectName: "addRestOfFolder"
        look: Theme.panelSwitch
        symbol: "folder.badge.plus"
        tip: qsTr("Add the Rest of the Folder")
        enabled: buttons.playback.isLoaded
        onClicked: buttons.playback.addRestOfFolder()
    }

    PushButton {
        id: save

        objectName: "saveQueue"
        look: Theme.panelSwitch
        symbol: "square.and.arrow.down"
        tip: PlayerActions.tip(PlayerActions.SaveQueue)
        enabled: buttons.playback.queue.length > 0
        onClicked: buttons.playback.presentSavePanel()
    }
}
