pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// A small button with a picture.
PlainButton {
    id: button

    required property string symbol
    property real size: Theme.symbolSize

    implicitWidth: Theme.iconButton
    implicitHeight: Theme.iconButton

    contentItem: Symbol {
        name: button.symbol
        size: button.size
        color: button.active ? Theme.symbolActive : Theme.symbol
    }
}
