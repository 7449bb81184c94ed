#pragma once

#include <functional>
#include <vector>

#include "screen/button.h"
#include "screen/grid.h"
#include "screen/window.h"

namespace corvalis {

/// How the buttons of one list differ from those of the others.
struct ListRules {
  /// Seconds after each item of a run.
  float pause_read = 0;
  float pause_send = 0;
  float pause_burst = 0;
  /// Passes of a burst beyond `ConfigData::Burst`.
  int extra_passes = 0;
  /// Which sends first store the row being edited.
  bool commit_one = false;
  bool commit_all = false;
  bool commit_burst = false;
  /// Whether the plain sends ask if the Coder has been addressed; a burst always does.
  bool guard_sends = true;
  /// Whether the plain sends are offered on a one-way link.
  bool sends_one_way = true;
  /// Whether reading all goes back to the current row also if that was row 0.
  bool keep_row_0 = true;
  /// Whether a read ends in the grid's first column.
  bool reads_to_column_0 = false;
};

/// The list that the buttons are about. What is empty isn't done. Items are counted from 0.
struct ListItems {
  std::function<int()> count = {};
  /// What reading one and sending one are about; none is allowed, and the transfer screen shows all
  /// the same. Empty: the grid's current row.
  std::function<std::vector<int>()> selected = {};
  std::function<void(int item)> read = {};
  std::function<void(int item)> send = {};
  /// An item has been read without an error; in a grid its row shows it by itself.
  std::function<void(int item)> show = {};
  /// Before what is sent is sent, once for a burst.
  std::function<void()> prepare = {};
  /// After a read, whatever it left: the screen shows the list. A send shows nothing.
  std::function<void()> refresh = {};
  /// The grid that the items are the rows of; null for none.
  Grid* grid = nullptr;
};

/// What there is one of, not a list: `items` without count and selection.
[[nodiscard]] ListItems OneItem(ListItems items);

/// The five buttons of a list. Each press is the whole road of a transfer: see transfer.h.
class ListButtons {
 public:
  struct Buttons {
    Button* read_one = nullptr;
    Button* read_all = nullptr;
    Button* send_one = nullptr;
    Button* send_all = nullptr;
    Button* burst = nullptr;
  };

  /// Sets what the buttons do on `screen`. A list in several tables names them all in `tables`:
  /// runs go through one after the other, and end at the first error.
  ListButtons(Window& screen, const Buttons& buttons, const ListRules& rules,
              std::vector<ListItems> tables);

  /// Shows the buttons that the link has a use for, none of them if the list isn't `offered`.
  void Show(bool offered = true) const;

 private:
  void ReadOne();
  void ReadAll();
  void SendOne();
  void SendAll();
  void Burst();

  void Send(const std::function<void()>& work) const;
  void Prepare(bool commit);
  void Repaint() const;
  void Refresh() const;
  bool Read(ListItems& table, int item);
  void EndRead(const ListItems& table) const;
  static std::vector<int> Selected(const ListItems& table);

  Window& screen_;
  Buttons buttons_;
  ListRules rules_;
  std::vector<ListItems> tables_;
};

}  // namespace corvalis
