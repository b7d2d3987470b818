#include "display/OutputHead.h"

namespace tromelo {

std::unique_ptr<OutputHead> OutputHead::create(wl_display* display,
                                               const PrivateDisplay::Output& output) {
  wlr_backend* backend = wlr_headless_backend_create(wl_display_get_event_loop(display));
  if (!backend) return nullptr;
  std::unique_ptr<OutputHead> head(new OutputHead(backend));
  if (!wlr_backend_start(backend)) return nullptr;
  head->output_ = wlr_headless_add_output(backend, unsigned(output.size.width()),
                                          unsigned(output.size.height()));
  if (!head->output_ || !head->apply(output)) return nullptr;
  wlr_output_create_global(head->output_, display);
  return head;
}

OutputHead::~OutputHead() { wlr_backend_destroy(backend_); }

bool OutputHead::apply(const PrivateDisplay::Output& output) {
  wlr_output_state state;
  wlr_output_state_init(&state);
  wlr_output_state_set_enabled(&state, true);
  wlr_output_state_set_custom_mode(&state, output.size.width(), output.size.height(),
                                   output.refreshMillihertz);
  const bool isApplied = wlr_output_commit_state(output_, &state);
  wlr_output_state_finish(&state);
  return isApplied;
}

}  // namespace tromelo
