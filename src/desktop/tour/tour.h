#pragma once

#include <QMap>
#include <QString>

#include "desktop/tour/coder_eye.h"
#include "desktop/tour/hand.h"

namespace corvalis::desktop {

/// A short tour through the program with a simulated Coder on COM 1: it drives the real windows,
/// prints what was sent and what the Coder then held, and leaves a picture of each window.
class Tour {
 public:
  /// Pictures go into `folder`. `coder_log` and `coder_pid` as for `CoderEye`.
  Tour(const QString& folder, const QString& coder_log, int coder_pid);

  /// The main menu must be on the screen. Returns 0 if everything that was sent is what the Coder
  /// held and what was read back, else 1.
  int Run();

 private:
  void OpenStation();
  void Identity();
  void ClockTime();
  void TpAndDi();
  void OnAir();
  void Groups();
  void Save();
  void Setup();
  void Language();

  void Say(const QString& text) const;
  /// Prints what arrived since the last step.
  void Arrived();
  /// Holds what the Coder has, or a screen shows, against what it should be.
  void Expect(const QString& what, const QString& is, const QString& should_be);
  void ExpectHeld(const QString& item, const QString& should_be);

  Hand hand_;
  CoderEye coder_;
  int disagreements_ = 0;
};

}  // namespace corvalis::desktop
