pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A thin line between the groups of a CommandMenu.
T.MenuSeparator {
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: Theme.commandSide
    rightPadding: Theme.commandSide
    topPadding: Theme.commandPadding
    bottomPadding: Theme.commandPadding

    contentItem: Rectangle {
        implicitHeight: Theme.hairline
        color: Theme.panelDivider
    }
}
