#pragma once

#include <QTabBar>
#include <QWidget>

#include "screen/tabs.h"

class QStackedWidget;

namespace corvalis::desktop {

/// The bar of a `TabsWidget`.
class TabsBar : public QTabBar {
 public:
  TabsBar(Tabs& tabs, QWidget* parent);

  /// Brings the tab that the model has in front to the front.
  void Draw();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  Tabs& tabs_;
};

/// A bar of tabs above their pages. The model says which tab is in front; a change that it refuses
/// is undone. Left and right move along the bar; the wheel does nothing.
class TabsWidget : public QWidget {
 public:
  TabsWidget(Tabs& tabs, QWidget* parent);

  /// Adds the page of the next tab, counted from 0, and takes it over.
  void AddPage(QWidget* page);

 private:
  void Draw();

  Tabs& tabs_;
  TabsBar* bar_;
  QStackedWidget* pages_;
};

}  // namespace corvalis::desktop
