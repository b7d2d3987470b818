#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "engine/MpvRequest.h"
#include "engine/SecondClient.h"

struct mpv_event_hook;

namespace tromelo {

struct MpvClientApi;

/// A file that the engine has opened, before it chooses tracks and where to begin.
struct OpenedFile {
  std::int64_t entry = 0;     // the engine's number for it
  std::string path;           // bytes
  double duration = 0;        // seconds; 0 where it isn't known
  bool hasStart = false;      // it was told where to begin
  std::string versions = {};  // of the engine and its decoders
};

/// Asks of each file how it is to begin, while the engine waits: on a thread of its own, since the
/// main thread may be busy with the window that the file is to be shown in.
class PreloadHook {
 public:
  using Wish = std::variant<MpvCommand, MpvPropertyWrite>;
  /// Called on that thread. The engine waits until it returns, and then does as it is told; what it
  /// refuses it goes on without.
  using Prepare = std::function<std::vector<Wish>(const OpenedFile&)>;

  /// Does nothing where the engine has no room for another client.
  PreloadHook(std::shared_ptr<const MpvClientApi> api, mpv_handle* engine, Prepare prepare);

 private:
  void answer(const mpv_event_hook& hook);
  OpenedFile openedFile() const;
  std::string text(const char* name) const;
  template <typename T>
  T number(const char* name) const;
  void send(const Wish& wish) const;

  const std::shared_ptr<const MpvClientApi> api_;
  const Prepare prepare_;
  SecondClient client_;  // the last to be made; waits for Prepare when it goes
};

}  // namespace tromelo
