#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "config/brand.h"
#include "platform/clock.h"

namespace corvalis {

/// The station record: everything that is a single value per station. One instance exists from
/// start-up to exit. A setter stores what it is given; nothing here checks a range.
///
/// The `Get...Rds` and `Set...Rds` operations move fields from and to the Coder. They do nothing
/// while the link is closed, and leave a failure in `LinkError`.
class ConfigData {
 public:
  /// Reads the brand and the default file.
  ConfigData();

  /// The first country of a country group, 0 to 15; `std::out_of_range` outside.
  [[nodiscard]] std::int16_t FirstCountryOfGroup(int group) const;

  // PI, ECC and LIC.
  [[nodiscard]] std::int16_t Country() const { return country_; }
  [[nodiscard]] std::uint8_t Ecc() const { return ecc_; }
  void SetCountry(std::uint8_t country) { country_ = country; }
  void SetEcc(std::uint8_t ecc) { ecc_ = ecc; }
  [[nodiscard]] std::uint8_t Lic() const { return lic_; }
  void SetLic(std::uint8_t lic) { lic_ = lic; }
  [[nodiscard]] std::int16_t Coverage() const { return coverage_; }
  void SetCoverage(std::int16_t coverage) { coverage_ = coverage; }
  [[nodiscard]] std::int16_t ProgramNum() const { return program_num_; }
  void SetProgramNum(std::int16_t number) { program_num_ = number; }
  void GetPiRds();
  void SetPiRds();
  void GetEccRds();
  void SetEccRds();
  void GetLicRds();
  void SetLicRds();

  // TP and DI.
  [[nodiscard]] bool Tp() const { return tp_; }
  void SetTp(bool tp) { tp_ = tp; }
  void GetTpRds();
  void SetTpRds();
  [[nodiscard]] bool Mono() const { return mono_; }
  void SetMono(bool mono) { mono_ = mono; }
  [[nodiscard]] bool ArtificialHead() const { return artificial_head_; }
  void SetArtificialHead(bool on) { artificial_head_ = on; }
  [[nodiscard]] bool Compressed() const { return compressed_; }
  void SetCompressed(bool compressed) { compressed_ = compressed; }
  [[nodiscard]] bool StaticPty() const { return static_pty_; }
  void SetStaticPty(bool is_static) { static_pty_ = is_static; }
  void GetDiRds();
  void SetDiRds();

  // Clock time. The offset counts half hours.
  [[nodiscard]] DateTime DateValue() const { return date_value_; }
  void SetDateValue(DateTime when) { date_value_ = when; }
  [[nodiscard]] std::int16_t DayOfWeek() const { return day_of_week_; }
  void SetDayOfWeek(std::int16_t day) { day_of_week_ = day; }
  [[nodiscard]] std::int16_t CtOffset() const { return ct_offset_; }
  void SetCtOffset(std::int16_t offset) { ct_offset_ = offset; }
  [[nodiscard]] std::int16_t DatePsn() const { return date_psn_; }
  void SetDatePsn(std::int16_t number) { date_psn_ = number; }
  [[nodiscard]] std::int16_t HourPsn() const { return hour_psn_; }
  void SetHourPsn(std::int16_t number) { hour_psn_ = number; }
  void GetCtRds();
  void SetCtRds();

  // The way to the Coder.
  [[nodiscard]] bool Satellite() const { return satellite_; }
  void SetSatellite(bool satellite) { satellite_ = satellite; }
  [[nodiscard]] std::int16_t Burst() const { return burst_; }
  void SetBurst(std::int16_t burst) { burst_ = burst; }
  [[nodiscard]] std::int16_t CommPort() const { return comm_port_; }
  void SetCommPort(std::int16_t port) { comm_port_ = port; }
  [[nodiscard]] std::int16_t Baudrate() const { return baudrate_; }
  void SetBaudrate(std::int16_t baudrate) { baudrate_ = baudrate; }
  [[nodiscard]] const std::string& Parity() const { return parity_; }
  /// Always one letter: keeps the first of `parity`, or what it was if that is empty.
  void SetParity(const std::string& parity) {
    if (!parity.empty()) parity_ = parity.front();
  }
  [[nodiscard]] std::int16_t StopBit() const { return stop_bit_; }
  void SetStopBit(std::int16_t stop_bit) { stop_bit_ = stop_bit; }

  /// A whole PI value that old files hold. Read from the file, never stored, used by nothing else.
  [[nodiscard]] std::int32_t Pi() const { return pi_; }
  void SetPi(std::int32_t pi) { pi_ = pi; }

  /// True: AF method A lists are in use; false: method B.
  [[nodiscard]] bool AfMethodA() const { return af_method_a_; }
  void SetAfMethodA(bool method_a) { af_method_a_ = method_a; }

  // What this Coder model offers; from the file alone.
  [[nodiscard]] bool GroupsEnable() const { return groups_enable_; }
  [[nodiscard]] bool GroupsBEnable() const { return groups_b_enable_; }
  [[nodiscard]] bool EonEnable() const { return eon_enable_; }
  [[nodiscard]] bool EccEnable() const { return ecc_enable_; }
  [[nodiscard]] bool LicEnable() const { return lic_enable_; }
  [[nodiscard]] bool PtynEnable() const { return ptyn_enable_; }
  [[nodiscard]] bool TmcEnable() const { return tmc_enable_; }
  /// True: the Coder puts the bytes of texts on the air as they come, so that they have to be those
  /// of the radios' own table (see link/radio_text.h).
  [[nodiscard]] bool RadioCharacters() const { return radio_characters_; }
  /// A plan needs pages: false without them.
  [[nodiscard]] bool PsnPlanEnable() const { return psn_plan_enable_ && psn_pages_enable_; }
  [[nodiscard]] bool PsnPagesEnable() const { return psn_pages_enable_; }
  /// Keeps the record as it is, whatever is asked: the file alone sets the field.
  void SetPsnPageEnable(bool enable);

  // On-air switches. Music is true, speech false.
  [[nodiscard]] bool Ta() const { return ta_; }
  void SetTa(bool ta) { ta_ = ta; }
  [[nodiscard]] bool Music() const { return music_; }
  void SetMusic(bool music) { music_ = music; }
  [[nodiscard]] std::int16_t Pty() const { return pty_; }
  void SetPty(std::int16_t pty) { pty_ = pty; }

  // What belongs to the transfer of a whole configuration.
  [[nodiscard]] bool PresetPsn() const { return preset_psn_; }
  void SetPresetPsn(bool preset) { preset_psn_ = preset; }
  [[nodiscard]] bool PresetPtyn() const { return preset_ptyn_; }
  void SetPresetPtyn(bool preset) { preset_ptyn_ = preset; }
  [[nodiscard]] bool PresetAf() const { return preset_af_; }
  void SetPresetAf(bool preset) { preset_af_ = preset; }
  [[nodiscard]] bool PresetTp() const { return preset_tp_; }
  void SetPresetTp(bool preset) { preset_tp_ = preset; }
  [[nodiscard]] bool PresetTmc() const { return preset_tmc_; }
  [[nodiscard]] bool PresetRt() const { return preset_rt_; }
  void SetPresetRt(bool preset) { preset_rt_ = preset; }
  [[nodiscard]] bool PresetIh() const { return preset_ih_; }
  void SetPresetIh(bool preset) { preset_ih_ = preset; }
  [[nodiscard]] bool PresetPi() const { return preset_pi_; }
  void SetPresetPi(bool preset) { preset_pi_ = preset; }
  [[nodiscard]] bool PresetCt() const { return preset_ct_; }
  void SetPresetCt(bool preset) { preset_ct_ = preset; }
  [[nodiscard]] bool PresetPin() const { return preset_pin_; }
  void SetPresetPin(bool preset) { preset_pin_ = preset; }
  [[nodiscard]] bool PresetDi() const { return preset_di_; }
  void SetPresetDi(bool preset) { preset_di_ = preset; }
  [[nodiscard]] bool PresetEcc() const { return preset_ecc_; }
  void SetPresetEcc(bool preset) { preset_ecc_ = preset; }
  [[nodiscard]] bool PresetEon() const { return preset_eon_; }
  void SetPresetEon(bool preset) { preset_eon_ = preset; }
  [[nodiscard]] bool PresetLic() const { return preset_lic_; }
  void SetPresetLic(bool preset) { preset_lic_ = preset; }
  [[nodiscard]] bool PresetLi() const { return preset_li_; }
  void SetPresetLi(bool preset) { preset_li_ = preset; }
  [[nodiscard]] bool PresetTdc() const { return preset_tdc_; }
  void SetPresetTdc(bool preset) { preset_tdc_ = preset; }
  void SetPresetTmc(bool preset) { preset_tmc_ = preset; }
  /// The Coder ID, and the new one: up to 5 characters.
  [[nodiscard]] const std::string& PresetPassword() const { return preset_password_; }
  void SetPresetPassword(const std::string& id) { preset_password_ = id; }
  [[nodiscard]] const std::string& PresetNewPassword() const { return preset_new_password_; }
  void SetPresetNewPassword(const std::string& id) { preset_new_password_ = id; }

  // The configuration file. Names are the file system's own bytes.
  [[nodiscard]] const std::string& Drive() const { return drive_; }
  void SetDrive(const std::string& drive) { drive_ = drive; }
  [[nodiscard]] const std::string& Path() const { return path_; }
  void SetPath(const std::string& path) { path_ = path; }
  [[nodiscard]] const std::string& File() const { return file_; }
  void SetFile(const std::string& file) { file_ = file; }
  /// Folder and name, as the profile store takes them.
  [[nodiscard]] std::string FullFileName() const { return path_ + "/" + file_; }
  /// That of the default file, in the program's folder.
  [[nodiscard]] static std::string DefaultFileName();

  /// Loads the record from the file. A missing or empty key takes its default; a value that can't
  /// be converted leaves the field as it was. Shows nothing, never stops.
  void GetIni();
  /// Goes to the default file in the program's folder, takes the present date and time, and loads.
  void GetIniFile();
  /// Stores the record, key by key. A failed write goes unnoticed.
  void SetIni();

  // The brand: one of these is true, or none.
  [[nodiscard]] bool KOR() const { return brand_ == Brand::kKOR; }
  [[nodiscard]] bool Varn() const { return brand_ == Brand::kVarn; }
  [[nodiscard]] bool ZEL() const { return brand_ == Brand::kZEL; }
  [[nodiscard]] bool Breno() const { return brand_ == Brand::kBreno; }
  [[nodiscard]] bool Tulm() const { return brand_ == Brand::kTulm; }
  [[nodiscard]] bool Paxen() const { return brand_ == Brand::kPaxen; }
  [[nodiscard]] bool DOX() const { return brand_ == Brand::kDOX; }

  // Languages: pairs of a name and a file name, 0 to 20.
  /// The file name of the language in use; `std::out_of_range` if `LanguageDflt` is outside 0
  /// to 20.
  [[nodiscard]] const std::string& LanguageFileName() const;
  /// How many pairs can be used; at least 1.
  [[nodiscard]] std::int16_t NumIniLang() const { return num_ini_lang_; }
  /// The name of a pair; `std::out_of_range` outside 0 to 20.
  [[nodiscard]] const std::string& LanguageName(int index) const;
  [[nodiscard]] std::int16_t LanguageDflt() const { return language_dflt_; }
  void SetLanguageDflt(std::int16_t index) { language_dflt_ = index; }

  // The modem.
  [[nodiscard]] bool Modem() const { return modem_; }
  void SetModem(bool modem) { modem_ = modem; }
  [[nodiscard]] bool ModemHookOn() const { return modem_hook_on_; }
  void SetModemHookOn(bool on) { modem_hook_on_ = on; }
  [[nodiscard]] bool ModemTone() const { return modem_tone_; }
  void SetModemTone(bool tone) { modem_tone_ = tone; }
  [[nodiscard]] const std::string& ModemTel() const { return modem_tel_; }
  void SetModemTel(const std::string& number) { modem_tel_ = number; }
  [[nodiscard]] const std::string& ModemDlg() const { return modem_dlg_; }
  void SetModemDlg(const std::string& text) { modem_dlg_ = text; }

 private:
  struct Keys;  // which key of the file holds which field

  struct LanguagePair {
    std::string name;
    std::string file_name;
  };

  [[nodiscard]] std::string ReadIniKey(std::string_view section, std::string_view key) const;
  void GetLanguages();
  void SetLanguages();

  std::int16_t country_ = 5;
  std::int16_t coverage_ = 0;
  std::int16_t program_num_ = 0;
  bool mono_ = false;
  bool artificial_head_ = false;
  bool compressed_ = false;
  bool static_pty_ = true;
  DateTime date_value_{};
  std::int16_t day_of_week_ = 1;
  std::int16_t ct_offset_ = 2;
  std::int16_t date_psn_ = 8;
  std::int16_t hour_psn_ = 9;
  std::string drive_;
  std::string path_;
  std::string file_;
  bool satellite_ = true;
  std::int16_t burst_ = 3;
  std::int16_t comm_port_ = 1;
  std::int16_t baudrate_ = 9600;
  std::string parity_ = "N";
  std::int16_t stop_bit_ = 2;
  std::int32_t pi_ = 0;
  std::uint8_t ecc_ = 0xE0;
  std::uint8_t lic_ = 0x15;
  bool af_method_a_ = true;
  bool psn_pages_enable_ = true;
  bool psn_plan_enable_ = true;
  bool eon_enable_ = true;
  bool groups_enable_ = false;
  bool groups_b_enable_ = false;
  bool ecc_enable_ = true;
  bool lic_enable_ = true;
  bool ptyn_enable_ = true;
  bool tmc_enable_ = true;
  bool radio_characters_ = false;
  bool ta_ = false;
  bool tp_ = false;
  bool music_ = true;
  std::int16_t pty_ = 0;
  bool preset_psn_ = false;
  bool preset_af_ = false;
  bool preset_tp_ = false;
  bool preset_rt_ = false;
  bool preset_ih_ = false;
  bool preset_pi_ = false;
  bool preset_ct_ = false;
  bool preset_pin_ = false;
  bool preset_di_ = false;
  bool preset_tdc_ = false;
  bool preset_eon_ = false;
  bool preset_tmc_ = false;
  bool preset_li_ = false;
  bool preset_lic_ = false;
  bool preset_ecc_ = false;
  bool preset_ptyn_ = false;
  std::string preset_password_ = "?????";
  std::string preset_new_password_ = "?????";
  Brand brand_ = Brand::kNeutral;
  std::int16_t language_dflt_ = 0;
  std::array<LanguagePair, 21> languages_;
  std::int16_t num_ini_lang_ = 1;
  bool modem_ = false;
  bool modem_tone_ = true;
  std::string modem_tel_ = "800,12345678";
  bool modem_hook_on_ = false;
  std::string modem_dlg_;
};

/// The station record; null before `MainForm` has created it.
extern ConfigData* configData;

}  // namespace corvalis
