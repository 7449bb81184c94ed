#include "desktop/widgets/lists/list_keys.h"

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

int ReplacedEntry(const std::vector<std::string>& had, const std::vector<std::string>& has) {
  if (had.size() != has.size()) return ListBox::kNone;
  const auto first = std::mismatch(had.begin(), had.end(), has.begin());
  if (first.first == had.end()) return ListBox::kNone;
  const bool rest = std::equal(first.first + 1, had.end(), first.second + 1);
  return rest ? static_cast<int>(first.first - had.begin()) : ListBox::kNone;
}

}  // namespace corvalis::desktop
