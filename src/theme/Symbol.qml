pragma ComponentBehavior: Bound

import QtQuick

// A picture in place of a word, as large as text of `size` points beside it looks.
Text {
    required property string name
    required property real size

    text: Symbols.glyph(name)
    font.family: Symbols.family
    font.pixelSize: Math.round(size * Theme.symbolScale)
    renderType: Text.NativeRendering
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
