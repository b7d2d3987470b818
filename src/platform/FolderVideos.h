#pragma once

#include <QList>
#include <QUrl>
#include <string>

namespace tromelo {

/// The videos behind a file in its folder, in the order in which a person would count them: "2"
/// before "10". Hidden ones are left out. The file itself needn't be there any more; of a folder
/// that isn't, there are none. May take its time: not for the main thread.
QList<QUrl> videosBehind(const std::string& path);

}  // namespace tromelo
