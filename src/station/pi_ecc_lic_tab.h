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
  explicit PiEccLicTab(Window& owner);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: fills the lists, shows and hides buttons as the link and the Coder model
  /// want it, and shows the record.
  void Open();

  Window& window;  ///< the screen's
  Label CountryLabel{window, "CountryLabel"};
  Label CoverageLabel{window, "CoverageLabel"};
  Label IDNumberLabel{window, "IDNumberLabel"};
  Label PiLabel{window, "PiLabel"};
  Label EccLabel{window, "EccLabel"};
  Label LicLabel{window, "LicLabel"};
  Label CountryListLabel{window, "CountryListLabel"};
  ListBox CountryCombo{window, "CountryCombo"};
  ListBox CoverageCombo{window, "CoverageCombo"};
  TextBox IDNumberText{window, "IDNumberText"};
  Spinner VScroll3{window, "VScroll3"};
  TextBox PiText{window, "PiText"};
  TextBox EccText{window, "EccText"};
  ListBox LicCombo{window, "LicCombo"};
  ListBox CountryList{window, "CountryList"};
  Button ReadPiCommand{window, "ReadPiCommand"};
  Button SendPiCommand{window, "SendPiCommand"};
  Button SendPiBurstCommand{window, "SendPiBurstCommand"};
  Button ReadEccCommand{window, "ReadEccCommand"};
  Button SendEccCommand{window, "SendEccCommand"};
  Button SendEccBurstCommand{window, "SendEccBurstCommand"};
  Button ReadLicCommand{window, "ReadLicCommand"};
  Button SendLicCommand{window, "SendLicCommand"};
  Button SendLicBurstCommand{window, "SendLicBurstCommand"};

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
};

}  // namespace corvalis
