#pragma once

#include <string>

#include "link/list_buttons.h"
#include "networks/ih_data.h"
#include "screen/button.h"
#include "screen/check_box.h"
#include "screen/control.h"
#include "screen/control_array.h"
#include "screen/file_lists.h"
#include "screen/list_box.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The in-house pages, one at a time, and the files that they are prepared in.
class IhTab {
 public:
  explicit IhTab(Window& window);

  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows what the link wants, and the first page; no page is ticked.
  void Open();

 private:
  Window& window_;

 public:
  static constexpr int kBoxes = kIhPages + 1;

  ListBox Combo1{window_, "Combo1"};  ///< the page; chosen once the list is left
  /// The page's text without the blanks that fill it up, which nobody could type behind. What is
  /// typed beyond the 2048 characters stays in sight, but is no part of the page.
  TextBox RichTextBox1{window_, "RichTextBox1"};
  Label CountLabel{window_, "CountLabel"};  ///< how full the page is, and whether its file has it
  DriveList Drive1{window_, "Drive1"};
  DirList Dir1{window_, "Dir1"};
  FileList File1{window_, "File1", ""};
  /// The file's name below the page's folder; one that holds "/" leads on from there.
  TextBox Text105{window_, "Text105", TextBox::Content::kFileName};
  Label PathLabel{window_, "PathLabel"};  ///< where the page is read from and written to
  /// Pages for the buttons of the selected ones. There is one box more than there are pages.
  ControlArray<CheckBox, kBoxes> Check1{window_, "Check1"};
  Button Command15{window_, "Command15"};  ///< read the file
  Button Command16{window_, "Command16"};  ///< write the file
  Button Command8{window_, "Command8"};    ///< new page
  Button Command13{window_, "Command13"};  ///< read selected
  Button Command7{window_, "Command7"};    ///< read all
  Button Command11{window_, "Command11"};  ///< send selected
  Button Command1{window_, "Command1"};    ///< send all
  Button Command12{window_, "Command12"};  ///< send all in a burst

 private:
  void SetFileRules();
  void TakeFolder();
  void TakeFile();
  void LeaveName();
  void LeavePages();
  void ReadFile();
  void WriteFile();

  void GoTo(std::int16_t page);
  void ShowFolder();
  void ShowFiles();
  void ShowPage();
  void ShowCount();
  void LookIntoFile();
  void ShowPath();

  std::int16_t page_ = 0;
  std::string in_file_;   // the page as its file had it at the last look
  bool showing_ = false;  // the lists follow the page, not the operator
  ListButtons buttons_;
};

}  // namespace corvalis
