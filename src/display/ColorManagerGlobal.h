#pragma once

#include <memory>
#include <optional>

#include "display/HostImageDescription.h"

struct wl_display;
struct wlr_surface;

namespace tromelo {

class HostConnection;

/// Announces wp_color_manager_v1 to the engine, with what `host` can do and no more; whatever the
/// engine asks of it, the host is asked, and answers for itself. Profiles in files are left out: no
/// driver and no engine makes them. Display's thread; `host`, which manages colour, outlives the
/// display.
void announceColorManager(wl_display* display, HostConnection& host);

/// What the engine has said of the colours of the surface's newest commit. Display's thread.
std::optional<SurfaceColor> surfaceColorOf(wlr_surface* surface);

}  // namespace tromelo
