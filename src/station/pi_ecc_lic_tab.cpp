#include "station/pi_ecc_lic_tab.h"

#include <cctype>
#include <string>
#include <vector>

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/language_data.h"
#include "link/transfer.h"
#include "link/utility.h"
#include "platform/platform.h"
#include "screen/keys.h"
#include "station/country_table.h"
#include "station/language_codes.h"

namespace corvalis {

namespace {

constexpr int kPiDigits = 4;
constexpr std::int16_t kMaxProgramNum = 255;

/// The coverage areas, by coverage code.
const std::vector<std::string> kCoverages{"Local",
                                          "International",
                                          "National",
                                          "Supra - Regional",
                                          "Regional 1",
                                          "Regional 2",
                                          "Regional 3",
                                          "Regional 4",
                                          "Regional 5",
                                          "Regional 6",
                                          "Regional 7 + ARI",
                                          "Regional 8 + ARI",
                                          "Regional 9 + ARI",
                                          "Regional 10 + ARI",
                                          "Regional 11 + ARI",
                                          "Regional 12 + ARI"};

// Both are built the first time that the screen opens, and then stay.
const CountryIndex& CountriesByName() {
  static const CountryIndex index;
  return index;
}

const LanguageCodeIndex& LanguagesByName() {
  static const LanguageCodeIndex index;
  return index;
}

std::string CountryName(int row) {
  return std::string(Countries()[static_cast<std::size_t>(row)].name);
}

}  // namespace

PiEccLicTab::PiEccLicTab(Window& owner) : window(owner) {
  CountryCombo.Click = [this] { ChooseCountry(); };
  CountryCombo.LostFocus = [this] { ShowCountry(); };
  CoverageCombo.Click = [this] { ChooseCoverage(); };
  CoverageCombo.LostFocus = [this] { ShowCoverage(); };
  LicCombo.Click = [this] { ChooseLanguage(); };
  LicCombo.LostFocus = [this] { ShowLanguage(); };
  for (ListBox* list : {&CountryCombo, &CoverageCombo, &LicCombo}) list->KeyPress = RefuseKey;

  IDNumberText.SetLocked(true);
  VScroll3.StepUp = [this] { StepProgramNum(+1); };
  VScroll3.StepDown = [this] { StepProgramNum(-1); };

  PiText.KeyPress = [this](int& key) { FilterPiKey(key); };
  PiText.LostFocus = [this] { TakePi(); };
  EccText.SetLocked(true);

  ReadPiCommand.Click = [this] { RunRead(window, [this] { ReadPi(); }); };
  ReadEccCommand.Click = [this] { RunRead(window, [this] { ReadEcc(); }); };
  ReadLicCommand.Click = [this] { RunRead(window, [this] { ReadLic(); }); };

  const auto send = [this](Button& once, Button& burst, void (ConfigData::*operation)()) {
    const auto work = [operation] { (configData->*operation)(); };
    once.Click = [this, work] { RunSend(window, work); };
    burst.Click = [this, work] { RunBurst(window, configData->Burst(), work); };
  };
  send(SendPiCommand, SendPiBurstCommand, &ConfigData::SetPiRds);
  send(SendEccCommand, SendEccBurstCommand, &ConfigData::SetEccRds);
  send(SendLicCommand, SendLicBurstCommand, &ConfigData::SetLicRds);
}

void PiEccLicTab::InitCaptions() {
  const LanguageData& texts = *languageData;
  CountryLabel.SetTexts(texts.PiEccLicCountryKey(), texts.PiEccLicCountryTip());
  CoverageLabel.SetTexts(texts.PiEccLicCoverageKey(), texts.PiEccLicCoverageTip());
  IDNumberLabel.SetTexts(texts.PiEccLicIDNumberKey(), texts.PiEccLicIDNumberTip());
  // The abbreviations of the standard are the same in every language.
  PiLabel.SetTexts("PI", texts.PiEccLicPITip());
  EccLabel.SetTexts("ECC", texts.PiEccLicECCTip());
  LicLabel.SetTexts("LIC", texts.PiEccLicLicTip());
  CountryListLabel.SetTexts(texts.PiEccLicCountryListTip(), texts.PiEccLicCountryListTip());
  CountryCombo.SetToolTip(texts.PiEccLicCountryTip());
  CoverageCombo.SetToolTip(texts.PiEccLicCoverageTip());
  IDNumberText.SetToolTip(texts.PiEccLicIDNumberTip());
  VScroll3.SetToolTip(texts.PiEccLicIDNumberTip());
  PiText.SetToolTip(texts.PiEccLicPITip());
  EccText.SetToolTip(texts.PiEccLicECCTip());
  LicCombo.SetToolTip(texts.PiEccLicLicTip());
  CountryList.SetToolTip(texts.PiEccLicCountryListTip());
  ReadPiCommand.SetTexts(texts.PiEccLicReadPIKey(), texts.PiEccLicReadPITip());
  SendPiCommand.SetTexts(texts.PiEccLicSendPIKey(), texts.PiEccLicSendPITip());
  SendPiBurstCommand.SetTexts(texts.PiEccLicSendPIBurstKey(), texts.PiEccLicSendPIBurstTip());
  ReadEccCommand.SetTexts(texts.PiEccLicReadECCKey(), texts.PiEccLicReadECCTip());
  SendEccCommand.SetTexts(texts.PiEccLicSendECCKey(), texts.PiEccLicSendECCTip());
  SendEccBurstCommand.SetTexts(texts.PiEccLicSendECCBurstKey(), texts.PiEccLicSendECCBurstTip());
  ReadLicCommand.SetTexts(texts.PiEccLicReadLICKey(), texts.PiEccLicReadLICTip());
  SendLicCommand.SetTexts(texts.PiEccLicSendLICKey(), texts.PiEccLicSendLICTip());
  SendLicBurstCommand.SetTexts(texts.PiEccLicSendLICBurstKey(), texts.PiEccLicSendLICBurstTip());
}

void PiEccLicTab::Open() {
  ShowTransferButtons({{&ReadPiCommand}, {&SendPiCommand}, {&SendPiBurstCommand}});
  ShowTransferButtons({{&ReadEccCommand}, {&SendEccCommand}, {&SendEccBurstCommand}},
                      configData->EccEnable());
  ShowTransferButtons({{&ReadLicCommand}, {&SendLicCommand}, {&SendLicBurstCommand}},
                      configData->LicEnable());
  EccText.SetEnabled(configData->EccEnable());
  LicCombo.SetEnabled(configData->LicEnable());

  FillLists();
  ShowPiParts();
  ShowEcc(configData->Ecc());
  ShowLanguage();
}

void PiEccLicTab::FillLists() {
  std::vector<std::string> names;
  names.reserve(kCountries);
  for (int line = 0; line < kCountries; ++line) {
    names.push_back(CountryName(CountriesByName().RowOfLine(line)));
  }
  CountryCombo.Fill(names);

  CoverageCombo.Fill(kCoverages);

  names.clear();
  for (int line = 0; line < LanguagesByName().NamedLines(); ++line) {
    names.emplace_back(LanguageOfCode(LanguagesByName().CodeOfLine(line)));
  }
  LicCombo.Fill(names);
}

void PiEccLicTab::ChooseCountry() {
  if (CountryCombo.Index() == ListBox::kNone) return;
  const int row = CountriesByName().RowOfLine(CountryCombo.Index());
  const CountryRecord& country = Countries()[static_cast<std::size_t>(row)];
  configData->SetCountry(country.country);
  configData->SetEcc(country.ecc);
  FillCountryList();
  ShowPi();
  ShowEcc(configData->Ecc());
}

void PiEccLicTab::ChooseCoverage() {
  if (CoverageCombo.Index() == ListBox::kNone) return;
  configData->SetCoverage(static_cast<std::int16_t>(CoverageCombo.Index()));
  ShowPi();
}

void PiEccLicTab::ChooseLanguage() {
  if (LicCombo.Index() == ListBox::kNone) return;
  configData->SetLic(static_cast<std::uint8_t>(LanguagesByName().CodeOfLine(LicCombo.Index())));
}

void PiEccLicTab::StepProgramNum(int step) {
  // A file may bring a number beyond either limit: a step back towards the range is taken.
  const int number = configData->ProgramNum();
  if (step > 0 ? number < kMaxProgramNum : number >= 1) {
    configData->SetProgramNum(static_cast<std::int16_t>(number + step));
  }
  ShowProgramNum();
  ShowPi();
}

void PiEccLicTab::FilterPiKey(int& key) const {
  if (key == kKeyBackspace) return;
  const bool full = PiText.Text().size() >= kPiDigits && PiText.SelLength() == 0;
  if (full || key < 0 || key > 127 || std::isxdigit(key) == 0) {
    RefuseKey(key);
  } else {
    key = std::toupper(key);
  }
}

void PiEccLicTab::TakePi() {
  const std::int32_t pi = HexToLong(PiText.Text());
  if (PiText.Text().size() != kPiDigits || pi < 0) {
    RefusePi();
    return;
  }
  PiText.SetText(LongToHex(pi, kPiDigits));
  if (PiText.Text().front() == '0') {  // there is no country code 0
    RefusePi();
    return;
  }
  configData->SetProgramNum(static_cast<std::int16_t>(pi & 0xFF));
  configData->SetCoverage(static_cast<std::int16_t>(pi >> 8 & 0xF));
  configData->SetCountry(static_cast<std::uint8_t>(pi >> 12));
  FillCountryList();
  ShowCountry();
  ShowCoverage();
  // IDNumberText keeps the old number here, until a step or a read moves it.
}

void PiEccLicTab::RefusePi() {
  Machine().dialogs->Beep();
  PiText.SelectAll();
  PiText.SetFocus();
}

void PiEccLicTab::FillCountryList() {
  const int first = CountryKey(configData->Country(), 0);
  std::vector<std::string> names;
  for (int i = 0; i < kKeysPerCountryCode; ++i) {
    const std::uint16_t row = CountriesByName().RowOfKey(first + i);
    if (row != kNoRow) names.push_back(CountryName(row));
  }
  CountryList.Fill(names);
}

void PiEccLicTab::ShowCountry() {
  const int key = CountryKey(configData->Country(), configData->Ecc());
  const int line = CountriesByName().LineOfKey(key);
  if (line == CountryCombo.Index()) {
    ChooseCountry();  // its row holds also for an ECC that no row has
  } else {
    CountryCombo.SetIndexOrNone(line);
  }
}

void PiEccLicTab::ShowCoverage() { CoverageCombo.SetIndexOrNone(configData->Coverage()); }

void PiEccLicTab::ShowLanguage() {
  const int code = configData->Lic();
  LicCombo.SetIndexOrNone(code < kLanguageCodes ? LanguagesByName().LineOfCode(code)
                                                : ListBox::kNone);
}

void PiEccLicTab::ShowProgramNum() { IDNumberText.SetText(Digits(configData->ProgramNum(), 3)); }

void PiEccLicTab::ShowPi() {
  const int pi =
      configData->Country() * 4096 + configData->Coverage() * 256 + configData->ProgramNum();
  PiText.SetText(LongToHex(pi & 0xFFFF, kPiDigits));
}

void PiEccLicTab::ShowPiParts() {
  ShowCountry();
  ShowCoverage();
  ShowProgramNum();
  FillCountryList();
  ShowPi();
}

void PiEccLicTab::ShowEcc(int ecc) { EccText.SetText(LongToHex(ecc, 2)); }

void PiEccLicTab::ReadPi() {
  configData->GetPiRds();
  ShowPiParts();
}

void PiEccLicTab::ReadEcc() {
  configData->GetEccRds();
  ShowCountry();
  ShowEcc(configData->Ecc() | 0xE0);  // an ECC of another group shows in its 0xE form after a read
}

void PiEccLicTab::ReadLic() {
  configData->GetLicRds();
  ShowLanguage();
}

}  // namespace corvalis
