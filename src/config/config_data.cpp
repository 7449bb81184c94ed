#include "config/config_data.h"

#include <span>
#include <string_view>
#include <type_traits>
#include <variant>

#include "config/conversions.h"
#include "config/ini_management.h"
#include "platform/folders.h"
#include "platform/platform.h"

namespace corvalis {

ConfigData* configData = nullptr;

namespace {

constexpr int kStoredLanguages = 20;  // pair 20 exists, but no file holds it

constexpr std::string_view kBrandFile = "Firm.ini";

/// The first country of each country group, by PI country code.
constexpr std::array<std::int16_t, 16> kFirstCountryOfGroup{0, 11, 1, 2,  24, 25, 5, 6,
                                                            4, 0,  3, 19, 31, 14, 8, 13};

/// The PI country code of each of 51 countries. The entry that `kFirstCountryOfGroup` names for a
/// code holds that code.
constexpr std::array<std::int16_t, 51> kCountryNibble{
    9,  2, 3,  10, 8, 6,  7, 8,  14, 2,  2, 1, 9,  15, 13, 6,  15, 10, 1, 11, 5, 10, 11, 2, 4, 5,
    10, 9, 13, 7,  8, 12, 1, 11, 8,  15, 3, 8, 14, 3,  14, 14, 4,  6,  7, 3,  7, 7,  12, 4, 6};

constexpr bool FirstCountriesAgree() {
  for (std::size_t code = 1; code < kFirstCountryOfGroup.size(); ++code) {
    const auto first = static_cast<std::size_t>(kFirstCountryOfGroup[code]);
    if (kCountryNibble[first] != static_cast<std::int16_t>(code)) return false;
  }
  return true;
}
static_assert(FirstCountriesAgree());

/// Stores `value` where it fits; a value that does not leaves the field as it was.
template <class Int>
void Store(Int& field, std::optional<Int> value) {
  if (value) field = *value;
}

}  // namespace

/// Every key of the record's sections but the languages, in the order of reading and writing.
struct ConfigData::Keys {
  // The kinds of value, each with its field and its default.
  struct Switch {
    bool ConfigData::*field;
    bool preset;
  };
  struct Decimal {
    std::int16_t ConfigData::*field;
    std::int16_t preset;
  };
  struct LongDecimal {
    std::int32_t ConfigData::*field;
    std::int32_t preset;
  };
  struct Hex {
    std::int16_t ConfigData::*field;
    std::int16_t preset;
  };
  struct HexByte {
    std::uint8_t ConfigData::*field;
    std::uint8_t preset;
  };
  struct Text {
    std::string ConfigData::*field;
    std::string_view preset;
    std::size_t max_length = std::string::npos;
  };
  using Value = std::variant<Switch, Decimal, LongDecimal, Hex, HexByte, Text>;

  struct Key {
    std::string_view section;
    std::string_view name;
    Value value;
    enum class Written {
      kAlways,
      kNever,
      kIfKnown,  ///< if it is switched on, or the file has the key
    };
    Written written = Written::kAlways;
  };

  static std::span<const Key> All();

  // Takes a value from the file; an empty one is the default.
  static void Take(ConfigData& data, const Value& value, const std::string& text) {
    std::visit(
        [&](const auto& v) {
          using V = std::decay_t<decltype(v)>;
          auto& field = data.*v.field;
          using Field = std::decay_t<decltype(field)>;
          if (text.empty()) {
            field = v.preset;
            // Of the branches below one is compiled for a kind, and the checker takes the others
            // for equal ones. NOLINTNEXTLINE(bugprone-branch-clone)
          } else if constexpr (std::is_same_v<V, Switch>) {
            field = IsOn(text);
          } else if constexpr (std::is_same_v<V, Decimal> || std::is_same_v<V, LongDecimal>) {
            Store(field, ParseDecimal<Field>(text));
          } else if constexpr (std::is_same_v<V, Hex> || std::is_same_v<V, HexByte>) {
            Store(field, Narrow<Field>(HexToLong(text)));
          } else {
            field = text.substr(0, v.max_length);
          }
        },
        value);
  }

  // The value as the file holds it.
  static std::string Give(const ConfigData& data, const Value& value) {
    return std::visit(
        [&](const auto& v) -> std::string {
          using V = std::decay_t<decltype(v)>;
          const auto& field = data.*v.field;
          if constexpr (std::is_same_v<V, Switch>) {
            return std::string(OnOff(field));
          } else if constexpr (std::is_same_v<V, Hex> || std::is_same_v<V, HexByte>) {
            // A 16-bit field may hold -1, which is written as the 16 bits it is.
            const auto bits = static_cast<std::uint16_t>(field);
            return LongToHex(bits, 1);
          } else if constexpr (std::is_same_v<V, Text>) {
            return field;
          } else {
            return std::to_string(field);
          }
        },
        value);
  }
};

std::span<const ConfigData::Keys::Key> ConfigData::Keys::All() {
  using C = ConfigData;
  static const Key keys[] = {
      {"CT", "Date Psn Number", Decimal{&C::date_psn_, 8}},
      {"CT", "Hour Psn Number", Decimal{&C::hour_psn_, 9}},
      {"CT", "Clock Time Offset", Decimal{&C::ct_offset_, 2}},
      {"PI", "Country", Hex{&C::country_, 5}},
      {"PI", "Coverage", Hex{&C::coverage_, 0}},
      {"PI", "Program Number", Hex{&C::program_num_, 0}},
      {"PI", "Extended Country Code", HexByte{&C::ecc_, 224}},
      {"PI", "Language Identification Code", HexByte{&C::lic_, 21}},
      {"DI", "Mono", Switch{&C::mono_, false}},
      {"DI", "Artificial Head", Switch{&C::artificial_head_, false}},
      {"DI", "Compressed", Switch{&C::compressed_, false}},
      {"DI", "Static PTY", Switch{&C::static_pty_, true}},
      {"Serial Setup", "Satellite", Switch{&C::satellite_, true}},
      {"Serial Setup", "Burst", Decimal{&C::burst_, 3}},
      {"Serial Setup", "SerialPort", Decimal{&C::comm_port_, 1}},
      {"Serial Setup", "Baudrate", Decimal{&C::baudrate_, 9600}},
      {"Serial Setup", "Parity", Text{&C::parity_, "N", 1}},
      {"Serial Setup", "StopBit", Decimal{&C::stop_bit_, 2}},
      {"Serial Setup", "Modem", Switch{&C::modem_, false}},
      {"Serial Setup", "ModemTone", Switch{&C::modem_tone_, true}},
      {"Serial Setup", "ModemTel", Text{&C::modem_tel_, "800,12345678"}},
      {"RDS Setup", "PI", LongDecimal{&C::pi_, 0}, Key::Written::kNever},
      {"RDS Setup", "AF Method A", Switch{&C::af_method_a_, true}},
      {"RDS Setup", "PSN Pages Enable", Switch{&C::psn_pages_enable_, true}},
      {"RDS Setup", "PSN Plan Enable", Switch{&C::psn_plan_enable_, true}},
      {"RDS Setup", "EON Enable", Switch{&C::eon_enable_, true}},
      {"RDS Setup", "ECC Enable", Switch{&C::ecc_enable_, true}},
      {"RDS Setup", "LIC Enable", Switch{&C::lic_enable_, true}},
      {"RDS Setup", "PTYN Enable", Switch{&C::ptyn_enable_, true}},
      {"RDS Setup", "TMC Enable", Switch{&C::tmc_enable_, true}},
      {"RDS Setup", "Groups Enable", Switch{&C::groups_enable_, false}},
      {"RDS Setup", "Groups B Enable", Switch{&C::groups_b_enable_, false}},
      {"RDS Setup", "Radio Characters", Switch{&C::radio_characters_, false},
       Key::Written::kIfKnown},
      {"RDS Setup", "TP", Switch{&C::tp_, false}},
      {"RDS Setup", "TA", Switch{&C::ta_, false}},
      {"RDS Setup", "Music", Switch{&C::music_, true}},
      {"RDS Setup", "PTY", Decimal{&C::pty_, 0}},
      {"RDS Setup", "PresetPsn", Switch{&C::preset_psn_, false}},
      {"RDS Setup", "PresetAf", Switch{&C::preset_af_, false}},
      {"RDS Setup", "PresetTp", Switch{&C::preset_tp_, false}},
      {"RDS Setup", "PresetRt", Switch{&C::preset_rt_, false}},
      {"RDS Setup", "PresetIh", Switch{&C::preset_ih_, false}},
      {"RDS Setup", "PresetPi", Switch{&C::preset_pi_, false}},
      {"RDS Setup", "PresetCt", Switch{&C::preset_ct_, false}},
      {"RDS Setup", "PresetPin", Switch{&C::preset_pin_, false}},
      {"RDS Setup", "PresetDi", Switch{&C::preset_di_, false}},
      {"RDS Setup", "PresetTdc", Switch{&C::preset_tdc_, false}},
      {"RDS Setup", "PresetTmc", Switch{&C::preset_tmc_, false}},
      {"RDS Setup", "PresetEon", Switch{&C::preset_eon_, false}},
      {"RDS Setup", "PresetLi", Switch{&C::preset_li_, false}},
      {"RDS Setup", "PresetLic", Switch{&C::preset_lic_, false}},
      {"RDS Setup", "PresetEcc", Switch{&C::preset_ecc_, false}},
      {"RDS Setup", "PresetPtyn", Switch{&C::preset_ptyn_, false}},
      {"RDS Setup", "PresetAddress", Text{&C::preset_password_, "?????"}},
      {"RDS Setup", "PresetNewAddress", Text{&C::preset_new_password_, "?????"}},
      {"Language", "Default", Decimal{&C::language_dflt_, 0}},
  };
  return keys;
}

ConfigData::ConfigData() {
  const Platform& machine = Machine();
  brand_ = BrandOf(machine.profiles->Read(machine.settings_folder + "/" + std::string(kBrandFile),
                                          "Firm", "Firm"));
  GetIniFile();
}

std::int16_t ConfigData::FirstCountryOfGroup(int group) const {
  return kFirstCountryOfGroup.at(static_cast<std::size_t>(group));
}

const std::string& ConfigData::LanguageFileName() const {
  return languages_.at(static_cast<std::size_t>(language_dflt_)).file_name;
}

const std::string& ConfigData::LanguageName(int index) const {
  return languages_.at(static_cast<std::size_t>(index)).name;
}

// The argument has no name: which pages exist is the Coder's affair, not the operator's.
void ConfigData::SetPsnPageEnable(bool /*enable*/) { psn_pages_enable_ = PsnPagesEnable(); }

std::string ConfigData::DefaultFileName() {
  return Machine().program_folder + "/" + Machine().program_name + ".rds";
}

void ConfigData::GetIniFile() {
  const Platform& machine = Machine();
  drive_ = PlaceOf(machine.program_folder);
  path_ = machine.program_folder;
  file_ = machine.program_name + ".rds";
  date_value_ = machine.clock->Now();
  day_of_week_ = static_cast<std::int16_t>(WeekdayFromMonday(date_value_));
  GetIni();
}

// A reader of its own, because the record also loads while `configData` is still being made.
std::string ConfigData::ReadIniKey(std::string_view section, std::string_view key) const {
  std::string value = Machine().profiles->Read(FullFileName(), section, key);
  Machine().pump->RunPending();
  return value;
}

void ConfigData::GetIni() {
  for (const Keys::Key& key : Keys::All()) {
    Keys::Take(*this, key.value, ReadIniKey(key.section, key.name));
  }
  if (satellite_) modem_ = false;
  psn_plan_enable_ = PsnPlanEnable();
  GetLanguages();
}

void ConfigData::SetIni() {
  for (const Keys::Key& key : Keys::All()) {
    if (key.written == Keys::Key::Written::kNever) continue;
    const std::string value = Keys::Give(*this, key.value);
    const bool unknown = key.written == Keys::Key::Written::kIfKnown && value != OnOff(true) &&
                         Machine().profiles->Read(FullFileName(), key.section, key.name).empty();
    if (!unknown) WriteIniKey(key.section, key.name, value);
  }
  SetLanguages();
}

void ConfigData::GetLanguages() {
  num_ini_lang_ = 0;
  for (int i = 0; i < kStoredLanguages; ++i) {
    LanguagePair& pair = languages_[static_cast<std::size_t>(i)];
    pair.name = ReadIniKey("Language", "Name" + std::to_string(i));
    pair.file_name = ReadIniKey("Language", "FileName" + std::to_string(i));
    if (!pair.name.empty() && !pair.file_name.empty()) {
      ++num_ini_lang_;
    } else {
      pair = LanguagePair{};
    }
  }
  if (num_ini_lang_ == 0) num_ini_lang_ = 1;
  if (language_dflt_ < 0 || language_dflt_ >= kStoredLanguages) language_dflt_ = 0;
  if (LanguageName(language_dflt_).empty()) language_dflt_ = 0;
  if (languages_[0].name.empty()) languages_[0] = {"Custom", "Language.ini"};
}

void ConfigData::SetLanguages() {
  for (std::size_t i = 0; i < languages_.size(); ++i) {
    if (languages_[i].file_name.empty()) return;
    WriteIniKey("Language", "Name" + std::to_string(i), languages_[i].name);
    WriteIniKey("Language", "FileName" + std::to_string(i), languages_[i].file_name);
  }
}

}  // namespace corvalis
