#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <chrono>
#include <optional>

namespace tromelo {

/// The session bus, where there is one; never starts one.
std::optional<QDBusConnection> sessionBus();

/// Has this process do without a session bus that takes connections and says nothing: whoever asks
/// it for anything would wait for minutes, Qt too. Before the application object; waits for half a
/// second at most, and with a bus that works for hardly a moment.
void leaveSilentSessionBus();

/// Whether the one with this address doesn't answer in time. One that isn't there isn't silent.
bool isSilentBus(const QByteArray& address, std::chrono::milliseconds patience);

}  // namespace tromelo
