#pragma once

#include <QMainWindow>
#include <QTimer>
#include <memory>
#include <string>

#include "radio/face.h"
#include "radio/radio_form.h"

class QLabel;
class QSocketNotifier;
class QTabWidget;

namespace corvalis::desktop {

class ComparisonPage;
class FacePage;

/// The radio. It reads its source in portions as groups come, and shows what it hears at most
/// twenty times a second, so that it stays quick whatever comes.
class RadioWindow : public QMainWindow {
 public:
  RadioWindow();
  ~RadioWindow() override;

  /// Each returns an empty text, or why it can't be done in one sentence.
  [[nodiscard]] std::string OpenSource(const std::string& path);
  [[nodiscard]] std::string OpenStation(const std::string& path);
  void ShowComparison();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void MakeMenus();
  void Listen();
  void Watch();
  void ShowLater();
  void Show();
  void Compare();
  void Told(const std::string& wrong);
  void AskSource();
  void AskStation();
  void AskSave();

  radio::RadioForm form_;
  radio::AirTime time_;
  QLabel* source_;
  QTabWidget* tabs_;
  FacePage* face_;
  ComparisonPage* comparison_;
  std::unique_ptr<QSocketNotifier> notifier_;
  QTimer more_;  // there may be more at once
  QTimer tick_;  // the clock goes on, and a source that can't be watched is asked
  QTimer show_;
  QTimer compare_;
};

}  // namespace corvalis::desktop
