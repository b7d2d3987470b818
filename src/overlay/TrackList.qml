pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// The tracks of one kind, with a row for none of them where that is a choice.
Column {
    id: list

    required property list<mediaTrack> tracks
    property bool offersNone: false

    signal chosen(int track)
    signal noneChosen

    spacing: Theme.groupedSpacing

    TrackModel {
        id: rows
        tracks: list.tracks
    }

    TrackRow {
        objectName: "trackOff"
        width: list.width
        visible: list.offersNone
        name: qsTr("Off")
        details: ""
        isSelected: !rows.hasSelection
        onClicked: list.noneChosen()
    }

    Repeater {
        model: rows

        TrackRow {
            required property int index

            objectName: "track"
            width: list.width
            onClicked: list.chosen(rows.idAt(index))
        }
    }
}
