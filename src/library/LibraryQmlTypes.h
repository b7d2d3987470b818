#pragma once

#include <QtQml/qqmlregistration.h>

#include "library/SidebarWidth.h"
#include "platform/FileManager.h"

namespace tromelo {

/// Names for QML: the objects themselves know nothing of it.

struct FileManagerForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::FileManager)
  QML_NAMED_ELEMENT(FileManager)
  QML_UNCREATABLE("The program has one.")
};

struct SidebarWidthForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::SidebarWidth)
  QML_NAMED_ELEMENT(SidebarWidth)
  QML_UNCREATABLE("The library window has one.")
};

}  // namespace tromelo
