pragma ComponentBehavior: Bound

import QtQuick

// A text of somebody's own, on one line whatever breaks it has; cut where there is no room for it.
Text {
    required property string content

    text: Wording.onOneLine(content)
    textFormat: Text.PlainText
    elide: Text.ElideMiddle
}
