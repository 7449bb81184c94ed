#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/globals.h"
#include "config/config_data.h"
#include "networks/tmc_data.h"

namespace corvalis::send {

/// What is not taken from the station file, as the command line says it.
struct Instead {
  std::optional<std::string> id = {};  ///< the Coder ID, as the line carries it
  std::optional<std::int16_t> burst = {};
  std::optional<std::int16_t> port = {};  ///< 1 to 4
};

/// The station file, which is read and never written, and what of its lists is asked for. There is
/// one at a time.
class Station {
 public:
  /// Loads the record. Platform::program_folder and program_name say which file it is.
  explicit Station(Instead instead);
  Station(const Station&) = delete;
  Station& operator=(const Station&) = delete;

  /// Loads the file anew if it is another than when it was loaded last; true then, and the link's
  /// settings may be others.
  bool LoadIfChanged();

  /// The rotation time of a text that names none: what the file has for its row, or 15 where that
  /// is 0 or where there is no such row.
  [[nodiscard]] static std::uint8_t TimeOfText(int row);
  [[nodiscard]] static std::uint8_t TimeOfName(int page, int row);

  /// The traffic messages of the file.
  [[nodiscard]] static const TmcData& Messages();

  /// Loads what these need now; else they do it when they are asked first.
  static void LoadForItems();

  /// Makes a run over the whole configuration carry these lists and nothing else, until the next
  /// `Unselect`. If there are none: those that the file selects, and if it selects nothing, all
  /// that the Coder knows.
  void Select(const std::vector<std::string>& lists);
  void Unselect();
  /// All classes load themselves; those that travel in a run ask the Coder for their sizes if
  /// `asked`, as they do on the desktop. A failed question has been reported.
  void LoadLists(bool asked);
  /// What a file of the lists would hold, without the keys of link, languages and Coder IDs.
  [[nodiscard]] std::string ListsAsFile();
  /// The lists that are there load themselves from the file again, as they hold something else.
  void ReloadLists();

 private:
  void TakeInstead() const;

  Instead instead_;
  Globals globals_;
  std::string stamp_;
  std::optional<ConfigData> selected_;  // the record as it was before `Select`
};

}  // namespace corvalis::send
