#pragma once

#include <cstdint>

namespace corvalis {

/// Whether and how this station's programme is linked with others.
class LiData {
 public:
  /// Loads itself from the file.
  LiData();

  [[nodiscard]] bool La() const { return la_; }  ///< linkage actuator
  void SetLa(bool la) { la_ = la; }
  [[nodiscard]] bool Egi() const { return egi_; }  ///< extended generic indicator
  void SetEgi(bool egi) { egi_ = egi; }
  [[nodiscard]] bool Il() const { return il_; }  ///< international linkage
  void SetIl(bool il) { il_ = il; }
  /// The linkage set number, 0 to 0xFFF.
  [[nodiscard]] std::int16_t Lsn() const { return lsn_; }
  void SetLsn(std::int16_t lsn) { lsn_ = lsn; }

  /// Reads from the Coder. A failure changes nothing.
  void GetOneRds();
  void SetOneRds() const;

  /// A number in the file that can't be converted, or has no room, is that of a new file.
  void GetIni();
  void SetIni() const;

 private:
  bool la_ = false;
  bool egi_ = false;
  bool il_ = false;
  std::int16_t lsn_ = 0x501;
};

/// The linkage; null before `MainForm` has created it.
extern LiData* liData;

}  // namespace corvalis
