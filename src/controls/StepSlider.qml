pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// Takes a number from a range, in steps.
T.Slider {
    id: slider

    required property real shown
    // Assistive technology looks for these names.
    readonly property real minimumValue: from
    readonly property real maximumValue: to

    // By hand, by key or by assistive technology.
    signal chosen(real value)

    value: shown
    onValueChanged: if (value !== Math.min(Math.max(shown, from), to))
        chosen(from + Math.round((value - from) / stepSize) * stepSize)
    snapMode: T.Slider.SnapAlways
    implicitHeight: Theme.fieldHeight
    hoverEnabled: true
    // The wheel scrolls the page that it is on.
    wheelEnabled: false

    background: Rectangle {
        y: (slider.height - height) / 2
        width: slider.width
        height: Theme.fieldTrackHeight
        radius: height / 2
        color: Theme.fieldTrack

        Rectangle {
            width: slider.handle.x + slider.handle.width / 2
            height: parent.height
            radius: height / 2
            color: Theme.accent
        }
    }

    handle: Rectangle {
        x: slider.visualPosition * (slider.width - width)
        y: (slider.height - height) / 2
        width: Theme.fieldKnobSize
        height: width
        radius: height / 2
        color: slider.pressed ? Theme.fieldKnobHeld : Theme.fieldKnob

        FocusRing {
            visible: slider.visualFocus
        }
    }
}
