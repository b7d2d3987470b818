#pragma once

#include "overlay/RecordModel.h"
#include "playback/Bookmarks.h"

namespace tromelo {

/// The rows of a film's bookmarks.
class BookmarkModel : public RecordModel {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QList<tromelo::FilmBookmark> bookmarks READ bookmarks WRITE setBookmarks NOTIFY
                 bookmarksChanged)

 public:
  explicit BookmarkModel(QObject* parent = nullptr)
      : RecordModel(FilmBookmark::staticMetaObject, parent) {}

  const FilmBookmarks& bookmarks() const { return bookmarks_; }
  void setBookmarks(const FilmBookmarks& bookmarks) {
    // A bookmark's name changes while it stays, and its number once it is remembered.
    replace(bookmarks_, bookmarks, [](const FilmBookmark& one, const FilmBookmark& other) {
      return one.position == other.position;
    });
    Q_EMIT bookmarksChanged();
  }
  Q_INVOKABLE qint64 idAt(int row) const { return bookmarks_.value(row).id; }
  int rowCount(const QModelIndex& = {}) const override {
    return static_cast<int>(bookmarks_.size());
  }

 Q_SIGNALS:
  void bookmarksChanged();

 protected:
  const void* recordAt(int row) const override { return &bookmarks_[row]; }

 private:
  FilmBookmarks bookmarks_;
};

}  // namespace tromelo
