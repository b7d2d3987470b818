pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Settings
import Tromelo.Theme

// Settings that belong to no particular part of the player.
Item {
    id: page

    required property PlayerSettings settings

    implicitHeight: Theme.generalHeight

    Rectangle {
        id: row

        x: Theme.settingsPadding
        y: Theme.settingsPadding
        width: parent.width - 2 * x
        height: Theme.formRow
        radius: Theme.formRadius
        color: Theme.surface

        Text {
            id: label

            x: Theme.rowSpacing
            height: parent.height
            text: qsTr("Hide player controls after")
            font: Theme.panelText
            color: Theme.primaryText
            verticalAlignment: Text.AlignVCenter
        }

        Picker {
            objectName: "autoHideDelay"
            anchors.right: parent.right
            anchors.rightMargin: Theme.rowSpacing
            anchors.verticalCenter: parent.verticalCenter
            model: page.settings.autoHideLabels
            currentIndex: page.settings.autoHideIndex
            displayText: page.settings.autoHideText
            Accessible.name: label.text
            onActivated: index => page.settings.autoHideIndex = index
        }
    }

    Text {
        anchors.top: row.bottom
        anchors.topMargin: Theme.rowSpacing
        x: Theme.settingsPadding + Theme.rowSpacing
        width: row.width - 2 * Theme.rowSpacing
        text: qsTr("Controls stay visible while paused, while a panel is open, or while the pointer is over them.")
        font: Theme.panelCallout
        color: Theme.secondaryText
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
