#pragma once

#include <functional>
#include <string>

#include "screen/list_box.h"

namespace corvalis {

/// The places of the machine where files are looked for (root, home, mounted media).
class DriveList : public ListBox {
 public:
  using ListBox::ListBox;

  /// Lists the places anew.
  void Refresh();
  [[nodiscard]] std::string Drive() const;
  /// Selects the place that is, or that holds, `folder`. Returns false, with the selection as it
  /// was, if there is none.
  bool SetDrive(const std::string& folder);
};

/// The folders on the way to the present one, itself, and those inside it, indented by their depth.
class DirList : public ListBox {
 public:
  DirList(Window& window, const std::string& name);

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Goes to `folder`. Raises `Change` if that is another one. Returns false, with the list as it
  /// was, if it can't be read.
  bool SetPath(const std::string& folder);

  /// Goes into the folder that is opened.
  void Open(int index) override;

  /// The depth of an entry below the root, for whoever draws the list.
  [[nodiscard]] int Depth(int index) const;
  /// The entry that is the present folder.
  [[nodiscard]] int Here() const { return here_; }

  std::function<void()> Change;

 private:
  std::string path_;
  int here_ = 0;
};

/// The files of one folder that end in the pattern's extension.
class FileList : public ListBox {
 public:
  /// `extension`, as ".rds", in whatever case of letters.
  FileList(Window& window, const std::string& name, std::string extension);

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Shows another folder; raises `PathChange` if it is another one. A folder that can't be read
  /// shows no files.
  void SetPath(const std::string& folder);
  /// Reads the folder anew. The selection stays on the file it was on, silently.
  void Refresh();
  /// Selects the file of that name, or none if it is not in the list. Raises nothing: that is no
  /// choice of the operator's.
  void Match(const std::string& name);
  /// The selected file's name; empty if none is selected.
  [[nodiscard]] std::string FileName() const;

  std::function<void()> PathChange;

 private:
  std::string path_;
  std::string extension_;
};

}  // namespace corvalis
