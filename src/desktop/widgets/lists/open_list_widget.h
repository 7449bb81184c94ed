#pragma once

#include <QElapsedTimer>
#include <QListWidget>
#include <string>
#include <vector>

#include "screen/file_lists.h"
#include "screen/list_box.h"
#include "screen/text_box.h"

namespace corvalis::desktop {

/// A list that stands open. Its user chooses with the mouse or the arrow keys.
class OpenListWidget : public QListWidget {
 public:
  OpenListWidget(ListBox& list, QWidget* parent,
                 TextBox::Content content = TextBox::Content::kWindows1252);

  /// Nothing can be chosen: the list only shows, and scrolls.
  void ShowOnly();

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  /// Called for each entry when the list has changed.
  virtual void Dress(QListWidgetItem& item, int index);
  void Draw();
  [[nodiscard]] QString Shown(const std::string& entry) const;

 private:
  /// The entry selected stands out more while the list has the keyboard.
  void ShowSelection();

  ListBox& list_;
  TextBox::Content content_;
  std::vector<std::string> shown_;
  bool choosing_ = true;
};

/// A list of the names of files. One that is too long leaves out its middle and is whole in a tip.
/// The letters typed choose the first name that begins with them; a double click or Enter opens
/// one.
class FileListWidget : public OpenListWidget {
 public:
  FileListWidget(ListBox& files, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ListBox& files_;
  QString typed_;
  QElapsedTimer since_typed_;
};

/// The folders around the present one. A double click or Enter opens one.
class DirListWidget : public FileListWidget {
 public:
  DirListWidget(DirList& list, QWidget* parent);

 protected:
  void Dress(QListWidgetItem& item, int index) override;

 private:
  DirList& list_;
};

}  // namespace corvalis::desktop
