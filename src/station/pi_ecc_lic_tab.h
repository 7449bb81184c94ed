#pragma once

#include "screen/button.h"
#include "screen/control.h"
#include "screen/list_box.h"
#include "screen/spinner.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The station's identity: PI with its three parts, ECC and LIC.
class PiEccLicTab {
 public:
  explicit PiEccLicTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: fills the lists, shows and hides buttons as the link and the Coder model
  /// want it, and shows the record.
  void Open();

  Label CountryLabel, CoverageLabel, IDNumberLabel, PiLabel, EccLabel, LicLabel, CountryListLabel;
  ListBox CountryCombo, CoverageCombo;
  TextBox IDNumberText;
  Spinner VScroll3;
  TextBox PiText, EccText;
  ListBox LicCombo;
  ListBox CountryList;
  Button ReadPiCommand, SendPiCommand, SendPiBurstCommand;
  Button ReadEccCommand, SendEccCommand, SendEccBurstCommand;
  Button ReadLicCommand, SendLicCommand, SendLicBurstCommand;

 private:
  void ChooseCountry();
  void ChooseCoverage();
  void ChooseLanguage();
  void StepProgramNum(int step);
  void FilterPiKey(int& key) const;
  void TakePi();
  void RefusePi();

  void FillLists();
  void FillCountryList();
  // The fields, from the record. Selecting an entry has the effects of the operator's choice.
  void ShowCountry();
  void ShowCoverage();
  void ShowLanguage();
  void ShowProgramNum();
  void ShowPi();
  void ShowPiParts();
  void ShowEcc(int ecc);

  void ReadPi();
  void ReadEcc();
  void ReadLic();

  Window& window_;
};

}  // namespace corvalis
