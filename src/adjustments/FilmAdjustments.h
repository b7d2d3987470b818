#pragma once

#include <string>
#include <vector>

#include "adjustments/Adjustment.h"
#include "films/Film.h"

namespace tromelo {

class UserDefaults;

/// What is changed about the film that plays, and about all films. Main thread only.
class FilmAdjustments {
 public:
  /// Loads what is for all films, and stores it there. `defaults` outlives it.
  explicit FilmAdjustments(UserDefaults& defaults);

  /// Another file comes, of which nothing is known yet.
  void fileStarted() { ofFilm_.clear(); }
  /// False where some of what was remembered made no sense, which is as near to it as can be.
  bool fileKnown(const AdjustmentValues& ofFilm);

  std::string value(Adjustment adjustment) const;
  /// A value that makes no sense changes nothing.
  void set(Adjustment adjustment, const std::string& value);
  void makeAsMade(AdjustmentGroup group);
  /// What makes sense for all films; the rest stays with the film.
  void useForAll(AdjustmentGroup group);

  /// Not as made, in the table's order.
  std::vector<const AdjustmentRow*> changed() const;
  bool isChanged(AdjustmentGroup group) const;
  /// There is something that useForAll() would do.
  bool suitsAll(AdjustmentGroup group) const;

  /// To be remembered with the film.
  const AdjustmentValues& ofFilm() const { return ofFilm_; }
  const AdjustmentValues& forAll() const { return forAll_; }

 private:
  UserDefaults& defaults_;
  AdjustmentValues forAll_;
  AdjustmentValues ofFilm_;  // where it differs from that
};

/// What the engine is told as a film begins. Any thread.
std::vector<MpvPropertyWrite> engineWrites(const AdjustmentValues& forAll,
                                           const AdjustmentValues& ofFilm);

}  // namespace tromelo
