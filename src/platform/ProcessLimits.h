#pragma once

#include <chrono>

namespace tromelo {

/// For a process that reads files which nobody vouches for: it steps back behind every other one,
/// can't take more memory than a picture needs, and leaves no dump of what it read. Call it before
/// there are threads.
void limitThisProcess();

/// Ends this process, which then has failed, when so much time has passed.
void endAfter(std::chrono::seconds limit);

}  // namespace tromelo
