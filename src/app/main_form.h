#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "app/connection_form.h"
#include "app/globals.h"
#include "busy/brand_marks.h"
#include "link/rs232c_form.h"
#include "networks/eon_li_form.h"
#include "networks/tdc_ih_form.h"
#include "platform/clock.h"
#include "platform/serial_port.h"
#include "programme/psn_rt_pin_af_form.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/file_lists.h"
#include "screen/text_box.h"
#include "screen/timer.h"
#include "screen/window.h"
#include "station/ct_tp_di_pi_form.h"
#include "station/edit_groups_form.h"
#include "station/ta_pty_ms_form.h"

namespace corvalis {

/// The main menu: the first and the last screen. It creates and releases every global object, owns
/// the port, holds the file panel with New, Open and Save, and opens the working screens.
class MainForm {
 public:
  MainForm();
  ~MainForm();
  MainForm(const MainForm&) = delete;
  MainForm& operator=(const MainForm&) = delete;

  /// Starts the program. Returns when the screen can be used.
  void Load();
  /// Loads all captions and tool-tips of this screen again.
  void InitMain();

  /// The texts of a language file have been read.
  std::function<void()> LanguageRead;

  /// The screen has been closed and everything released: the program ends.
  std::function<void()> Ended;

  Window window{this, "MainForm"};
  BrandMarks marks{window};
  Label Text_KOR{window, "Text_KOR"};
  DriveList Drive1{window, "Drive1"};
  DirList Dir1{window, "Dir1"};
  FileList File1{window, "File1", kExtension};
  TextBox Text105{window, "Text105", TextBox::Content::kFileName};
  /// The file that Save writes, in the file system's own bytes; when it last did, and whether it
  /// would write something else now.
  Label PathLabel{window, "PathLabel"};
  Label LinkLabel{window, "LinkLabel"};  ///< what is known of the link
  Button NewButton{window, "NewButton"};
  Button OpenButton{window, "OpenButton"};
  Button SaveButton{window, "SaveButton"};
  Button RS232CButton{window, "RS232CButton"};
  Button ConnectionButton{window, "ConnectionButton"};
  Button TaPtyMsButton{window, "TaPtyMsButton"};
  Button EditGroupsButton{window, "EditGroupsButton"};
  Button CtTpDiPiButton{window, "CtTpDiPiButton"};
  Button PsnRtPinAfButton{window, "PsnRtPinAfButton"};
  Button EonLiButton{window, "EonLiButton"};
  Button TdcIhButton{window, "TdcIhButton"};
  Timer Timer1{window, "Timer1", 1000};
  SerialPort& MSComm1;

  /// The screen, once it has been opened; null before.
  [[nodiscard]] ConnectionForm* OpenedConnection() const { return connection_.get(); }
  [[nodiscard]] CtTpDiPiForm* OpenedCtTpDiPi() const { return ct_tp_di_pi_.get(); }
  [[nodiscard]] PsnRtPinAfForm* OpenedPsnRtPinAf() const { return psn_rt_pin_af_.get(); }

 private:
  static constexpr const char* kExtension = ".rds";

  void New();
  void Open();
  void Save();
  void Unload();

  void DriveChanged();
  void DirChanged();
  void FileClicked();
  void CompleteFileName();
  [[nodiscard]] std::string SavePath() const;

  // Opens a working screen, which is created the first time and lives as long as this one.
  template <class Form, class MainMenu>
  void OpenScreen(std::unique_ptr<Form>& screen, MainMenu&& main_menu) {
    if (!screen) screen = std::make_unique<Form>(std::forward<MainMenu>(main_menu));
    screen->Load();
  }

  void ShowFolder();
  void ShowFile();
  void MatchFile();
  void ShowPath();
  void Given(const Button* by);
  void FindChanges();
  void EnableServices();
  void ShowWait();
  void HideWait();
  void FocusBack();

  struct Saved {
    std::string path;
    DateTime when;
  };

  Globals globals_;
  std::optional<Saved> saved_;  // the last one that reached the disk
  // What Save would have written when a file was last read or written, by which button (null: at
  // the start), and whether it would write the same now.
  std::string given_;
  const Button* given_by_ = nullptr;
  bool changed_ = false;
  std::unique_ptr<RS232CForm> rs232c_;
  std::unique_ptr<ConnectionForm> connection_;
  std::unique_ptr<TaPtyMsForm> ta_pty_ms_;
  std::unique_ptr<CtTpDiPiForm> ct_tp_di_pi_;
  std::unique_ptr<PsnRtPinAfForm> psn_rt_pin_af_;
  std::unique_ptr<EonLiForm> eon_li_;
  std::unique_ptr<TdcIhForm> tdc_ih_;
  std::unique_ptr<EditGroupsForm> edit_groups_;
};

}  // namespace corvalis
