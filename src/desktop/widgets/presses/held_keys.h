#pragma once

#include <QtGlobal>
#include <map>

class QKeyEvent;

namespace corvalis::desktop {

/// Knows which keys are held down, whatever window they were struck in. A window system repeats a
/// held key as if it were let go and struck again; when the keyboard moves to another window
/// meanwhile, the mark of the repetition is lost, and what is under the new window's focus would be
/// pressed by a finger that only has not been lifted yet.
class HeldKeys {
 public:
  /// Takes a press or a release in its turn. True for a press that repeats a key which has been
  /// held down since an earlier one.
  [[nodiscard]] bool Repeats(const QKeyEvent& event);
  /// The keyboard went to another program: a key may be let go there.
  void Away();

 private:
  struct Key {
    bool down = false;
    bool away = false;    // not seen since the keyboard was elsewhere
    quint64 last_ms = 0;  // the window system's time of its last event
  };
  std::map<quint64, Key> keys_;
};

}  // namespace corvalis::desktop
