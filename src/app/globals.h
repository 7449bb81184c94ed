#pragma once

#include <string>

namespace corvalis {

/// The single instances of the program, in their orders. There is one of these, which `MainForm`
/// has, or the station of the program that sends unattended; whatever it has created goes with it.
class Globals {
 public:
  Globals() = default;
  ~Globals();
  Globals(const Globals&) = delete;
  Globals& operator=(const Globals&) = delete;

  /// The station record; it stays until the process ends.
  void CreateConfigData();
  /// The texts; each call loads them into a new instance.
  void CreateLanguageData();
  /// The data classes, at the end of the start.
  void CreateDataClasses();
  /// The data classes and the texts, when the main menu goes.
  void Release();

  /// The data classes load themselves from the file, in the order of Open.
  void LoadForOpen();
  /// The same in the order of New.
  void LoadForNew();
  /// The classes that ask the Coder for the size of their lists load themselves again, in the order
  /// in which the setup screen has it done when it closes.
  void LoadLimits();
  /// The record and the data classes store themselves, in the order of Save.
  void Store();
  /// What `Store` would write now, to be compared. Writes nothing.
  [[nodiscard]] std::string WouldStore();
};

}  // namespace corvalis
