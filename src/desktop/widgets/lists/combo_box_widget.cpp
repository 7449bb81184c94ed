#include "desktop/widgets/lists/combo_box_widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include "desktop/text.h"
#include "screen/keys.h"

namespace corvalis::desktop {

ComboBoxWidget::ComboBoxWidget(ComboBox& combo, QWidget* parent)
    : DropDownWidget(combo, parent), combo_(combo) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  lineEdit()->setDragEnabled(false);
  // The base would choose the entry that has the text typed, at Enter and when the focus leaves.
  disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { Take(text); });
  Draw();
}

void ComboBoxWidget::Take(const QString& text) {
  const std::string known = KnownBytes(text);
  const qsizetype dropped = text.size() - FromBytes(known).size();
  if (dropped > 0) {
    const int caret = lineEdit()->cursorPosition() - static_cast<int>(dropped);
    const QSignalBlocker silent(lineEdit());
    lineEdit()->setText(FromBytes(known));
    lineEdit()->setCursorPosition(caret);  // they came in front of it
  }
  combo_.TypeText(known);
  Draw();
}

void ComboBoxWidget::Draw() {
  const int caret = lineEdit()->cursorPosition();
  const QString before = lineEdit()->text();
  const QSignalBlocker silent(lineEdit());
  DropDownWidget::Draw();  // clears the text where no entry is selected, or puts an entry there
  const QString text = FromBytes(combo_.Text());
  if (lineEdit()->text() != text) lineEdit()->setText(text);
  // What the hand has typed keeps the caret.
  const int at = text == before ? caret : 0;
  if (lineEdit()->cursorPosition() != at) lineEdit()->setCursorPosition(at);
}

void ComboBoxWidget::keyPressEvent(QKeyEvent* event) {
  const int code = event->key();
  const bool in_text = code == Qt::Key_Home || code == Qt::Key_End;
  if (!in_text && MovedByKey(*event)) return;
  const int key = KeyCode(*event);
  const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (key == kKeyCancelled && !command && !event->text().isEmpty() && event->text()[0].isPrint()) {
    QApplication::beep();  // a character that the code page lacks
    return;
  }
  if (key != kKeyCancelled) combo_.TypeKey(key);
  if (code != Qt::Key_Return && code != Qt::Key_Enter) lineEdit()->event(event);
}

}  // namespace corvalis::desktop
