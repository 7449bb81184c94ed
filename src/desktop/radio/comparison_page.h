#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "radio/radio_form.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace corvalis::desktop {

class CopyTable;

/// The station file held against what is heard: a row for each item, and on demand what radios will
/// not make of the file.
class ComparisonPage : public QWidget {
 public:
  ComparisonPage(radio::RadioForm& form, QWidget* parent);

  /// The rows of the form as they are now.
  void Show();
  /// Another file is compared, or the same was read again.
  void ShowStation();
  /// Saves the rows as text, or to a name that ends in ".csv" as a table; a sentence if that can't
  /// be done.
  [[nodiscard]] std::string Save(const QString& path) const;

  std::function<void()> OpenAsked;
  std::function<void()> AgainAsked;
  std::function<void()> SaveAsked;

 private:
  QWidget* Buttons();
  void ShowFindings(bool show);

  radio::RadioForm& form_;
  std::vector<radio::Row> rows_;
  bool shown_ = false;
  QLabel* summary_;
  CopyTable* table_;
  QPushButton* again_;
  QPushButton* from_now_;
  QPushButton* save_;
  QPushButton* judge_;
  QListWidget* findings_;
};

}  // namespace corvalis::desktop
