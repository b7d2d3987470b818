#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "RunningPlayer.h"

namespace tromelo::testing {

/// A sound server of the test's own, with speakers that nobody hears and that can be unplugged.
struct SoundServer {
  explicit SoundServer(RunningPlayer& player) {
    environment_.insert("PIPEWIRE_RUNTIME_DIR", home_.path());
    environment_.insert("XDG_CONFIG_HOME", home_.path());
    environment_.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    for (const QString name : {"PIPEWIRE_RUNTIME_DIR", "PULSE_SERVER"})
      player.environment.insert(name, home_.path());
    write("server.conf", kServer);
    QDir(home_.path()).mkpath("wireplumber/wireplumber.conf.d");
    write("wireplumber/wireplumber.conf.d/profile.conf", kManager);
  }
  ~SoundServer() { kill(); }

  void start() {
    run(server_, "pipewire", {"-c", home_.filePath("server.conf")});
    EXPECT_TRUE(testing::waitFor([&] { return hasSpeakers(); }));
    run(manager_, "wireplumber", {"-p", "policy"});
  }
  void kill() {
    for (QProcess* process : {&server_, &manager_}) {
      process->kill();
      process->waitForFinished();
    }
  }
  void unplug() {
    tool({"destroy", "speakers"});
    EXPECT_TRUE(testing::waitFor([&] { return !hasSpeakers(); }));
  }
  void plugIn() {
    tool({"create-node", "adapter", kSpeakers});
    EXPECT_TRUE(testing::waitFor([&] { return hasSpeakers(); }));
  }

 private:
  static constexpr const char* kSpeakers =
      "{ factory.name = support.null-audio-sink, node.name = speakers, media.class = Audio/Sink,"
      " audio.position = [ FL FR ], object.linger = true }";
  static inline const QByteArray kServer = QByteArray(R"(
context.properties = { core.daemon = true, core.name = pipewire-0, support.dbus = false }
context.spa-libs = {
  audio.convert.* = audioconvert/libspa-audioconvert
  support.* = support/libspa-support
}
context.modules = [
  { name = libpipewire-module-protocol-native }
  { name = libpipewire-module-metadata }
  { name = libpipewire-module-spa-node-factory }
  { name = libpipewire-module-client-node }
  { name = libpipewire-module-access }
  { name = libpipewire-module-adapter }
  { name = libpipewire-module-link-factory }
  { name = libpipewire-module-session-manager }
]
context.objects = [ { factory = adapter, args = )") +
                                           kSpeakers + " } ]\n";
  // Nothing of the machine's, and nothing kept.
  static constexpr const char* kManager = R"(
wireplumber.profiles = {
  policy = {
    inherits = [ base, mixin.systemwide-session, mixin.stateless ]
    metadata.sm-settings = required
    metadata.sm-objects = required
    policy.standard = required
  }
}
)";

  void write(const QString& name, const QByteArray& text) {
    QFile file(home_.filePath(name));
    EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(text) == text.size());
  }
  void run(QProcess& process, const QString& program, const QStringList& arguments) {
    process.setProcessEnvironment(environment_);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForStarted()) << qPrintable(program);
  }
  QByteArray tool(const QStringList& arguments) {
    QProcess process;
    run(process, "pw-cli", arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
  }
  bool hasSpeakers() { return tool({"list-objects", "Node"}).contains("\"speakers\""); }

  QTemporaryDir home_;
  QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
  QProcess server_;
  QProcess manager_;
};

}  // namespace tromelo::testing
