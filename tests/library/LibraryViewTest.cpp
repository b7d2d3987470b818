#include <QDropEvent>
#include <QJsonArray>
#include <QMimeData>
#include <QSignalSpy>
#include <semaphore>

#include "films/FilmMemory.h"
#include "library/LibraryWindow.h"
#include "library/SidebarWidth.h"
#include "overlay/ViewTest.h"
#include "platform/FileManager.h"
#include "platform/ReducedMotion.h"
#include "player/Commands.h"
#include "support/Reader.h"
#include "support/Table.h"
#include "support/Warnings.h"

namespace tromelo::testing {

struct LibraryViewTest : ViewTest {
  LibraryViewTest() : ViewTest("Tromelo.Library") {
    host_.resize(1100, 720);
    layer_.setSize(host_.size());
    host_.requestActivate();
    EXPECT_TRUE(waitFor([this] { return host_.isActive(); }));
    QQuickItem& view = show("LibraryView", {{"playback", playback()},
                                            {"player", QVariant::fromValue(&player())},
                                            {"sidebarWidth", QVariant::fromValue(&sidebarWidth_)},
                                            {"fileManager", QVariant::fromValue(&fileManager_)}});
    view.setSize(host_.size());
    view.forceActiveFocus();
    layOut();
  }

  // What it is about goes before it.
  ~LibraryViewTest() override { view_.reset(); }

  /// To its end.
  void play(const char* path) {
    load(60);
    report(MpvProperty::path, path);
    report(event::EndFile{});
    layOut();
  }
  QList<QQuickItem*> rows() {
    layOut();
    return all("recentRow");
  }
  /// The name of the row that has the keyboard.
  QString chosen() {
    QStringList names;
    for (const QQuickItem* row : rows())
      if (row->property("chosen").toBool()) names << row->property("name").toString();
    return names.join(u'|');
  }
  void afterClick() override {}
  /// The files that the engine was told to play since the last call, and how.
  Sent opened() {
    Sent lines = takeSent();
    std::erase_if(lines, [](const std::string& line) { return !line.starts_with("loadfile "); });
    for (std::string& line : lines) line.resize(line.find(" -1 "));
    return lines;
  }
  bool asksForFiles() { return std::exchange(files_.asked, {}).has_value(); }

  SidebarWidth sidebarWidth_{defaults_};
  FileManager fileManager_;
};

TEST_F(LibraryViewTest, ListsWhatWasPlayedNewestFirst) {
  EXPECT_TRUE(isShown("noRecents"));
  play("/Movies/.hidden");
  play("/Movies/My.Film.2020.mkv");
  EXPECT_FALSE(isShown("noRecents"));
  EXPECT_EQ(texts(rows(), "name"), (QStringList{"My.Film.2020", ".hidden"}));
  EXPECT_EQ(texts(rows(), "path"), (QStringList{"/Movies/My.Film.2020.mkv", "/Movies/.hidden"}));

  click(rows()[1]);
  EXPECT_EQ(opened(), Sent{"loadfile /Movies/.hidden replace"});
  EXPECT_EQ(chosen(), QString()) << "a click leaves the keyboard where it is";
}

TEST_F(LibraryViewTest, SaysNothingOfRecentFilesUntilTheyAreKnown) {
  auto answers = std::make_shared<std::counting_semaphore<>>(0);
  defaults_.set("recentFiles", QJsonArray{"/share/film.mkv"});
  PlaybackModel::Parts unknown = parts();
  unknown.fileExists = [answers](const std::string&) {
    answers->acquire();
    return false;
  };
  PlaybackModel starting(std::move(unknown));
  show("RecentsList", {{"playback", QVariant::fromValue(&starting)},
                       {"fileManager", QVariant::fromValue(&fileManager_)}});
  EXPECT_FALSE(isShown("noRecents"));
  answers->release();
  EXPECT_TRUE(waitFor([this] { return isShown("noRecents"); }));
  view_.reset();
}

TEST_F(LibraryViewTest, TheKeyboardStaysAtItsFileWhileTheListChanges) {
  for (const char* path : {"/c", "/b", "/a"}) play(path);
  EXPECT_EQ(chosen(), QString());
  key(Qt::Key_Down);
  EXPECT_EQ(chosen(), "a");
  key(Qt::Key_Down);
  EXPECT_EQ(chosen(), "b");
  for (const auto enter : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    takeSent();
    key(enter);
    EXPECT_EQ(opened(), Sent{"loadfile /b replace"}) << enter;
  }
  play("/d");
  EXPECT_EQ(chosen(), "b") << "another comes before it";
  play("/b");
  EXPECT_EQ(texts(rows(), "name"), (QStringList{"b", "d", "a", "c"}));
  EXPECT_EQ(chosen(), "b") << "it moves";
  playback_.removeRecent(QUrl("file:///b"));
  EXPECT_EQ(chosen(), "d") << "the next one takes its place";
  for (const char* left : {"file:///a", "file:///d", "file:///c"})
    playback_.removeRecent(QUrl(left));
  layOut();
  EXPECT_TRUE(isShown("noRecents"));
  EXPECT_NE(host_.activeFocusItem(), item("recentsList"));
  EXPECT_TRUE(host_.activeFocusItem()->activeFocusOnTab());
}

TEST_F(LibraryViewTest, ARowsMenuDoesWhatItSaysFromTheHandAndFromTheKeyboard) {
  play("/b");
  play("/a");
  const auto open = [this](int how) {
    if (how == 0) return click(rows()[1], Qt::RightButton);
    for (int i = 0; i < 2; ++i) key(Qt::Key_Down);
    ASSERT_EQ(chosen(), "b");
    how == 1 ? key(Qt::Key_Menu) : key(Qt::Key_F10, Qt::ShiftModifier);
  };
  for (const int how : {0, 1, 2}) {
    open(how);
    ASSERT_TRUE(isShown("addToQueue")) << how;
    key(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([this] { return !isShown("addToQueue"); }));
  }
  EXPECT_EQ(chosen(), "b") << "the keyboard comes back";

  open(1);
  reportPlaylist(1, 0);
  takeSent();
  key(Qt::Key_Return);
  EXPECT_EQ(opened(), Sent{"loadfile /b append"});
  open(0);
  play("/c");  // while the menu is open
  click(item("removeFromRecents"));
  EXPECT_EQ(texts(rows(), "name"), (QStringList{"c", "a"}));

  QStringList said;
  QObject::connect(&fileManager_, &FileManager::failed, &host_,
                   [&said](const QString& sentence) { said << sentence; });
  const QByteArray path = qgetenv("PATH");
  qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  qputenv("PATH", "/nowhere");
  click(rows()[0], Qt::RightButton);
  click(item("showInFileManager"));
  qputenv("PATH", path);
  EXPECT_EQ(said.size(), 1) << "there is none that could show it";
}

TEST_F(LibraryViewTest, DescribesTheLastFileOnceItIsKnown) {
  EXPECT_FALSE(isShown("lastPlayedCard"));
  play("/films/Film.mkv");
  EXPECT_TRUE(!isShown("lastPlayedCard") && isShown("emptyLibrary")) << "no codec yet";
  report(MpvProperty::videoFormat, "hevc");
  EXPECT_TRUE(isShown("lastPlayedCard") && !isShown("emptyLibrary"));
  EXPECT_EQ(text("cardTitle"), playback_.title());
  EXPECT_EQ(texts(items("detailValue")),
            (QStringList{playback_.output(), playback_.display(), playback_.decoder()}));
  takeSent();
  click(item("playAgain"));
  EXPECT_EQ(opened(), Sent{"loadfile /films/Film.mkv replace"});
}

TEST_F(LibraryViewTest, EveryButtonThatOpensAsksForFiles) {
  const auto check = [this](const char* name) {
    click(item(name));
    EXPECT_TRUE(asksForFiles()) << name << ", by hand";
    for (const auto enter : {Qt::Key_Return, Qt::Key_Space}) {
      item(name)->forceActiveFocus(Qt::TabFocusReason);
      key(enter);
      EXPECT_TRUE(asksForFiles()) << name << ", by key " << enter;
    }
  };
  check("libraryOpen");
  check("openVideos");
  play("/films/Film.mkv");
  report(MpvProperty::videoFormat, "hevc");
  check("openOther");
}

TEST_F(LibraryViewTest, TellsTheErrorWordForWord) {
  EXPECT_FALSE(isShown("libraryError"));
  const QString sentence = QString("Could not play <b>Film</b>: ") + QString(300, u'x');
  playback_.tell(sentence);
  ASSERT_TRUE(isShown("libraryError"));
  QQuickItem* capsule = item("libraryError");
  const QQuickItem* words = items("messageText", capsule).value(0);
  EXPECT_EQ(words->property("text").toString(), sentence);
  EXPECT_EQ(words->property("lineCount").toInt(), 2);
  layOut();
  const QRectF pane(231, 0, host_.width() - 231, host_.height());
  EXPECT_TRUE(pane.contains(frame(capsule)));
  EXPECT_NEAR(frame(capsule).center().x(), pane.center().x(), 1);
}

TEST_F(LibraryViewTest, AllIsKnownAndUsedWithoutBeingSeen) {
  using enum QAccessible::Role;
  Reader reader(host_);
  reader.expect(List, {"Recently Played"});
  reader.expect(StaticText, {"Videos you play appear here."});
  reader.expect(Button, {"Open", "Open Videos…"});
  reader.expect(Splitter, {"Width of the sidebar"});
  reader.expectNames();
  playback_.tell("Full.");
  EXPECT_EQ(Reader::heard, QStringList{"Full."});
  play("/Film.mkv");
  report(MpvProperty::videoFormat, "hevc");
  report(MpvProperty::containerFps, 25.0);
  layOut();
  reader.expect(Grouping, {"Last played"});
  reader.expect(Button, {"Play Again", "Open Other…"});
  reader.expectNames();
  takeSent();
  reader.press(ListItem, "Film");
  EXPECT_EQ(opened(), Sent{"loadfile /Film.mkv replace"});
  key(Qt::Key_Down);
  EXPECT_TRUE(reader.state(ListItem, "Film").selected);
}

TEST_F(LibraryViewTest, KeysReachAFileWithoutAPicture) {
  play("/a");
  key(Qt::Key_Down);
  ASSERT_EQ(chosen(), "a");
  load(60);
  EXPECT_TRUE(isShown("libraryStatus"));
  EXPECT_EQ(chosen(), QString());
  for (const auto& [pressed, sent] : {std::pair{Qt::Key_Space, "set pause no"},
                                      {Qt::Key_Right, "seek 10.0 relative"},
                                      {Qt::Key_Down, "set volume 95.0"},
                                      {Qt::Key_Escape, "stop"}}) {
    takeSent();
    key(pressed);
    EXPECT_EQ(takeSent(), Sent{sent});
  }
  report(event::EndFile{});
  EXPECT_FALSE(isShown("libraryStatus"));
  key(Qt::Key_Down);
  EXPECT_EQ(chosen(), "a");
}

TEST_F(LibraryViewTest, TakesDroppedFilesAnywhereAndNothingElse) {
  QMimeData mime;
  const auto tell = [this](auto&& event) {
    QCoreApplication::sendEvent(&host_, &event);
    return event.isAccepted();
  };
  const auto enter = [&](QPoint place) {
    tell(QDragEnterEvent(place, Qt::CopyAction, &mime, Qt::LeftButton, {}));
    return tell(QDragMoveEvent(place, Qt::CopyAction, &mime, Qt::LeftButton, {}));
  };
  const auto drop = [&](QPoint place) {
    return tell(QDropEvent(place, Qt::CopyAction, &mime, Qt::LeftButton, {}));
  };
  const auto isHighlighted = [this](bool fully) {
    return waitFor([&] { return item("dropHighlight")->opacity() == (fully ? 1 : 0); });
  };
  for (const QPoint place : {QPoint(50, 300), QPoint(700, 360), QPoint(231, 10)}) {
    mime.clear();
    mime.setText("a film");
    EXPECT_FALSE(enter(place));
    EXPECT_EQ(item("dropHighlight")->opacity(), 0);
    tell(QDragLeaveEvent());
    mime.setData("text/uri-list", "file:///c.mkv\r\nhttp://no/\r\nfile:///a%20.mkv\r\n");
    EXPECT_TRUE(enter(place) && isHighlighted(true));
    takeSent();
    EXPECT_TRUE(drop(place) && isHighlighted(false));
    EXPECT_EQ(opened(), (Sent{"loadfile /c.mkv replace", "loadfile /a .mkv append"}));
  }
  mime.setData("text/uri-list", "smb://nas/a.mkv\r\n");
  EXPECT_TRUE(enter({50, 300}) && drop({50, 300}));
  EXPECT_TRUE(
      waitFor([this] { return playback_.errorMessage() == u"Tromelo plays local files only."; }));
}

TEST_F(LibraryViewTest, ShowsHowFarOneWasInAFilmUntilItIsRemoved) {
  FilmMemory memory(directory_.filePath("films.sqlite"),
                    [](const QString& told) { ADD_FAILURE() << told.toStdString(); });
  memory.remember({"1f-aa", 7200}, {.position = 2520}, "/films/b.mkv");
  defaults_.set("recentFiles", QJsonArray{"/films/a.mkv", "/films/b.mkv"});
  PlaybackModel::Parts remembering = parts();
  remembering.films = &memory;
  remembering.fileExists = [](const std::string&) { return true; };
  PlaybackModel model(std::move(remembering));
  show("RecentsList", {{"playback", QVariant::fromValue(&model)},
                       {"fileManager", QVariant::fromValue(&fileManager_)}})
      .setSize({230, 400});
  const auto left = [this] {
    QStringList texts;
    for (const QQuickItem* bar : all("recentSeen"))
      if (bar->isVisible())
        texts << bar->findChild<QObject*>("seenText")->property("text").toString();
    return texts;
  };
  ASSERT_TRUE(waitFor([&] { return left() == QStringList{"1 h 18 min left"}; }));
  EXPECT_GT(rows()[1]->height(), rows()[0]->height());
  QQuickWindow* const window = rows()[0]->window();
  window->hide();
  memory.remember({"1f-aa", 7200}, {.position = 3600}, "/films/b.mkv");
  QSignalSpy remembered(&memory, &FilmMemory::changed);
  ASSERT_TRUE(waitFor([&] { return !remembered.isEmpty(); }));
  window->show();
  EXPECT_TRUE(waitFor([&] { return left() == QStringList{"1 h left"}; }));

  model.removeRecent(QUrl("file:///films/b.mkv"));
  bool isForgotten = false;
  memory.findProgress("/films/b.mkv", &memory, [&](const FilmProgress& found) {
    EXPECT_EQ(found, FilmProgress());
    isForgotten = true;
  });
  EXPECT_TRUE(waitFor([&] { return isForgotten; }));
  view_.reset();
}

TEST_F(LibraryViewTest, ComesUpBeforeAFileThatIsOpenedWithIt) {
  allowWarning("This plugin does not support raise()");
  Commands commands({});
  const ReducedMotion motion("0", std::nullopt);
  LibraryWindow library(engine_, playback_, player(), commands, defaults_, motion);
  library.makeKeyAndOrderFront();
  await();
  settle();
  EXPECT_TRUE(std::ranges::any_of(QGuiApplication::topLevelWindows(), [](const QWindow* window) {
    return window->isVisible() && window->title() == u"Tromelo";
  }));
}

TEST_F(LibraryViewTest, TheDividerIsDraggedAndMovedByKeys) {
  const auto widths = [this] {
    return QPointF(item("librarySidebar")->width(), sidebarWidth_.width());
  };
  EXPECT_EQ(widths(), QPointF(230, 230));
  const QPointF place(230, 400);
  press(place);
  drag(place + QPointF(3, 0));
  drag(place + QPointF(30, 5));
  EXPECT_EQ(widths(), QPointF(260, 260));
  drag(place + QPointF(500, 5));
  release(place + QPointF(500, 5));
  EXPECT_EQ(widths(), QPointF(300, 300));
  item("sidebarDivider")->forceActiveFocus(Qt::TabFocusReason);
  key(Qt::Key_Left);
  EXPECT_EQ(widths(), QPointF(290, 290));
  key(Qt::Key_Right);
  EXPECT_EQ(widths(), QPointF(300, 300));
}

TEST_F(LibraryViewTest, TipsTellOurKeysAndTheNamesThatPeopleGave) {
  play("/Finders Keepers.mkv");
  const auto tipOf = [this](const QQuickItem* one) {
    mouse(QEvent::MouseMove, frame(one).center(), Qt::NoButton);
    EXPECT_TRUE(waitFor([&] { return one->findChild<QObject*>("toolTip"); }));
    return one->findChild<QObject*>("toolTip")->property("text").toString();
  };
  EXPECT_EQ(tipOf(rows()[0]), "/Finders Keepers.mkv");
  EXPECT_EQ(tipOf(item("libraryOpen")), "Open a video (Ctrl+O)");
}

TEST_F(LibraryViewTest, OnlyAHighDynamicRangeIsGold) {
  play("/films/Film.mkv");
  report(MpvProperty::videoFormat, "hevc");
  for (const auto& [gamma, isGold] : {std::pair{"bt.1886", false}, {"pq", true}, {"hlg", true}}) {
    report(MpvProperty::gamma, gamma);
    const auto chips = items("chipText");
    EXPECT_EQ(texts(chips), (QStringList{playback_.dynamicRange().label(), playback_.videoSize(),
                                         playback_.frameRate(), playback_.codec()}));
    for (const QQuickItem* chip : chips)
      EXPECT_EQ(chip->property("color").value<QColor>().blueF() < 0.6, isGold && chip == chips[0])
          << gamma;
  }
}

}  // namespace tromelo::testing
