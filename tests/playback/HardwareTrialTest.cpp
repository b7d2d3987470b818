#include "playback/HardwareTrial.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/Files.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

struct HardwareTrialTest : ::testing::Test {
  /// The engine begins with an entry, has opened the file, and is told how to go on.
  bool isForSoftware(std::int64_t entry, const QByteArray& film, const char* versions = "1") {
    trial_->started(entry);
    const auto wishes =
        trial_->preparation()({.entry = entry, .path = {}, .versions = versions}, film);
    settle();
    return !wishes.empty();
  }
  bool isMarked() const { return !QDir(folder_).entryList({"running-*"}).isEmpty(); }
  [[nodiscard]] bool becomesMarked(bool marked) {
    return waitFor([&] { return isMarked() == marked; });
  }

  /// What is under way comes to the disk.
  void disk() {
    const QString known = folder_ + "/told-film";
    writeFile(known.toStdString(), "");
    trial_->forgetAll();
    EXPECT_TRUE(waitFor([&] { return !QFile::exists(known); }));
  }

  QTemporaryDir directory_;
  QString folder_ = directory_.filePath("decoding");
  std::vector<bool> told_;
  std::unique_ptr<HardwareTrial> trial_ =
      std::make_unique<HardwareTrial>(folder_, [this](bool isNew) { told_.push_back(isNew); });
};

TEST_F(HardwareTrialTest, AFilmIsMarkedBeforeItIsDecodedAndForAsLongAsHardwareDoes) {
  EXPECT_FALSE(isForSoftware(1, "A"));
  EXPECT_TRUE(isMarked());
  trial_->decodes(true);
  trial_->played();
  disk();
  EXPECT_TRUE(isMarked());
  trial_->decodes(false);  // given up
  EXPECT_TRUE(becomesMarked(false));
  trial_->decodes(true);
  EXPECT_TRUE(becomesMarked(true));
  trial_->ended();
  EXPECT_TRUE(becomesMarked(false));
  EXPECT_FALSE(isForSoftware(2, "sound"));
  trial_->played();
  EXPECT_TRUE(becomesMarked(false));
  EXPECT_FALSE(isForSoftware(3, "A"));
  trial_.reset();
  EXPECT_FALSE(isMarked()) << "the program ended in order";
}

TEST_F(HardwareTrialTest, TheEndOfTheFilmBeforeIsNoEndOfTheNext) {
  EXPECT_FALSE(isForSoftware(1, "A"));
  trial_->decodes(true);
  const auto engine = trial_->preparation();
  engine({.entry = 2, .path = {}}, "B");  // while the main thread still has to hear of A's end
  trial_->ended();
  trial_->started(2);
  settle();
  trial_->decodes(true);
  disk();
  EXPECT_TRUE(isMarked());
}

TEST_F(HardwareTrialTest, TellsOnceOfAFilmThatTookAProgramDown) {
  isForSoftware(1, "A");
  // As the kernel leaves it.
  const QString mark = folder_ + '/' + QDir(folder_).entryList({"running-*"}).value(0);
  ASSERT_TRUE(QFile::copy(mark, folder_ + "/running-dead"));
  EXPECT_TRUE(isForSoftware(2, "A"));
  EXPECT_FALSE(isMarked());
  EXPECT_TRUE(isForSoftware(3, "A"));
  EXPECT_EQ(told_, (std::vector{true, false}));
  EXPECT_FALSE(isForSoftware(4, "A", "2"));
}

}  // namespace tromelo::testing
