#pragma once

#include <QFileDialog>
#include <QPointer>

#include "playback/FileChooser.h"

namespace tromelo {

/// The desktop's own file dialog where there is one, else Qt's. One at a time: asked again for
/// the same, it brings the open one to the front; asked for something else, it closes that.
class DialogFileChooser : public FileChooser {
 public:
  ~DialogFileChooser() override;

  void chooseFiles(const Request& request, Callback chosen) override;
  void chooseNewFile(const Request& request, const QString& name, Callback chosen) override;

 private:
  bool raises(const QString& prompt);
  QFileDialog& makeDialog(const Request& request, Callback chosen);

  QPointer<QFileDialog> dialog_;
};

}  // namespace tromelo
