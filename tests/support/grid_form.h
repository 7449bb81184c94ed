#pragma once

#include <string>
#include <vector>

#include "screen/button.h"
#include "screen/grid.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis::test {

/// A list of names: its row's number, a time of two digits, eight places of text, and a switch. A
/// time that is no number is not taken, and a text "stay" can't be left.
struct GridForm {
  struct Item {
    std::string time = "0";
    std::string text = "        ";
    bool active = false;
  };

  explicit GridForm(int rows = 50) : items(static_cast<std::size_t>(rows)) {
    grid.RowCount = [this] { return static_cast<int>(items.size()); };
    grid.Cell = [this](int row, int column) {
      const Item& item = ItemAt(row);
      const std::string number = std::to_string(row);
      return column == 0   ? "PSN " + std::string(number.size() < 2 ? "0" : "") + number
             : column == 1 ? item.time
             : column == 2 ? item.text
                           : std::string(item.active ? "ON" : "Off");
    };
    grid.Write = [this](int row, int column, const std::string& text) {
      ++written;
      Item& item = ItemAt(row);
      if (column == 1) item.time = text;
      if (column == 2) item.text = text + std::string(8 - text.size(), ' ');
      if (column == 3) item.active = text == "ON";
    };
    grid.CellLeft = [](int column, std::string& text) {
      if (text == "stay") return Grid::Leave::kStay;
      const bool number = text.find_first_not_of("0123456789") == std::string::npos;
      return column == 1 && !number ? Grid::Leave::kRestore : Grid::Leave::kTake;
    };
    grid.ButtonClick = [this](int column) {
      grid.PutEdit(column, grid.Shown(grid.Row(), column) == "ON" ? "Off" : "ON");
    };
    grid.Moved = [this] { ++moved; };
  }

  [[nodiscard]] Item& ItemAt(int row) { return items.at(static_cast<std::size_t>(row)); }

  Window window{this, "GridForm"};
  Grid grid{window,
            "DBGrid1",
            {{.heading = "PSN", .width = 6},
             {.heading = "Time", .kind = GridColumn::Kind::kText, .width = 4, .max_length = 2},
             {.heading = "Text",
              .kind = GridColumn::Kind::kText,
              .width = 8,
              .max_length = 8,
              .every_place = true},
             {.heading = "Active", .kind = GridColumn::Kind::kButton, .width = 3}}};
  Button button{window, "Command17"};
  TextBox box{window, "Text11"};
  std::vector<Item> items;
  int written = 0;
  int moved = 0;
};

}  // namespace corvalis::test
