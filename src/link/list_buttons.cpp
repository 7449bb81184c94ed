#include "link/list_buttons.h"

#include <optional>
#include <utility>

#include "config/config_data.h"
#include "link/serial_management.h"
#include "link/transfer.h"
#include "link/utility.h"
#include "platform/platform.h"

namespace corvalis {

ListItems OneItem(ListItems items) {
  items.count = [] { return 1; };
  items.selected = [] { return std::vector<int>{0}; };
  return items;
}

ListButtons::ListButtons(Window& screen, const Buttons& buttons, const ListRules& rules,
                         std::vector<ListItems> tables)
    : screen_(screen), buttons_(buttons), rules_(rules), tables_(std::move(tables)) {
  const auto on = [this](Button* button, void (ListButtons::*work)()) {
    if (button != nullptr) button->Click = [this, work] { (this->*work)(); };
  };
  on(buttons_.read_one, &ListButtons::ReadOne);
  on(buttons_.read_all, &ListButtons::ReadAll);
  on(buttons_.send_one, &ListButtons::SendOne);
  on(buttons_.send_all, &ListButtons::SendAll);
  on(buttons_.burst, &ListButtons::Burst);
}

void ListButtons::Show(bool offered) const {
  const bool one_way = configData->Satellite();
  const auto show = [](Button* button, bool shown) {
    if (button != nullptr) button->SetVisible(shown);
  };
  show(buttons_.read_one, offered && !one_way);
  show(buttons_.read_all, offered && !one_way);
  show(buttons_.send_one, offered && (!one_way || rules_.sends_one_way));
  show(buttons_.send_all, offered && (!one_way || rules_.sends_one_way));
  show(buttons_.burst, offered && one_way);
}

std::vector<int> ListButtons::Selected(const ListItems& table) {
  if (table.selected) return table.selected();
  if (table.grid == nullptr || table.grid->Row() == Grid::kNoRow) return {};
  return {table.grid->Row()};
}

// Reads an item and shows it if that left no error. In a grid that can be followed by eye.
bool ListButtons::Read(ListItems& table, int item) {
  table.read(item);
  if (LinkError != kLinkOk) return false;
  if (table.grid != nullptr) {
    table.grid->RefreshRow(item);
    table.grid->Select(item);
  }
  if (table.show) table.show(item);
  return true;
}

void ListButtons::EndRead(const ListItems& table) const {
  if (table.grid != nullptr && rules_.reads_to_column_0) table.grid->MoveTo(table.grid->Row(), 0);
}

void ListButtons::ReadOne() {
  RunRead(screen_, [this] {
    for (ListItems& table : tables_) {
      const std::vector<int> items = Selected(table);
      const auto read = [&](int i) { Read(table, items[static_cast<std::size_t>(i)]); };
      const bool good = RunItems(static_cast<int>(items.size()), read);
      EndRead(table);
      if (!good) break;
    }
    Refresh();
  });
}

void ListButtons::ReadAll() {
  RunRead(screen_, [this] {
    for (ListItems& table : tables_) {
      std::optional<GridPlace> place;
      if (table.grid != nullptr) place.emplace(*table.grid);
      const bool good = RunItems(
          table.count(), [&](int item) { Read(table, item); }, rules_.pause_read);
      EndRead(table);
      if (place) place->Restore(rules_.keep_row_0);
      if (!good) break;
    }
    Refresh();
  });
}

void ListButtons::Send(const std::function<void()>& work) const {
  if (rules_.guard_sends) {
    RunSend(screen_, work);
  } else {
    RunRead(screen_, work);
  }
}

void ListButtons::Prepare(bool commit) {
  for (ListItems& table : tables_) {
    if (commit && table.grid != nullptr) CommitGridRow(*table.grid);
    if (table.prepare) table.prepare();
  }
  Machine().pump->RunPending();
}

void ListButtons::Repaint() const {
  for (const ListItems& table : tables_) {
    if (table.grid != nullptr) table.grid->Repaint();
  }
}

void ListButtons::Refresh() const {
  Repaint();
  for (const ListItems& table : tables_) {
    if (table.refresh) table.refresh();
  }
}

void ListButtons::SendOne() {
  Send([this] {
    Prepare(rules_.commit_one);
    for (ListItems& table : tables_) {
      const std::vector<int> items = Selected(table);
      const auto send = [&](int i) { table.send(items[static_cast<std::size_t>(i)]); };
      if (!RunItems(static_cast<int>(items.size()), send)) break;
    }
    Repaint();
  });
}

void ListButtons::SendAll() {
  Send([this] {
    Prepare(rules_.commit_all);
    for (ListItems& table : tables_) {
      if (!RunItems(table.count(), table.send, rules_.pause_send)) break;
    }
    Repaint();
  });
}

void ListButtons::Burst() {
  const int passes = configData->Burst() + rules_.extra_passes;
  RunSend(screen_, [this, passes] {
    Prepare(rules_.commit_burst);
    for (ListItems& table : tables_) {
      const auto pass = [&](int /*number*/) {
        RunItems(table.count(), table.send, rules_.pause_burst);
        Repaint();
      };
      if (!RunItems(passes, pass)) break;
    }
  });
}

}  // namespace corvalis
