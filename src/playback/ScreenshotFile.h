#pragma once

#include <QString>
#include <string>

namespace tromelo {

/// "Film – 1.02.03": how a picture of a film at a time, in seconds, is named, without what makes
/// names of files fail.
std::string screenshotName(const QString& film, double seconds);

/// Gives a picture, and the one that goes with it where `signal` isn't empty, their names in the
/// folder, with a number where something has the name. Gives the picture's path, empty where it
/// can't be kept. Waits for the disk.
std::string keepScreenshots(const std::string& picture, const std::string& signal,
                            const std::string& folder, const std::string& name);

/// A PNG says of itself that it holds PQ or HLG (its cICP chunk, PNG third edition 11.3.2.6).
bool holdsHdr(const std::string& png);

}  // namespace tromelo
