#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "radio/comparison.h"
#include "radio/prepared.h"
#include "radio/tuner.h"

namespace corvalis::radio {

/// The radio without its pixels: a source, what is heard of it, and the station file that it is
/// held against. Whatever opens something returns an empty text, or why that can't be done in one
/// sentence for people; what was open before stays open then.
class RadioForm {
 public:
  /// Listens to another source, from nothing.
  [[nodiscard]] std::string OpenSource(const std::string& path);
  /// Compares with another station file, which is only read.
  [[nodiscard]] std::string OpenStation(const std::string& path);
  /// Reads the file again, as it is now.
  [[nodiscard]] std::string ReadStationAgain() { return OpenStation(station_->path); }

  /// Takes a portion of what has come. `steady` are seconds on a clock that only runs forward. True
  /// if there may be more at once.
  bool Listen(double steady);
  [[nodiscard]] const Tuner& Source() const { return tuner_; }
  [[nodiscard]] const air::Reception& Heard() const { return tuner_.Heard(); }
  /// How the source is: "7000 groups, has ended".
  [[nodiscard]] std::string SourceInWords() const;

  /// Null without a file.
  [[nodiscard]] const Prepared* Station() const { return station_ ? &*station_ : nullptr; }
  /// Compares anew; true if any row is another than before. `now` is the local time.
  bool Compare(DateTime now);
  [[nodiscard]] const std::vector<Row>& Rows() const { return rows_; }
  /// From now on the comparison counts what comes, and forgets what was heard before: for after a
  /// SEND.
  void CompareFromNow() { from_ = tuner_.Now(); }
  /// What radios will not make of the station file, a sentence each.
  [[nodiscard]] std::vector<std::string> Findings() const;

 private:
  Tuner tuner_;
  std::optional<Prepared> station_;
  std::vector<Row> rows_;
  air::AirSeconds from_ = 0;
  double steady_ = 0;
  double came_ = 0;  // on the steady clock, the last group
};

}  // namespace corvalis::radio
