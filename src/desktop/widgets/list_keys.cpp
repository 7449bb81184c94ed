#include "desktop/widgets/list_keys.h"

#include <QKeyEvent>
#include <algorithm>

#include "screen/list_box.h"

namespace corvalis::desktop {

namespace {
constexpr int kPage = 10;
}  // namespace

int EntryByKey(const ListBox& list, const QKeyEvent& event) {
  if (list.Count() == 0) return ListBox::kNone;
  const int last = list.Count() - 1;
  int to = list.Index();
  switch (event.key()) {
    case Qt::Key_Down:
      ++to;
      break;
    case Qt::Key_Up:
      --to;
      break;
    case Qt::Key_PageDown:
      to += kPage;
      break;
    case Qt::Key_PageUp:
      to -= kPage;
      break;
    case Qt::Key_Home:
      to = 0;
      break;
    case Qt::Key_End:
      to = last;
      break;
    default:
      return ListBox::kNone;
  }
  return std::clamp(to, 0, last);
}

}  // namespace corvalis::desktop
