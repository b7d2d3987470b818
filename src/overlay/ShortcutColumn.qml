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
