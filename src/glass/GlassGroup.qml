pragma ComponentBehavior: Bound

import QtQuick

// Several surfaces in a row that belong together. Each is drawn for itself: a group adds nothing
// round its content but the distance. Those for which it has no room go into a next row.
Flow {
}
