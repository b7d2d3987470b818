pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Glass
import Tromelo.Theme

// A fact about a video in one or two words.
GlassSurface {
    id: chip

    required property string text
    property bool highlighted: false

    implicitWidth: words.implicitWidth + 2 * Theme.chipPadding
    implicitHeight: words.implicitHeight + 2 * Theme.chipRise
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Text {
        id: words

        objectName: "chipText"
        anchors.centerIn: parent
        text: chip.text
        textFormat: Text.PlainText
        font: Theme.chip
        color: chip.highlighted ? Theme.gold : Theme.primaryText
    }
}
