#pragma once

#include <QString>
#include <QStringList>
#include <vector>

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
  /// What is done, and up to three words for it. A control is one of the window that was entered
  /// last; "grid row column" is a cell, counted from 0.
  struct Step {
    void (Tour::*act)(const Step& step);
    const char* on = "";
    const char* with = "";
    const char* gives = "";
  };
  static const std::vector<Step>& Steps();

  void Title(const Step& step);    ///< says what comes
  void Enter(const Step& step);    ///< presses a button of the main menu; a window comes up
  void Leave(const Step& step);    ///< closes it
  void Tab(const Step& step);      ///< turns to a tab, by its caption
  void Press(const Step& step);    ///< presses a button
  void Choose(const Step& step);   ///< chooses from a list
  void Type(const Step& step);     ///< types into a box, or into a cell, which stays open
  void GoTo(const Step& step);     ///< goes to a cell
  void Up(const Step& step);       ///< steps up
  void Down(const Step& step);     ///< steps down
  void Send(const Step& step);     ///< presses a button; an item of the Coder then holds a text
  void Read(const Step& step);     ///< presses a button; a control then shows a text
  void Shows(const Step& step);    ///< a control shows a text
  void Refused(const Step& step);  ///< presses a button; a box comes up, and nothing is sent
  void Burst(const Step& step);    ///< presses a button; a line arrives so many times
  void Picture(const Step& step);  ///< takes a picture
  /// Enters a window, takes a picture of each of its tabs, called by the window, the tab's number
  /// and the third word, and leaves.
  void EveryPage(const Step& step);

  void SendClock(const Step& step);
  void MoveLine(const Step& step);

  void Say(const QString& text) const;
  /// Prints what arrived since the last look, a long run of like lines by its ends, and tells it.
  QStringList Arrived();
  /// Holds what the Coder has, or a screen shows, against what it should be.
  void Expect(const QString& what, const QString& is, const QString& should_be);
  void ExpectHeld(const QString& item, const QString& should_be);
  [[nodiscard]] QString Shown(const QString& control) const;
  /// Says what boxes came up that nobody expected.
  void TellBoxes();

  Hand hand_;
  CoderEye coder_;
  QString window_;
  QStringList boxes_;  ///< that came up, and were answered
  int disagreements_ = 0;
};

}  // namespace corvalis::desktop
