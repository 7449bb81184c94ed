#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <initializer_list>

#include "desktop/text.h"
#include "screen/button.h"
#include "screen/control.h"
#include "screen/text_box.h"

namespace corvalis::desktop {

/// How the windows put their parts together: the same distances and the same order everywhere.

/// The layout of a whole window, with the window's margins.
[[nodiscard]] QVBoxLayout* WindowColumn(QWidget* window);

/// The layout of a page with few controls: they keep a natural width, the same for all, at the top
/// on the left, and the page is empty beside and below them.
[[nodiscard]] QVBoxLayout* NaturalColumn(QWidget* page);

/// Layouts without margins of their own.
[[nodiscard]] QVBoxLayout* Column(QWidget* parent);
[[nodiscard]] QHBoxLayout* Row(QWidget* parent);

/// The inside of a group: labels in the first column, what they name in the second, which takes
/// the room that is left.
[[nodiscard]] QGridLayout* Fields(QWidget* group);
/// Appends a line to `fields`: `label` and `field`, which keeps its width if it has a fixed one.
/// The label names what has the keyboard in `field`, and its spinner.
void AddField(QGridLayout& fields, Label& label, QWidget* field);
/// The same with a text of ours.
void AddField(QGridLayout& fields, const Wording& word, QWidget* field);
/// Puts `box` and its number, which counts from 1, into the next place of a grid with `in_line` of
/// them in a line. It takes `kNumberedColumns` columns and is called `name`, which has the number
/// in it.
void AddNumbered(QGridLayout& grid, int number, int in_line, const char* name, QWidget* box);
inline constexpr int kNumberedColumns = 3;
/// Appends a line over both columns.
void AddLine(QGridLayout& fields, QWidget* line);

/// A box of so many digits, no wider.
[[nodiscard]] QLineEdit* FixedBox(TextBox& box, int columns, QWidget* parent);
/// The same for a code that stands on its own and is read digit by digit.
[[nodiscard]] QLineEdit* CodeBox(TextBox& box, int columns, QWidget* parent);

/// Names the row of `list` that its buttons for one row are about, and leads to the list.
[[nodiscard]] QWidget* SelectedRow(Label& row, QWidget* list, QWidget* parent);

/// A row of buttons of equal width, from the left. Hidden ones take no room.
[[nodiscard]] QWidget* ButtonRow(std::initializer_list<Button*> buttons, QWidget* parent);
/// The same from top to bottom, over the whole width.
[[nodiscard]] QWidget* ButtonColumn(std::initializer_list<Button*> buttons, QWidget* parent);

/// Lays `page` out for a list: what selects it, if anything, the grid, which takes the room that is
/// left, what belongs to its rows, and the buttons.
void ListPage(QWidget* page, QWidget* grid, std::initializer_list<Button*> buttons,
              std::initializer_list<QWidget*> above = {},
              std::initializer_list<QWidget*> below = {});

}  // namespace corvalis::desktop
