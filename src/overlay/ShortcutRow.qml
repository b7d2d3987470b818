pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// Keys, and what they do.
Item {
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
