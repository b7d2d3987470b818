pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// One setting: its label, then its controls, each in the middle of the row's height.
Row {
    id: row

    required property string label

    spacing: Theme.settingSpacing
    height: Theme.fieldHeight

    Text {
        width: Theme.settingLabelWidth
        height: row.height
        text: row.label
        font: Theme.field
        color: Theme.secondaryText
        verticalAlignment: Text.AlignVCenter
    }
}
