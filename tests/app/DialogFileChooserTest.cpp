#include "app/DialogFileChooser.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "platform/FilePath.h"
#include "support/Table.h"
#include "support/WaitFor.h"
#include "support/Warnings.h"

namespace tromelo::testing {

QList<QFileDialog*> shownDialogs() {
  settle();
  QList<QFileDialog*> dialogs;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* dialog = qobject_cast<QFileDialog*>(widget); dialog && dialog->isVisible())
      dialogs << dialog;
  return dialogs;
}

TEST(DialogFileChooserTest, ShowsOneDialogForWhatIsAskedLast) {
  allowWarning("This plugin does not support ");  // what windows need elsewhere
  DialogFileChooser chooser;
  QList<QUrl> chosen;
  for (const auto& [request, mode, filters] :
       Table<FileChooser::Request, QFileDialog::FileMode, QStringList>{
           {{"Play", true, {}}, QFileDialog::ExistingFiles, {"All Files (*)"}},
           {{"Add Subtitle", false, {"srt", "ass"}},
            QFileDialog::ExistingFile,
            {"(*.srt *.SRT *.ass *.ASS)"}}}) {
    const std::string name = request.prompt.toStdString();
    chooser.chooseFiles(request, [&chosen](const QList<QUrl>& files) { chosen = files; });
    const QList<QFileDialog*> dialogs = shownDialogs();
    ASSERT_EQ(dialogs.size(), 1) << name;
    EXPECT_EQ(dialogs[0]->labelText(QFileDialog::Accept), request.prompt);
    EXPECT_EQ(dialogs[0]->fileMode(), mode) << name;
    EXPECT_EQ(dialogs[0]->nameFilters(), filters) << name;
    chooser.chooseFiles(request, [](const QList<QUrl>&) { FAIL() << "asked for twice"; });
    EXPECT_EQ(shownDialogs(), dialogs) << name;
  }
  Q_EMIT shownDialogs().value(0)->filesSelected({"/a.srt"});
  EXPECT_EQ(chosen, QList{fileUrlFromPath("/a.srt")});
}

}  // namespace tromelo::testing
