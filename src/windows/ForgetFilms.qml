pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// Has everything forgotten that is remembered of films, for a person who says so twice.
Rectangle {
    id: row

    required property FilmMemory films

    // The person has said it once.
    property bool asks: false

    implicitHeight: Theme.formRow
    radius: Theme.formRadius
    color: Theme.surface

    Text {
        id: words

        x: Theme.rowSpacing
        width: buttons.x - x - Theme.rowSpacing
        height: parent.height
        text: row.asks ? qsTr("This can't be undone.") : qsTr("Places, tracks and bookmarks of films")
        font: Theme.panelText
        color: Theme.primaryText
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Row {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: Theme.rowSpacing
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.groupSpacing

        PushButton {
            objectName: "forgetFilmsNow"
            visible: row.asks
            text: qsTr("Forget All Films")
            onClicked: {
                row.films.forgetAll();
                row.asks = false;
            }
        }

        PushButton {
            id: ask

            objectName: "forgetFilms"
            visible: !row.asks
            text: qsTr("Forget All Films…")
            onClicked: {
                row.asks = true;
                keep.forceActiveFocus(Qt.TabFocusReason);
            }
        }

        // In its place, so that a second click by mistake forgets nothing.
        PushButton {
            id: keep

            objectName: "keepFilms"
            visible: row.asks
            width: Math.max(implicitWidth, ask.width)
            text: qsTr("Cancel")
            onClicked: row.asks = false
        }
    }
}
