#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QPointer>

#include "playback/SubtitleLines.h"

namespace tromelo {

/// The rows of the lines of subtitles: all, or those that a search finds. While it is there the
/// lines are wanted. Main thread only.
class LineModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tromelo::SubtitleLines* lines READ lines WRITE setLines NOTIFY linesChanged)
  /// Without case and accents; empty: all.
  Q_PROPERTY(QString sought READ sought WRITE setSought NOTIFY soughtChanged)
  /// Of the lines, without any delay.
  Q_PROPERTY(double seconds READ seconds WRITE setSeconds NOTIFY secondsChanged)
  /// The row of the line that began last; -1 where none of the rows has begun.
  Q_PROPERTY(int current READ current NOTIFY currentChanged)
  Q_PROPERTY(int count READ count NOTIFY countChanged)

 public:
  using QAbstractListModel::QAbstractListModel;
  ~LineModel() override;

  SubtitleLines* lines() const { return lines_; }
  void setLines(SubtitleLines* lines);
  QString sought() const { return sought_; }
  void setSought(const QString& text);
  double seconds() const { return seconds_; }
  void setSeconds(double seconds);
  int current() const { return current_; }
  int count() const { return static_cast<int>(rows_.size()); }

  /// When the line in a row starts, without any delay.
  Q_INVOKABLE double startOf(int row) const;

  int rowCount(const QModelIndex& = {}) const override { return count(); }
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 Q_SIGNALS:
  void linesChanged();
  void soughtChanged();
  void secondsChanged();
  void currentChanged();
  void countChanged();

 private:
  enum Role { Start = Qt::UserRole, Words };

  const SubtitleLine& lineAt(int row) const { return lines_->all()[rows_[row]]; }
  void fold(int first);
  QList<int> found(int first) const;
  void refill();
  void append(int first);
  void updateCurrent();

  QPointer<SubtitleLines> lines_;
  QString sought_;
  QString folded_;        // what is sought
  QList<QString> texts_;  // of all lines, as they are searched
  QList<int> rows_;       // the lines that are shown
  double seconds_ = 0;
  int current_ = -1;
};

}  // namespace tromelo
