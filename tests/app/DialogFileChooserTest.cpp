#include "app/DialogFileChooser.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "platform/FilePath.h"
#include "support/WaitFor.h"
#include "support/Warnings.h"

namespace tromelo::testing {
namespace {

QList<QFileDialog*> shownDialogs() {
  settle();
  QList<QFileDialog*> dialogs;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* dialog = qobject_cast<QFileDialog*>(widget); dialog && dialog->isVisible())
      dialogs << dialog;
  return dialogs;
}

TEST(DialogFileChooserTest, ShowsOneDialogForWhatIsAskedLast) {
  struct Row {
    FileChooser::Request request;
    QFileDialog::FileMode mode;
    QStringList filters;
  };
  const Row rows[] = {
      {{"Play", true, {}}, QFileDialog::ExistingFiles, {"All Files (*)"}},
      {{"Add to Queue", true, {}}, QFileDialog::ExistingFiles, {"All Files (*)"}},
      {{"Add Subtitle", false, {"srt", "ass"}},
       QFileDialog::ExistingFile,
       {"(*.srt *.SRT *.ass *.ASS)"}},
  };
  allowWarning("This plugin does not support ");  // what windows need elsewhere
  DialogFileChooser chooser;
  QList<QUrl> chosen;
  for (const Row& row : rows) {
    const std::string name = row.request.prompt.toStdString();
    chooser.chooseFiles(row.request, [&chosen](const QList<QUrl>& files) { chosen = files; });
    const QList<QFileDialog*> dialogs = shownDialogs();
    ASSERT_EQ(dialogs.size(), 1) << name;
    EXPECT_EQ(dialogs[0]->labelText(QFileDialog::Accept), row.request.prompt);
    EXPECT_EQ(dialogs[0]->fileMode(), row.mode) << name;
    EXPECT_EQ(dialogs[0]->nameFilters(), row.filters) << name;
    chooser.chooseFiles(row.request, [](const QList<QUrl>&) { FAIL() << "asked for twice"; });
    EXPECT_EQ(shownDialogs(), dialogs) << name;
  }
  Q_EMIT shownDialogs().value(0)->filesSelected({"/a.srt"});
  EXPECT_EQ(chosen, QList{fileUrlFromPath("/a.srt")});
}

}  // namespace
}  // namespace tromelo::testing
