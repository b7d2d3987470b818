pragma ComponentBehavior: Bound

import QtQuick

// Somebody's own text on one line, whatever line breaks it has; shortened where room is lacking.
Text {
    required property string content

    text: Wording.onOneLine(content)
    textFormat: Text.PlainText
    elide: Text.ElideMiddle
}
