#pragma once

#include <cstddef>
#include <vector>

#include "platform/UniqueFd.h"

namespace tromelo {

/// What has come from one Unix stream socket and is to go to another: bytes, and the descriptors
/// that come with them, in order. Never waits. For one thread at a time.
class SocketBytes {
 public:
  /// Appends what has come. False: nothing will come any more.
  bool receive(int socket);
  /// Sends what `socket` takes now, descriptors no later than the bytes they came with; the rest
  /// stays. False: nobody reads there any more.
  bool send(int socket);

  /// What may be read and taken out while it waits.
  std::vector<std::byte> bytes;
  /// Without bytes they wait for some.
  std::vector<UniqueFd> descriptors;
};

}  // namespace tromelo
