#pragma once

#include <QString>

namespace corvalis::desktop {

/// Shows the radio at `source` beside the station file `station`, and leaves a picture of the radio
/// and one of the comparison in `folder` once all that is there has been heard. Returns 0, or 1
/// with a sentence if something can't be opened. A QApplication must be there, and no `Program`.
int TakeRadioPictures(const QString& folder, const QString& station, const QString& source);

}  // namespace corvalis::desktop
