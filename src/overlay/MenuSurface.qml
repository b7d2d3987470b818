pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Glass
import Tromelo.Theme

// What a menu over the picture stands on, as the panels do.
Item {
    id: surface

    property Item backdrop: null

    Rectangle {
        anchors.fill: parent
        radius: Theme.menuRadius
        color: Theme.menuBacking
    }

    GlassSurface {
        anchors.fill: parent
        backdrop: surface.backdrop
        radius: Theme.menuRadius
    }
}
