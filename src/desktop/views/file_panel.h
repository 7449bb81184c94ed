#pragma once

#include <QWidget>
#include <initializer_list>

#include "screen/button.h"
#include "screen/control.h"
#include "screen/file_lists.h"
#include "screen/text_box.h"

namespace corvalis::desktop {

/// What a screen has for the choice of a file.
struct FileControls {
  DriveList& drives;
  DirList& folders;
  FileList& files;
  TextBox& name;
  Label& path;  ///< the whole name
};

/// Lays a choice of a file out, the same on every screen: where to look, the file's name, and what
/// can be done with it.
[[nodiscard]] QWidget* FilePanel(const FileControls& controls,
                                 std::initializer_list<Button*> buttons, QWidget* parent);

}  // namespace corvalis::desktop
