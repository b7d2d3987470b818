#include "platform/FileManager.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QFile>
#include <QTemporaryDir>

#include "platform/FilePath.h"
#include "support/BusDaemon.h"
#include "support/Files.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

/// The desktop's side.
class DesktopFileManager : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

 public:
  QStringList shown;

 public Q_SLOTS:
  void ShowItems(const QStringList& uris, const QString&) { shown << uris; }
};

struct FileManagerTest : ::testing::Test {
  FileManagerTest() {
    QObject::connect(&manager_, &FileManager::failed,
                     [this](const QString& sentence) { said_ = sentence; });
  }
  ~FileManagerTest() override { qputenv("PATH", path_); }

  /// Says which folder it was told to open.
  void installOpener() {
    const QString opener = directory_.filePath("xdg-open");
    writeFile(opener, "#!/bin/sh\nprintf %s \"$1\" > '" + openedPath().toStdString() + "'\n");
    QFile::setPermissions(opener, QFile::ReadOwner | QFile::ExeOwner);
  }
  QString openedPath() const { return directory_.filePath("opened"); }
  QByteArray opened() const { return readFile(openedPath()); }

  QTemporaryDir directory_;
  const QByteArray path_ = qgetenv("PATH");
  const QUrl film_ = fileUrlFromPath("/films \xE9/a film.mkv");
  FileManager manager_;
  QString said_;
};

TEST_F(FileManagerTest, ShowsTheFileOrItsFolderOrSaysWhyNot) {
  BusDaemon daemon;
  qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.address().toUtf8());
  qputenv("PATH", directory_.path().toUtf8());
  QDBusConnection desktop = daemon.connect("file manager");
  DesktopFileManager files;
  desktop.registerObject("/org/freedesktop/FileManager1", &files, QDBusConnection::ExportAllSlots);
  ASSERT_TRUE(desktop.registerService("org.freedesktop.FileManager1"));
  manager_.show(film_);
  EXPECT_TRUE(waitFor([&] { return !files.shown.isEmpty(); }));
  EXPECT_EQ(files.shown, QStringList{"file:///films%20%E9/a%20film.mkv"});
  desktop.unregisterService("org.freedesktop.FileManager1");

  installOpener();
  manager_.show(film_);
  EXPECT_TRUE(waitFor([&] { return !opened().isEmpty(); }));
  EXPECT_EQ(opened(), "file:///films%20%E9/");
  EXPECT_EQ(said_, QString());

  ASSERT_TRUE(QFile::remove(directory_.filePath("xdg-open")));
  manager_.show(film_);
  EXPECT_TRUE(waitFor([&] { return !said_.isEmpty(); }));
}

}  // namespace tromelo::testing

#include "FileManagerTest.moc"
