#pragma once

#include <QTabBar>
#include <QWidget>

#include "screen/tabs.h"

class QStackedWidget;

namespace corvalis::desktop {

/// The bar of a `TabsWidget`, and the picture of the control: it has its name.
class TabsBar : public QTabBar {
 public:
  TabsBar(Tabs& tabs, QWidget* parent);

  /// Shows what tabs there are and brings the one to the front that the model has there.
  void Draw();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  Tabs& tabs_;
};

/// A bar of tabs above their pages. The model says which tab is in front; a change that it refuses
/// is undone. Left and right move along the bar, past what is hidden or disabled; the wheel does
/// nothing.
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
