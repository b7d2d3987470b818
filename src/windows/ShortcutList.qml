pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// The player's keys. Arrows and the page keys scroll it.
Flickable {
    id: list

    readonly property real keysWidth: PlayerShortcuts.keysWidth(PlayerShortcuts.groups, Theme.panelStrong, Theme.settingsKeysWidth, width - 2 * Theme.settingsPadding)

    function scrollBy(points: real) {
        contentY = Math.max(0, Math.min(contentHeight - height, contentY + points));
    }

    objectName: "shortcutList"
    implicitHeight: Theme.shortcutsHeight
    contentHeight: groups.height
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Keyboard Shortcuts")
    Keys.onUpPressed: scrollBy(-Theme.formRow)
    Keys.onDownPressed: scrollBy(Theme.formRow)
    Keys.onPressed: event => {
        const way = event.key === Qt.Key_PageDown ? 1 : event.key === Qt.Key_PageUp ? -1 : 0;
        scrollBy(way * height);
    }

    T.ScrollBar.vertical: ThinScrollBar {}

    Column {
        id: groups

        width: list.width
        padding: Theme.settingsPadding
        spacing: Theme.spacing

        Repeater {
            model: PlayerShortcuts.groups

            Column {
                id: group

                required property shortcutGroup modelData

                spacing: Theme.settingsGroupSpacing

                Text {
                    objectName: "shortcutTitle"
                    text: group.modelData.title
                    font: Theme.panelHeader
                    color: Theme.primaryText
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                Repeater {
                    model: group.modelData.items

                    Row {
                        id: row

                        required property shortcut modelData

                        spacing: Theme.rowSpacing
                        Accessible.role: Accessible.ListItem
                        Accessible.name: modelData.keys + ": " + modelData.action

                        Text {
                            id: keys

                            width: list.keysWidth
                            text: row.modelData.keys
                            font: Theme.panelStrong
                            color: Theme.primaryText
                        }

                        Text {
                            objectName: "shortcutAction"
                            anchors.baseline: keys.baseline
                            text: row.modelData.action
                            font: Theme.panelText
                            color: Theme.secondaryText
                        }
                    }
                }
            }
        }

        Text {
            text: qsTr("Press ? in the player to show this list over the video.")
            font: Theme.panelCallout
            color: Theme.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    Rectangle {
        parent: list
        anchors.fill: parent
        visible: list.activeFocus
        color: "transparent"
        border.width: Theme.focusWidth
        border.color: Theme.accent
    }
}
