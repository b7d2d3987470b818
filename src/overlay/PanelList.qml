pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Theme

// The rows of a panel.
ListView {
    id: list

    property bool isPlaced: false

    // It has its size for the first time, and can scroll to where it is to begin.
    signal placed

    topMargin: Theme.listPadding
    bottomMargin: Theme.listPadding
    spacing: Theme.listSpacing
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    Accessible.role: Accessible.List
    onHeightChanged: if (height > 0 && !isPlaced) {
        isPlaced = true;
        Qt.callLater(placed);
    }

    T.ScrollBar.vertical: ThinScrollBar {}
}
