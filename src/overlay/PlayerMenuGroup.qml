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

    required property menuGroup content
    required property Item backdrop
    property bool isMade: false

    signal chosen(int row)

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
            required property menuEntry modelData

            objectName: "menuEntry"
            text: modelData.text
            value: modelData.value
            keys: modelData.keys
            why: modelData.why
            checkable: modelData.isSwitch
            checked: modelData.isOn
            onTriggered: group.chosen(modelData.row)
        }
    }
}
