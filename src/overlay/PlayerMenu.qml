pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// The menu over the picture: what can be done with the film, in groups. It tells how things were when
// it opened.
CommandMenu {
    id: menu

    required property PlayerWindowController player
    required property Item backdrop

    objectName: "playerMenu"
    modal: true
    dim: false
    cascade: true
    implicitHeight: count * Theme.commandRow + topPadding + bottomPadding
    delegate: PlayerMenuEntry {
        objectName: "menuTitle"
        // A key that opens it goes to its first entry, which has to be there by then.
        onHighlightedChanged: if (highlighted)
            (subMenu as PlayerMenuGroup).isMade = true
    }

    background: MenuSurface {
        backdrop: menu.backdrop
    }

    Instantiator {
        model: menu.player.menu()
        onObjectAdded: (index, object) => menu.insertMenu(index, object as PlayerMenuGroup)
        onObjectRemoved: (index, object) => menu.removeMenu(object as PlayerMenuGroup)

        delegate: PlayerMenuGroup {
            required property menuGroup modelData

            content: modelData
            player: menu.player
            backdrop: menu.backdrop
            onChosen: row => menu.player.chooseFromMenu(row)
        }
    }
}
