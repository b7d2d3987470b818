pragma ComponentBehavior: Bound

import QtQuick

// A button that stays down while what it names is on.
PushButton {
    checkable: true
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()
}
