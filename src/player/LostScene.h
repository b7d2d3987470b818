#pragma once

class QQuickWindow;

namespace tromelo {

/// Where the graphics driver can't draw a window's scene, the program ends as it does when the
/// system asks it to, so that nothing of the person's is lost, and says so on standard error: there
/// is no window that could. Main thread only.
void endWhereSceneIsLost(QQuickWindow& window);

}  // namespace tromelo
