pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// Things that belong together under a title.
Column {
    id: section

    required property string title

    spacing: Theme.groupedSpacing
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Text {
        text: section.title
        font: Theme.panelSection
        color: Theme.secondaryText
        Accessible.role: Accessible.Heading
        Accessible.name: section.title
    }
}
