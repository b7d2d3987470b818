pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Groups of keys, one beneath the other.
Column {
    id: column

    required property list<shortcutGroup> groups
    required property real keysWidth

    spacing: Theme.shortcutsSpacing

    // Keys, and what they do.
    component ShortcutRow: Item {
        id: row

        required property string keys
        required property string action
        required property real keysWidth

        objectName: "shortcut"
        implicitHeight: Math.ceil(Math.max(written.y + written.height, meaning.y + meaning.height))
        Accessible.role: Accessible.StaticText
        Accessible.name: keys + ": " + action

        Text {
            id: written

            objectName: "shortcutKeys"
            width: row.keysWidth
            text: row.keys
            textFormat: Text.PlainText
            font: Theme.shortcutKeys
            color: Theme.shortcutsText
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        Text {
            id: meaning

            objectName: "shortcutAction"
            anchors.baseline: written.baseline
            x: row.keysWidth + Theme.shortcutsKeysGap
            width: row.width - x
            text: row.action
            textFormat: Text.PlainText
            font: Theme.shortcutAction
            color: Theme.shortcutsAction
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    Repeater {
        model: column.groups

        Column {
            id: group

            required property shortcutGroup modelData

            width: column.width
            spacing: Theme.shortcutsRowSpacing
            Accessible.role: Accessible.Grouping
            Accessible.name: modelData.title

            Text {
                objectName: "shortcutsTitle"
                width: parent.width
                text: group.modelData.title
                textFormat: Text.PlainText
                font: Theme.panelSection
                color: Theme.shortcutsTitle
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            Repeater {
                model: group.modelData.items

                ShortcutRow {
                    required property shortcut modelData

                    width: group.width
                    keysWidth: column.keysWidth
                    keys: modelData.keys
                    action: modelData.action
                }
            }
        }
    }
}
