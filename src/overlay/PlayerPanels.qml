pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player

// The side panels, above their buttons in the bar.
Item {
    id: panels

    required property PlaybackModel playback
    required property PlayerChrome chrome
    required property Item bar
    // In the bar; the bar itself where it has none.
    property Item tracksButton: bar
    property Item chaptersButton: bar
    property Item queueButton: bar
    property Item backdrop: null

    PlayerPopover {
        name: qsTr("Subtitles and audio")
        bar: panels.bar
        button: panels.tracksButton
        backdrop: panels.backdrop
        isOpen: panels.chrome.showsTracks
        onDismissed: panels.chrome.showsTracks = false
        panel: TracksPanel {
            playback: panels.playback
        }
    }

    PlayerPopover {
        name: qsTr("Chapters")
        bar: panels.bar
        button: panels.chaptersButton
        backdrop: panels.backdrop
        isOpen: panels.chrome.showsChapters
        onDismissed: panels.chrome.showsChapters = false
        panel: ChaptersPanel {
            playback: panels.playback
            chrome: panels.chrome
        }
    }

    PlayerPopover {
        name: qsTr("Queue")
        bar: panels.bar
        button: panels.queueButton
        backdrop: panels.backdrop
        isOpen: panels.chrome.showsQueue
        onDismissed: panels.chrome.showsQueue = false
        panel: QueuePanel {
            playback: panels.playback
        }
    }
}
