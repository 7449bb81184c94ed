#include "desktop/widgets/presses/tabs_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "desktop/text.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

TabsBar::TabsBar(Tabs& tabs, QWidget* parent) : QTabBar(parent), tabs_(tabs) {
  setFocusPolicy(Qt::StrongFocus);
  setExpanding(false);
  setDrawBase(true);
  for (int tab = 0; tab < tabs.Count(); ++tab) {
    addTab({});
    ShowTabCaption(*this, tab, FromBytes(tabs.TabCaption(tab)));
  }
  connect(this, &QTabBar::currentChanged, this, [this](int tab) {
    tabs_.Choose(tab);
    Draw();
  });
}

void TabsBar::Draw() {
  const QSignalBlocker silent(this);
  for (int tab = 0; tab < tabs_.Count(); ++tab) {
    ShowTabCaption(*this, tab, FromBytes(tabs_.TabCaption(tab)));
    if (isTabVisible(tab) != tabs_.TabVisible(tab)) setTabVisible(tab, tabs_.TabVisible(tab));
    if (isTabEnabled(tab) != tabs_.TabEnabled(tab)) setTabEnabled(tab, tabs_.TabEnabled(tab));
  }
  setCurrentIndex(tabs_.Tab());
}

void TabsBar::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (HasKeyboard(*this)) QTabBar::mousePressEvent(event);
}

// The base stops at a hidden tab.
void TabsBar::keyPressEvent(QKeyEvent* event) {
  const int step = event->key() == Qt::Key_Right ? 1 : event->key() == Qt::Key_Left ? -1 : 0;
  if (step == 0) return QTabBar::keyPressEvent(event);
  int to = currentIndex() + step;
  while (to >= 0 && to < count() && !(isTabVisible(to) && isTabEnabled(to))) to += step;
  if (to >= 0 && to < count()) setCurrentIndex(to);
}

void TabsBar::wheelEvent(QWheelEvent* event) { event->ignore(); }

TabsWidget::TabsWidget(Tabs& tabs, QWidget* parent)
    : QWidget(parent),
      tabs_(tabs),
      bar_(new TabsBar(tabs, this)),
      pages_(new QStackedWidget(this)) {
  setFocusProxy(bar_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  column->addWidget(bar_);
  column->addWidget(pages_);
  Bind(*bar_, tabs, [this] { Draw(); });
}

void TabsWidget::AddPage(QWidget* page) {
  pages_->addWidget(page);
  Draw();
}

void TabsWidget::Draw() {
  bar_->Draw();
  pages_->setCurrentIndex(tabs_.Tab());
  pages_->setEnabled(tabs_.Enabled());
  pages_->setVisible(tabs_.Visible());
}

}  // namespace corvalis::desktop
