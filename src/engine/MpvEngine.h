#pragma once

#include <QString>
#include <atomic>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/MpvEvent.h"
#include "engine/MpvRequest.h"
#include "engine/PreloadHook.h"

struct mpv_handle;

namespace tromelo {

struct MpvClientApi;
struct MpvOption;
class EngineLog;
class MpvEventQueue;
class WakeupTarget;
struct TakenEvent;

/// The one playback engine of the process: a libmpv handle, its events and what is sent to it. Main
/// thread only; nothing here waits for the engine but initialize(). Text is bytes, since paths need
/// not be UTF-8.
class MpvEngine {
 public:
  /// Touches neither libmpv nor the environment. `api` is copied.
  explicit MpvEngine(const MpvClientApi& api);
  /// Stops listening. The handle itself is destroyed by terminate() only.
  ~MpvEngine();
  MpvEngine(const MpvEngine&) = delete;
  MpvEngine& operator=(const MpvEngine&) = delete;

  /// Called for each event. It may end the engine, but not destroy this object.
  std::function<void(const MpvEvent&)> onEvent;

  /// Called when it begins to owe an answer. May be empty.
  std::function<void()> onTold;
  /// Of what it was told to do, it has yet to say of something what came of it.
  bool owesAnswer() const { return owed_ > 0; }

  /// Set before initialize(); see PreloadHook. Empty: files begin as the engine has them.
  PreloadHook::Prepare prepareFile;

  /// Starts the engine, which writes its log to "mpv.log" in the directory; that of an engine
  /// before it is kept as "mpv.log.1". None on success and when it runs already, else one line for
  /// people; the engine then has no handle, and everything that is sent to it is ignored.
  /// `vulkanDevice` is the UUID of the one to draw with; empty: any.
  std::optional<std::string> initialize(const QString& diagnosticsDirectory,
                                        const std::string& vulkanDevice = {});

  bool hasHandle() const { return handle_ != nullptr; }

  /// Takes the handle away at once, destroys it on another thread, and calls `completion` on the
  /// main thread afterwards (at once when there is no handle).
  void terminate(std::function<void()> completion);

  /// A handle that was taken away isn't destroyed yet.
  bool isDestroying() const { return *undestroyed_ > 0; }

  /// A command's failure comes back as an event.
  void command(std::vector<std::string> arguments);
  /// Called on the main thread with what went wrong, if anything did; never after terminate().
  using Outcome = std::function<void(const std::optional<std::string>& error)>;
  /// For a command whose failure is no event but its sender's affair.
  void command(std::vector<std::string> arguments, Outcome outcome);
  /// A refused value is not reported.
  void setProperty(std::string name, std::string value);

  /// Called on the main thread with the value as people read it, or none; never after terminate().
  using Answer = std::function<void(std::optional<std::string>)>;
  void readProperty(std::string name, Answer answer);
  /// The same, with a tree of values.
  using NodeAnswer = std::function<void(const MpvValue&)>;
  void readNode(std::string name, NodeAnswer answer);

  /// Whether the engine writes its log, which names what is played. It does from the start.
  void setLogging(bool writes);

  /// Of the library: "2.5".
  std::string clientApiVersion() const;

  /// Hands every waiting event to onEvent.
  void drainEvents();
  /// The same, for who wants to know how things are now; within onEvent nothing.
  void catchUp();
  /// Nobody looks at what changes with every frame: it is told when something else is, and by
  /// catchUp().
  void setQuiet(bool quiet);
  /// It is quiet and plays frames; event::FramesStopped comes when it doesn't any more.
  bool moves() const;

 private:
  std::optional<std::string> configure(const QString& diagnosticsDirectory,
                                       const std::string& vulkanDevice);
  std::optional<std::string> setOption(const MpvOption& option);
  void observe();
  void send(MpvRequest request);
  void sendWaiting();
  int trySend(const MpvRequest& request);
  void noteTaken(const MpvRequest& request);
  void noteRefusal(const MpvCommand& command, int code);
  void tellRefusals();
  void handle(const TakenEvent& taken);
  void answerRead(const TakenEvent& reply);
  bool tellOutcome(std::uint64_t reply, const std::optional<std::string>& error);

  std::shared_ptr<const MpvClientApi> api_;
  mpv_handle* handle_ = nullptr;
  std::shared_ptr<WakeupTarget> wakeupTarget_;
  std::shared_ptr<PreloadHook> preload_;
  std::shared_ptr<EngineLog> log_;
  std::shared_ptr<MpvEventQueue> events_;  // while there is a handle
  bool isQuiet_ = false;
  int draining_ = 0;  // how deep
  std::shared_ptr<std::atomic<int>> undestroyed_ = std::make_shared<std::atomic<int>>(0);
  std::string logFile_;  // a path's bytes
  // libmpv takes no more requests than it has room for replies, and needs some of it for its
  // events; these wait until it has answered some.
  std::deque<MpvRequest> waiting_;
  int unanswered_ = 0;
  int owed_ = 0;  // of these, what is no question
  // By command, of those that libmpv refused on the spot; reported as its later replies are.
  struct Refusal {
    std::uint64_t reply;
    std::string error;
  };
  std::vector<Refusal> refusals_;
  std::map<std::uint64_t, Answer> reads_;      // without an answer yet, by their reply
  std::map<std::uint64_t, NodeAnswer> nodes_;  // the same of trees
  std::map<std::uint64_t, Outcome> outcomes_;  // the same of commands
  std::uint64_t lastReply_ = 0;
};

}  // namespace tromelo
