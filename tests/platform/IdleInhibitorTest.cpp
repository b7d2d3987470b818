#include "platform/IdleInhibitor.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusObjectPath>
#include <QVariantMap>
#include <optional>

#include "support/BusDaemon.h"
#include "support/FakeScreenSaver.h"
#include "support/ManualClock.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// Two ways of which a test says what they answer, and when.
struct TwoWays {
  /// One letter for each step: "+" and "-" want it and don't, "A" and "B" are granted by the first
  /// and the second way, "a" and "b" refused, "t" lets a long time pass, "x" ends the inhibitor.
  /// Gives what is asked for ("A?") and held at the end.
  std::string after(const char* steps) {
    for (const char* step = steps; *step; ++step) take(*step);
    std::string state;
    for (std::size_t way = 0; way < 2; ++way) {
      if (!answers_[way].empty()) state += {char('A' + way), '?'};
      if (held_[way]) state += std::string(std::size_t(held_[way]), char('A' + way));
    }
    return state;
  }

 private:
  AskForInhibition way(std::size_t way) {
    return [this, way](auto answer) { answers_[way].push_back(answer); };
  }
  void take(char step) {
    if (step == '+' || step == '-') return inhibitor_->setInhibited(step == '+');
    if (step == 't') return clock_.advance(std::chrono::seconds(6));
    if (step == 'x') return inhibitor_.reset();
    const std::size_t way = (step | 0x20) - 'a';
    const auto answer = answers_[way].front();
    answers_[way].erase(answers_[way].begin());
    if (step >= 'a') return answer({});
    ++held_[way];
    answer([this, way] { --held_[way]; });
  }

  ManualClock clock_;
  std::vector<std::function<void(ReleaseInhibition)>> answers_[2];
  int held_[2]{};
  std::unique_ptr<IdleInhibitor> inhibitor_ =
      std::make_unique<IdleInhibitor>(std::vector{way(0), way(1)}, clock_);
};

TEST(IdleInhibitor, HoldsOneInhibitionWhileItIsWantedAndLeavesNoneBehind) {
  // Steps and what has become of them.
  for (const char* rows : {
           "= +=A? ++=A? +A=A +A+=A +A-= +A--= +A-+=A? +A-+A=A",
           "+-=A? +-A= +-+=A? +-+A=A",  // a late answer
           "+a=B? +aB=B +aB-= +-a= +a-B= +ab=",
           "+ab-+=A?",  // asked again only when it is wanted again
           "+t=A?B? +tB=A?B +tBA=B +tAB=A +tA=AB? +tAb=A +ttA=AB? +t-A=B? +-tA=",
           "+At=A",  // no answer for too long
           "+Ax= +x=A? +xA= +txBA=",
       })
    for (const QString& row : QString(rows).split(' ')) {
      const std::string steps = row.section('=', 0, 0).toStdString();
      EXPECT_EQ(TwoWays().after(steps.c_str()), row.section('=', 1).toStdString()) << steps;
    }
}

class PortalRequest : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

 public:
  bool closed = false;

 public Q_SLOTS:
  void Close() { closed = true; }
};

class Portal : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

 public:
  uint flags = 0;

 public Q_SLOTS:
  QDBusObjectPath Inhibit(const QString&, uint asked, const QVariantMap&) {
    flags = asked;
    return QDBusObjectPath("/request/1");
  }
};

struct DesktopInhibition : ::testing::Test {
  void offerPortal() {
    constexpr auto kSlots = QDBusConnection::ExportAllSlots;
    ASSERT_TRUE(desktop_.registerObject("/org/freedesktop/portal/desktop", &portal_, kSlots));
    ASSERT_TRUE(desktop_.registerObject("/request/1", &request_, kSlots));
    ASSERT_TRUE(desktop_.registerService("org.freedesktop.portal.Desktop"));
  }

  BusDaemon daemon_;
  QDBusConnection desktop_ = daemon_.connect("desktop");
  QDBusConnection player_ = daemon_.connect("player");
  FakeScreenSaver saver_{desktop_};
  Portal portal_;
  PortalRequest request_;
  SystemClock clock_;
  std::optional<IdleInhibitor> inhibitor_{
      std::in_place, std::vector{portalInhibition(player_), screenSaverInhibition(player_)},
      clock_};
};

TEST_F(DesktopInhibition, GoesToTheScreenSaverWhereThereIsNoPortal) {
  inhibitor_->setInhibited(true);
  EXPECT_TRUE(waitFor([&] { return saver_.held() == 1; }));
  inhibitor_->setInhibited(false);
  EXPECT_TRUE(waitFor([&] { return saver_.held() == 0; }));

  inhibitor_->setInhibited(true);
  inhibitor_.reset();  // before the portal's refusal, so that nobody else is asked
  settle();
  EXPECT_EQ(saver_.asked(), 1u);
}

TEST_F(DesktopInhibition, GoesToThePortalAlone) {
  offerPortal();
  inhibitor_->setInhibited(true);
  EXPECT_TRUE(waitFor([&] { return portal_.flags != 0; }));
  EXPECT_EQ(portal_.flags, 12u);  // idle and suspend
  inhibitor_.reset();             // wherever the answer is by now
  EXPECT_TRUE(waitFor([&] { return request_.closed; }));
  EXPECT_EQ(saver_.asked(), 0u);
}

}  // namespace tromelo::testing

#include "IdleInhibitorTest.moc"
