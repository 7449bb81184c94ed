#include "desktop/widgets/texts/text_box_widget.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <algorithm>

#include "desktop/text.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"
#include "screen/keys.h"

namespace corvalis::desktop {

namespace {

constexpr int kLeastColumns = 6;  // of a box that is as wide as the layout lets it

/// True for the keys with which a box is edited or copied from without a character.
bool IsEditCommand(QKeyEvent& event) {
  const QKeySequence::StandardKey commands[] = {QKeySequence::Copy, QKeySequence::Cut,
                                                QKeySequence::Undo, QKeySequence::Redo,
                                                QKeySequence::SelectAll};
  return std::any_of(std::begin(commands), std::end(commands),
                     [&event](auto command) { return event.matches(command); });
}

}  // namespace

TextBoxWidget::TextBoxWidget(TextBox& box, int columns, QWidget* parent)
    : QLineEdit(parent), box_(box), columns_(columns) {
  setDragEnabled(false);
  if (FileName()) CallByWord(*this, Wording("File name"));
  setTextMargins(kTight, 0, kTight, 0);
  setSizePolicy(columns == 0 ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &QLineEdit::textEdited, this, [this] { TellEdit(); });
  connect(this, &QLineEdit::selectionChanged, this, [this] { TellSelection(); });
  connect(this, &QLineEdit::cursorPositionChanged, this, [this] { TellSelection(); });
  Bind(*this, box, [this] { Draw(); });
}

QSize TextBoxWidget::sizeHint() const {
  QSize size = QLineEdit::sizeHint();
  const int columns = columns_ == 0 ? kLeastColumns : columns_;
  // One digit more, as capitals are wider than digits.
  size.setWidth((columns + 1) * fontMetrics().horizontalAdvance(u'0') + 2 * kNear);
  if (!hasFrame()) size.setHeight(fontMetrics().height() + kTight);
  return size;
}

QSize TextBoxWidget::minimumSizeHint() const { return sizeHint(); }

bool TextBoxWidget::FileName() const { return box_.TextContent() == TextBox::Content::kFileName; }

QString TextBoxWidget::Shown(const std::string& bytes) const {
  return FromContent(bytes, box_.TextContent());
}

std::string TextBoxWidget::Bytes(const QString& shown) const {
  return ToContent(shown, box_.TextContent());
}

int TextBoxWidget::ByteAt(int unit) const {
  return static_cast<int>(Bytes(text().left(unit)).size());
}

int TextBoxWidget::UnitAt(int byte) const {
  return static_cast<int>(Shown(box_.Text().substr(0, static_cast<std::size_t>(byte))).size());
}

void TextBoxWidget::Draw() {
  if (in_step_) return;
  const QScopedValueRollback<bool> guard(in_step_, true);
  setReadOnly(box_.Locked());
  DrawText();
  const int start = UnitAt(box_.SelStart());
  const int length = UnitAt(box_.SelStart() + box_.SelLength()) - start;
  if (length == 0) {
    if (hasSelectedText() || cursorPosition() != start) setCursorPosition(start);
  } else if (selectionStart() != start || selectionLength() != length) {
    setSelection(start, length);
  }
}

void TextBoxWidget::DrawText() {
  const QString had = text();
  const QString has = Shown(box_.Text());
  if (had == has) return;
  if (!striking_) {
    setText(has);
    return;
  }
  // An edit of the difference alone, so that the operator can undo it.
  const auto shorter = std::min(had.size(), has.size());
  qsizetype same = 0;
  while (same < shorter && had[same] == has[same]) ++same;
  qsizetype tail = 0;
  while (tail < shorter - same && had[had.size() - 1 - tail] == has[has.size() - 1 - tail]) ++tail;
  setSelection(static_cast<int>(same), static_cast<int>(had.size() - same - tail));
  if (const QString middle = has.mid(same, has.size() - same - tail); middle.isEmpty()) {
    del();
  } else {
    insert(middle);
  }
}

void TextBoxWidget::TellSelection() {
  if (in_step_) return;
  const QScopedValueRollback<bool> guard(in_step_, true);
  if (!hasSelectedText()) {
    box_.Select(ByteAt(cursorPosition()), 0);
    return;
  }
  const int start = ByteAt(selectionStart());
  box_.Select(start, ByteAt(selectionEnd()) - start);
}

void TextBoxWidget::TellEdit() {
  if (in_step_) return;
  box_.Edit(Bytes(text()), ByteAt(cursorPosition()));
  Draw();
}

void TextBoxWidget::Strike(const QString& characters) {
  const QScopedValueRollback<bool> guard(striking_, true);
  if (FileName()) {
    // The bytes of a character come one by one; only the whole is shown.
    {
      const QScopedValueRollback<bool> whole(in_step_, true);
      box_.Type(Bytes(characters));
    }
    Draw();
    return;
  }
  box_.Type(KnownBytes(characters));
}

void TextBoxWidget::StrikeBackspace() {
  const QScopedValueRollback<bool> guard(striking_, true);
  const int caret = cursorPosition();
  if (FileName() && !hasSelectedText() && caret > 0) {
    // The whole character goes, however many bytes it has.
    const bool pair =
        caret > 1 && text()[caret - 1].isLowSurrogate() && text()[caret - 2].isHighSurrogate();
    const int start = ByteAt(caret - (pair ? 2 : 1));
    box_.Select(start, ByteAt(caret) - start);
  }
  box_.TypeKey(kKeyBackspace);
}

void TextBoxWidget::Paste(const QString& clip) {
  const QScopedValueRollback<bool> guard(striking_, true);
  const QString line = OneLine(clip.left(maxLength()));
  const std::string bytes = FileName() ? Bytes(line) : KnownBytes(line);
  if (!bytes.empty()) box_.Paste(bytes);
}

void TextBoxWidget::keyPressEvent(QKeyEvent* event) {
  if (!box_.Locked() && event->matches(QKeySequence::Paste)) {
    Paste(QApplication::clipboard()->text());
    return;
  }
  const int key = KeyCode(*event);
  const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool printable = !event->text().isEmpty() && event->text()[0].isPrint();
  const bool moves = key == kKeyCancelled && !printable;
  if (box_.Locked() || moves || IsEditCommand(*event)) {
    QLineEdit::keyPressEvent(event);
  } else if (printable && !command) {
    Strike(event->text());
  } else if (key == kKeyBackspace) {
    StrikeBackspace();
  } else if (key != kKeyCancelled) {
    box_.TypeKey(key);
  } else {
    event->ignore();
  }
}

void TextBoxWidget::inputMethodEvent(QInputMethodEvent* event) {
  // Only what has been composed reaches the box, so that nothing gets past its rules.
  if (!box_.Locked()) Strike(OneLine(event->commitString()));
  event->accept();
}

void TextBoxWidget::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
    paste->disconnect(this);
    connect(paste, &QAction::triggered, this, [this] { Paste(QApplication::clipboard()->text()); });
  }
  menu->popup(event->globalPos());
}

void TextBoxWidget::mouseReleaseEvent(QMouseEvent* event) {
  const QClipboard* clipboard = QApplication::clipboard();
  if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
    QLineEdit::mouseReleaseEvent(event);
  } else if (hasFocus()) {
    Paste(clipboard->text(QClipboard::Selection));
  }
}

void TextBoxWidget::dropEvent(QDropEvent* event) {
  setFocus(Qt::MouseFocusReason);
  event->setDropAction(Qt::CopyAction);
  event->accept();
  if (!hasFocus()) return;
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  Paste(event->mimeData()->text());
}

}  // namespace corvalis::desktop
