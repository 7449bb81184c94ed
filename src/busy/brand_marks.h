#pragma once

#include "config/config_data.h"
#include "screen/control.h"

namespace corvalis {

/// The pictures of the brands, as several screens show them. Each is visible exactly when its
/// brand is the one in use.
class BrandMarks {
 public:
  explicit BrandMarks(Window& owner) : window(owner) { Hide(); }

  /// Shows the mark that `configData` names, if any.
  void Follow() {
    Logo_KOR.SetVisible(configData->KOR());
    Logo_Varn.SetVisible(configData->Varn());
    Logo_ZEL.SetVisible(configData->ZEL());
    Logo_Breno.SetVisible(configData->Breno());
    Logo_Tulm.SetVisible(configData->Tulm());
    Logo_Paxen.SetVisible(configData->Paxen());
    Logo_DOX.SetVisible(configData->DOX());
  }

  Window& window;  ///< the screen's
  Label Logo_KOR{window, "Logo_KOR"};
  Label Logo_Varn{window, "Logo_Varn"};
  Label Logo_ZEL{window, "Logo_ZEL"};
  Label Logo_Breno{window, "Logo_Breno"};
  Label Logo_Tulm{window, "Logo_Tulm"};
  Label Logo_Paxen{window, "Logo_Paxen"};
  Label Logo_DOX{window, "Logo_DOX"};

 private:
  void Hide() {
    for (Label* logo :
         {&Logo_KOR, &Logo_Varn, &Logo_ZEL, &Logo_Breno, &Logo_Tulm, &Logo_Paxen, &Logo_DOX}) {
      logo->SetVisible(false);
    }
  }
};

}  // namespace corvalis
