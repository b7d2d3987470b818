pragma ComponentBehavior: Bound

import QtQuick

// How one kind of button looks, at rest and in use, and how the keyboard reaches it.
QtObject {
    property int focusPolicy: Qt.NoFocus

    // What is on it.
    property font font
    property color ink
    property color chosenInk: ink
    property real symbolSize
    property real spacing // between a symbol and a text
    property real lift // room below the text, which raises it by half as much

    // Its size; 0 for that of what is on it, with room beside and above it.
    property real width
    property real height
    property real side
    property real rise

    // What it stands on. Glass lies beneath the colours.
    property bool isGlass: false
    property real radius: -1 // for round ends
    property color surface: "transparent"
    property color hovered
    property color pressed
    property color chosen
    property bool fades: false // from one of these to the next
    property real disabled: 1 // opacity

    property real edgeWidth
    property color edge
    property color focusEdge
    property color chosenFocusEdge: focusEdge
}
