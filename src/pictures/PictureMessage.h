#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <optional>
#include <string>
#include <variant>

namespace tromelo {

/// What goes between the program and its process that makes pictures: a line for each request, and
/// a line with the bytes of a picture behind it for each answer.

struct PictureRequest {
  quint32 number = 0;  // that the answer comes back with
  double seconds = 0;
  QSize room;        // pixels that the picture is to fit
  std::string path;  // absolute

  QByteArray line() const;
  /// None for what is no such line, without its end.
  static std::optional<PictureRequest> parse(const QByteArray& line);
};

struct PictureAnswer {
  quint32 number = 0;
  double seconds = 0;  // of the frame
  QImage picture;      // of QImage::Format_RGB32; null: there is none

  QByteArray bytes() const;
};

/// More is to come; or it never was one of ours.
enum class UnreadAnswer { incomplete, nonsense };

/// The answer that `received` begins with, which it is then taken from. A picture that doesn't fit
/// `room` is nonsense.
std::variant<PictureAnswer, UnreadAnswer> takePictureAnswer(QByteArray& received, QSize room);

}  // namespace tromelo
