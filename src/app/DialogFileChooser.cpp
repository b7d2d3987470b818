#include "app/DialogFileChooser.h"

#include <QFile>

#include "platform/FilePath.h"

namespace tromelo {

namespace {

QList<QUrl> fileUrls(const QStringList& paths) {
  QList<QUrl> urls;
  for (const QString& path : paths)
    urls.append(fileUrlFromPath(QFile::encodeName(path).toStdString()));
  return urls;
}

QString nameFilter(const QStringList& extensions) {
  QStringList patterns;
  // Some desktops' dialogs tell "*.srt" and "*.SRT" apart.
  for (const QString& extension : extensions)
    patterns << QStringLiteral("*.") + extension << QStringLiteral("*.") + extension.toUpper();
  return QStringLiteral("(%1)").arg(patterns.join(u' '));
}

}  // namespace

DialogFileChooser::~DialogFileChooser() { delete dialog_; }

void DialogFileChooser::chooseFiles(const Request& request, Callback chosen) {
  if (dialog_ && dialog_->labelText(QFileDialog::Accept) != request.prompt) dialog_->close();
  if (dialog_ && dialog_->isVisible()) {
    dialog_->raise();
    dialog_->activateWindow();
    return;
  }
  dialog_ = new QFileDialog(nullptr);
  dialog_->setAttribute(Qt::WA_DeleteOnClose);
  dialog_->setFileMode(request.allowsSeveral ? QFileDialog::ExistingFiles
                                             : QFileDialog::ExistingFile);
  dialog_->setLabelText(QFileDialog::Accept, request.prompt);
  if (!request.extensions.isEmpty()) dialog_->setNameFilter(nameFilter(request.extensions));
  QObject::connect(dialog_, &QFileDialog::filesSelected, dialog_,
                   [chosen = std::move(chosen)](const QStringList& paths) {
                     if (!paths.isEmpty()) chosen(fileUrls(paths));
                   });
  dialog_->open();
}

}  // namespace tromelo
