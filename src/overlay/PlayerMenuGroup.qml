pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// A group of the menu over the picture, made when it is first opened.
CommandMenu {
    id: group

    required property PlayerWindowController player
    required property menuGroup content
    required property Item backdrop
    property bool isMade: false

    signal chosen(int row)
    signal changed

    objectName: "menuGroup"
    text: content.title
    onAboutToShow: isMade = true
    implicitHeight: count * Theme.commandRow + topPadding + bottomPadding

    background: MenuSurface {
        backdrop: group.backdrop

        // What is dim hears of no pointer, so this lies over it.
        Item {
            parent: group.background.parent
            anchors.fill: parent
            z: 1
            clip: true

            Repeater {
                model: group.isMade ? group.content.entries : []

                T.AbstractButton {
                    id: cover

                    required property menuEntry modelData
                    required property int index

                    y: group.topPadding + index * Theme.commandRow - (group.contentItem as ListView).contentY
                    width: parent.width
                    height: Theme.commandRow
                    visible: modelData.why !== ""
                    focusPolicy: Qt.NoFocus
                    hoverEnabled: true
                    Accessible.ignored: true

                    HoverTip {
                        control: cover
                        tip: cover.modelData.why
                    }
                }
            }
        }
    }

    Instantiator {
        active: group.isMade
        model: group.content.entries
        onObjectAdded: (index, object) => {
            const entry = object as PlayerMenuEntry;
            group.insertItem(index, entry);
            group.contentWidth = Math.max(group.contentWidth, entry.implicitWidth);
        }
        onObjectRemoved: (index, object) => group.removeItem(object as PlayerMenuEntry)

        delegate: PlayerMenuEntry {
            id: item

            required property menuEntry modelData
            property menuEntry now: modelData

            objectName: "menuEntry"
            // The engine has answered since the menu opened.
            Component.onCompleted: now = group.player.menuEntry(modelData.row)
            text: now.text
            value: now.value
            keys: now.keys
            why: now.why
            checkable: now.isSwitch
            checked: now.isOn
            isStepped: now.isStepped
            onTriggered: group.chosen(now.row)
            onStepped: steps => {
                group.player.stepFromMenu(now.row, steps);
                group.changed();
            }

            Connections {
                target: group

                function onChanged() {
                    item.now = group.player.menuEntry(item.now.row);
                }
            }
        }
    }
}
