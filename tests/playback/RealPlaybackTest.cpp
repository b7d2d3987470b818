#include "RealPlayback.h"
#include "platform/FilePath.h"
#include "support/Clips.h"
#include <QElapsedTimer>
#include <iostream>
#include <thread>
namespace tromelo::testing {
namespace {
QUrl clip(const std::string& n) { return fileUrlFromPath(clipPath(n)); }
struct Probe : RealPlayback {
  void SetUp() override {
    auto old = model().engine().onEvent;
    model().engine().onEvent = [this, old](const MpvEvent& e) {
      t_.isValid() || (t_.start(), true);
      std::cout << t_.elapsed() << " ";
      if (auto* p = std::get_if<event::Property>(&e)) {
        std::cout << "P " << mpvPropertyName(p->property) << " ";
        if (auto* s = p->value.as<std::string>()) std::cout << *s;
        if (auto* s = p->value.as<double>()) std::cout << *s;
        if (auto* s = p->value.as<std::int64_t>()) std::cout << *s;
        if (auto* s = p->value.as<bool>()) std::cout << *s;
        if (p->value.isNone()) std::cout << "none";
        if (p->property==MpvProperty::playlist) for (auto& i : playQueue(p->value)) std::cout << i.path.toStdString().substr(i.path.lastIndexOf('/')+1) << (i.isCurrent ? "*":"") << " ";
      } else if (auto* p = std::get_if<event::EndFile>(&e)) std::cout << "END " << p->error.value_or("-");
      else if (auto* p = std::get_if<event::CommandFailed>(&e)) std::cout << "FAILED " << p->error;
      else { static const char* k[]={"","","","START","LOADED","RESTART","SHUTDOWN","HWERR"}; std::cout << k[e.index()]; }
      std::cout << "\n";
      old(e);
    };
  }
  void run(int ms) { QElapsedTimer t; t.start(); (void)waitFor([&]{return t.elapsed()>ms;}); std::cout << "== title=" << model().title().toStdString() << " status=" << model().status().toStdString() << " err=" << model().errorMessage().toStdString() << " calls=" << player_.take().join(" | ").toStdString() << "\n"; }
  QElapsedTimer t_;
};
TEST_F(Probe, missing3) { model().open(QList<QUrl>{clip("m1.mkv"), clip("m2.mkv"), clip("m3.mkv")}); run(700); }
TEST_F(Probe, brokenThenGood) { model().open(QList<QUrl>{clip("text.mkv"), clip("short-wide.mp4")}); run(1500); }
TEST_F(Probe, blocked) { model().open(QList<QUrl>{clip("m1.mkv"), clip("short-wide.mp4")}); std::this_thread::sleep_for(std::chrono::milliseconds(300)); run(500); }
TEST_F(Probe, files) { for (auto n : {"text.txt","empty.mkv","noise.mkv","unknown-codec.mkv","headless.mp4","", "missing.mkv", "truncated.mkv", "audio.m4a"}) { std::cout << "#### " << n << "\n"; model().open(clip(n)); run(1500);} }
}
}
