pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// A small slider. The knob stays 8 points away from both ends.
SliderInput {
    id: slider

    required property string name

    implicitHeight: Theme.sliderHeight
    opacity: enabled ? 1 : Theme.overlayDisabled
    Accessible.role: Accessible.Slider
    Accessible.name: name

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: Theme.sliderTrack
        radius: height / 2
        color: Theme.sliderRest
    }

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: knob.x + knob.width / 2
        height: Theme.sliderTrack
        radius: height / 2
        color: Theme.sliderFilled
    }

    Rectangle {
        id: knob

        anchors.verticalCenter: parent.verticalCenter
        x: slider.knobX - width / 2
        width: Theme.sliderKnob
        height: width
        radius: width / 2
        color: slider.isDragged ? Theme.knobHeld : Theme.knob
        border.width: Theme.hairline
        border.color: Theme.knobEdge
    }
}
