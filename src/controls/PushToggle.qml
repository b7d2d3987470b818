pragma ComponentBehavior: Bound

// A button that stays down while what it names is on.
PushButton {
    checkable: true
}
