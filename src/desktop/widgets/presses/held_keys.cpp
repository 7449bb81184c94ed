#include "desktop/widgets/presses/held_keys.h"

#include <QKeyEvent>

namespace corvalis::desktop {

namespace {

// A held key is silent for less, between its press and the first repetition too.
constexpr quint64 kLongestSilenceMs = 1000;
constexpr quint64 kNoScanCode = quint64{1} << 32;

quint64 IdOf(const QKeyEvent& event) {
  const quint32 code = event.nativeScanCode();
  return code != 0 ? code : kNoScanCode + static_cast<quint64>(event.key());
}

}  // namespace

bool HeldKeys::Repeats(const QKeyEvent& event) {
  Key& key = keys_[IdOf(event)];
  const quint64 now = event.timestamp();
  const quint64 silence = now - key.last_ms;
  key.last_ms = now;
  if (event.type() == QEvent::KeyRelease) {
    if (!event.isAutoRepeat()) key.down = false;
    return false;
  }
  // The release and the press of a repetition bear the same time; no finger is as quick.
  const bool at_once = event.nativeScanCode() != 0 && silence == 0;
  const bool repeats =
      event.isAutoRepeat() || (key.down ? !key.away || silence < kLongestSilenceMs : at_once);
  key.down = true;
  key.away = false;
  return repeats;
}

void HeldKeys::Away() {
  for (auto& [id, key] : keys_) key.away = true;
}

}  // namespace corvalis::desktop
