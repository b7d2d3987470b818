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

/// True where the dialog for that is open already; one for something else is closed.
bool DialogFileChooser::raises(const QString& prompt) {
  if (dialog_ && dialog_->labelText(QFileDialog::Accept) != prompt) dialog_->close();
  if (!dialog_ || !dialog_->isVisible()) return false;
  dialog_->raise();
  dialog_->activateWindow();
  return true;
}

QFileDialog& DialogFileChooser::makeDialog(const Request& request, Callback chosen) {
  dialog_ = new QFileDialog(nullptr);
  dialog_->setAttribute(Qt::WA_DeleteOnClose);
  if (!request.extensions.isEmpty()) dialog_->setNameFilter(nameFilter(request.extensions));
  QObject::connect(dialog_, &QFileDialog::filesSelected, dialog_,
                   [chosen = std::move(chosen)](const QStringList& paths) {
                     if (!paths.isEmpty()) chosen(fileUrls(paths));
                   });
  return *dialog_;
}

void DialogFileChooser::chooseFiles(const Request& request, Callback chosen) {
  if (raises(request.prompt)) return;
  QFileDialog& dialog = makeDialog(request, std::move(chosen));
  dialog.setFileMode(request.allowsSeveral ? QFileDialog::ExistingFiles
                                           : QFileDialog::ExistingFile);
  dialog.setLabelText(QFileDialog::Accept, request.prompt);
  dialog.open();
}

void DialogFileChooser::chooseNewFile(const Request& request, const QString& name,
                                      Callback chosen) {
  if (raises(request.prompt)) return;
  QFileDialog& dialog = makeDialog(request, std::move(chosen));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(request.extensions.value(0));
  dialog.setLabelText(QFileDialog::Accept, request.prompt);
  dialog.selectFile(name);
  dialog.open();
}

}  // namespace tromelo
