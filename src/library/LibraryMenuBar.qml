pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player

// The program's commands, at the top of its home.
CommandMenuBar {
    id: bar

    required property Commands commands
    required property bool isPrivate

    objectName: "libraryMenuBar"

    CommandMenu {
        objectName: "fileMenu"
        text: qsTr("&File")

        CommandItem {
            objectName: "openCommand"
            text: qsTr("&Open…")
            keys: bar.commands.open.keys
            onTriggered: bar.commands.open.run()
        }

        CommandItem {
            objectName: "privacyCommand"
            text: bar.isPrivate ? qsTr("End &Private Session") : qsTr("Begin &Private Session")
            onTriggered: bar.commands.privacy.run()
        }

        CommandDivider {}

        CommandItem {
            objectName: "quitCommand"
            text: qsTr("&Quit")
            keys: bar.commands.quit.keys
            onTriggered: bar.commands.quit.run()
        }
    }

    CommandMenu {
        objectName: "editMenu"
        text: qsTr("&Edit")

        CommandItem {
            objectName: "settingsCommand"
            text: qsTr("&Settings…")
            keys: bar.commands.settings.keys
            onTriggered: bar.commands.settings.run()
        }
    }

    CommandMenu {
        objectName: "windowMenu"
        text: qsTr("&Window")

        CommandItem {
            objectName: "libraryCommand"
            text: qsTr("&Library")
            keys: bar.commands.library.keys
            onTriggered: bar.commands.library.run()
        }
    }

    CommandMenu {
        objectName: "helpMenu"
        text: qsTr("&Help")

        CommandItem {
            objectName: "shortcutsCommand"
            text: qsTr("&Keyboard Shortcuts")
            onTriggered: bar.commands.shortcuts.run()
        }

        CommandItem {
            objectName: "aboutCommand"
            text: qsTr("&About Tromelo")
            onTriggered: bar.commands.about.run()
        }
    }
}
