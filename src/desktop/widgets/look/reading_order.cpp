#include "desktop/widgets/look/reading_order.h"

#include <QGridLayout>
#include <QWidget>
#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace corvalis::desktop {

namespace {

class Reader {
 public:
  void Read(QWidget& widget) {
    if (!seen_.insert(&widget).second) return;
    const bool stop = (widget.focusPolicy() & Qt::TabFocus) != 0;
    if (stop && widget.focusProxy() == nullptr) stops_.push_back(&widget);
    if (widget.layout() != nullptr) Read(*widget.layout());
    for (auto* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!child->isWindow()) Read(*child);
    }
  }

  [[nodiscard]] const std::vector<QWidget*>& Stops() const { return stops_; }

 private:
  void Read(QLayout& layout) {
    const auto* grid = qobject_cast<QGridLayout*>(&layout);
    std::vector<std::pair<std::pair<int, int>, QLayoutItem*>> items;
    for (int i = 0; i < layout.count(); ++i) {
      std::pair place(0, i);
      int rows = 0;
      int columns = 0;
      if (grid != nullptr) grid->getItemPosition(i, &place.first, &place.second, &rows, &columns);
      items.emplace_back(place, layout.itemAt(i));
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [place, item] : items) {
      if (item->widget() != nullptr) Read(*item->widget());
      if (item->layout() != nullptr) Read(*item->layout());
    }
  }

  std::set<const QWidget*> seen_;
  std::vector<QWidget*> stops_;
};

}  // namespace

void SetReadingOrder(QWidget& window) {
  Reader reader;
  reader.Read(window);
  const std::vector<QWidget*>& stops = reader.Stops();
  for (std::size_t i = 1; i < stops.size(); ++i) QWidget::setTabOrder(stops[i - 1], stops[i]);
}

}  // namespace corvalis::desktop
