#include "desktop/widgets/tabs_widget.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "desktop/text.h"
#include "desktop/widgets/binding.h"
#include "desktop/widgets/style.h"

namespace corvalis::desktop {

TabsBar::TabsBar(Tabs& tabs, QWidget* parent) : QTabBar(parent), tabs_(tabs) {
  setFocusPolicy(Qt::StrongFocus);
  setExpanding(false);
  setDrawBase(true);
  for (const std::string& caption : tabs.Captions()) addTab(FromBytes(caption));
  connect(this, &QTabBar::currentChanged, this, [this](int tab) {
    tabs_.Choose(tab);
    Draw();
  });
}

void TabsBar::Draw() {
  const QSignalBlocker silent(this);
  setCurrentIndex(tabs_.Tab());
}

void TabsBar::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (hasFocus()) QTabBar::mousePressEvent(event);
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
  Bind(*this, tabs, [this] { Draw(); });
}

void TabsWidget::AddPage(QWidget* page) {
  pages_->addWidget(page);
  Draw();
}

void TabsWidget::Draw() {
  bar_->Draw();
  pages_->setCurrentIndex(tabs_.Tab());
}

}  // namespace corvalis::desktop
