pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// A label and its value.
Item {
    id: line

    required property string label
    required property string value

    implicitHeight: Math.max(words.implicitHeight, content.implicitHeight)
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    Text {
        id: words

        width: Theme.detailLabelWidth
        text: line.label
        font: Theme.libraryText
        color: Theme.secondaryText
    }

    Text {
        id: content

        objectName: "detailValue"
        anchors.left: words.right
        anchors.leftMargin: Theme.detailGap
        anchors.right: parent.right
        anchors.baseline: words.baseline
        text: line.value
        textFormat: Text.PlainText
        font: Theme.libraryText
        color: Theme.primaryText
        elide: Text.ElideRight
        maximumLineCount: 1
    }
}
