pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// A film's bookmarks, under a title of their own.
Column {
    id: list

    required property PlaybackModel playback

    signal chosen

    spacing: Theme.listSpacing
    visible: rows.count > 0
    height: visible ? implicitHeight : 0
    Accessible.role: Accessible.List
    Accessible.name: title.text

    Text {
        id: title

        leftPadding: Theme.listPadding + Theme.rowSide
        topPadding: Theme.headerPadding
        bottomPadding: Theme.listSpacing
        text: qsTr("Bookmarks")
        font: Theme.panelSection
        color: Theme.secondaryText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Repeater {
        id: rows

        model: BookmarkModel {
            id: bookmarks
            bookmarks: list.playback.bookmarks
        }

        BookmarkRow {
            required property int index

            objectName: "bookmark"
            width: list.width
            onClicked: {
                list.playback.seekTo(position);
                list.chosen();
            }
            onRenamed: name => list.playback.renameBookmark(bookmarks.idAt(index), name)
            onRemoved: list.playback.removeBookmark(bookmarks.idAt(index))
        }
    }
}
