#include "desktop/widgets/texts/memo_widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "desktop/text.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"
#include "screen/keys.h"

namespace corvalis::desktop {

namespace {

// That a paste brings the box to; one line of a megabyte takes a minute to be laid out.
constexpr qsizetype kLongestText = 16'384;
constexpr int kFrame = 2;  // the rest of what a box of one line has

/// The length of the line end at `at`: CR LF, CR or LF; 0 if there is none.
std::size_t LineEnd(const std::string& bytes, std::size_t at) {
  if (bytes[at] == '\n') return 1;
  if (bytes[at] != '\r') return 0;
  return at + 1 < bytes.size() && bytes[at + 1] == '\n' ? 2 : 1;
}

/// The text with one '\n' per line end, as the widget counts.
QString Shown(const std::string& bytes) {
  std::string lines;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = LineEnd(bytes, at);
    lines += end == 0 ? bytes[at] : '\n';
    at += std::max<std::size_t>(end, 1);
  }
  return FromBytes(lines);
}

/// The byte at which the widget's position `unit` lies.
std::size_t ByteAt(const std::string& bytes, qsizetype unit) {
  std::size_t at = 0;
  for (; unit > 0 && at < bytes.size(); --unit) {
    at += std::max<std::size_t>(LineEnd(bytes, at), 1);
  }
  return at;
}

qsizetype UnitAt(const std::string& bytes, int at) {
  return Shown(bytes.substr(0, static_cast<std::size_t>(at))).size();
}

std::string WithLineEnds(const QString& text) {
  return ToBytes(QString(text).replace(u'\n', QStringLiteral("\r\n")));
}

}  // namespace

MemoWidget::MemoWidget(TextBox& box, QWidget* parent) : QPlainTextEdit(parent), box_(box) {
  setTabChangesFocus(true);
  document()->setDocumentMargin(kNear - kFrame);
  connect(this, &QPlainTextEdit::textChanged, this, [this] { TellEdit(); });
  connect(this, &QPlainTextEdit::selectionChanged, this, [this] { TellSelection(); });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { TellSelection(); });
  Bind(*this, box, [this] { Draw(); });
  FollowScheme(*this, [this] { Dress(); });
}

// What only shows stands on another ground.
void MemoWidget::Dress() {
  QPalette palette = parentWidget()->palette();
  if (isReadOnly()) {
    palette.setColor(QPalette::Active, QPalette::Base, QColor(colours::kDisplay));
    palette.setColor(QPalette::Inactive, QPalette::Base, QColor(colours::kDisplay));
  }
  setPalette(palette);
}

QString MemoWidget::Plain() const {
  // Not toPlainText(), which turns a no-break space into a blank.
  QString text = document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

void MemoWidget::Draw() {
  if (in_step_) return;
  const QScopedValueRollback<bool> guard(in_step_, true);
  if (isReadOnly() != box_.Locked()) {
    setReadOnly(box_.Locked());
    Dress();
  }
  if (const std::string& text = box_.Text(); shown_ != text || Plain() != Shown(text)) {
    const QString had = Plain();
    const QString has = Shown(text);
    // A record that only grows stays as it is being looked at. What can be edited is begun anew, so
    // that nobody undoes it into a text of before.
    if (isReadOnly() && !had.isEmpty() && has.startsWith(had)) {
      QTextCursor end(document());
      end.movePosition(QTextCursor::End);
      end.insertText(has.mid(had.size()));
      verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    } else if (had != has) {
      setPlainText(has);
    }
    shown_ = text;
  }
  if (box_.SelLength() > 0) {
    const auto start = static_cast<int>(UnitAt(shown_, box_.SelStart()));
    const auto end = static_cast<int>(UnitAt(shown_, box_.SelStart() + box_.SelLength()));
    QTextCursor cursor = textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
  }
}

void MemoWidget::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  update();
}

void MemoWidget::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  update();
}

void MemoWidget::TellEdit() {
  if (in_step_) return;
  const QString had = Shown(shown_);
  const QString has = Plain();
  if (had != has) {
    const auto shorter = std::min(had.size(), has.size());
    qsizetype same = 0;
    while (same < shorter && had[same] == has[same]) ++same;
    qsizetype tail = 0;
    while (tail < shorter - same && had[had.size() - 1 - tail] == has[has.size() - 1 - tail]) {
      ++tail;
    }
    const std::size_t from = ByteAt(shown_, same);
    const std::size_t to = ByteAt(shown_, had.size() - tail);
    std::string text = shown_;
    text.replace(from, to - from, WithLineEnds(has.mid(same, has.size() - same - tail)));
    {
      const QScopedValueRollback<bool> guard(in_step_, true);
      shown_ = text;
      box_.Edit(text, static_cast<int>(ByteAt(text, textCursor().position())));
    }
  }
  Draw();
}

void MemoWidget::TellSelection() {
  if (in_step_ || Plain() != Shown(shown_)) return;  // an edit is under way, and will be told
  const QScopedValueRollback<bool> guard(in_step_, true);
  const QTextCursor cursor = textCursor();
  const auto start = static_cast<int>(ByteAt(shown_, cursor.selectionStart()));
  const auto end = static_cast<int>(ByteAt(shown_, cursor.selectionEnd()));
  box_.Select(start, end - start);
}

bool MemoWidget::Allowed(int& key) const {
  if (!box_.TakesEvents() || box_.Locked()) return false;
  if (box_.KeyPress) box_.KeyPress(key);
  return key != kKeyCancelled;
}

void MemoWidget::Strike(int key) {
  if (!Allowed(key)) return;
  if (key == kKeyBackspace) {
    textCursor().deletePreviousChar();
  } else if (key == '\r') {
    textCursor().insertText(QStringLiteral("\n"));
  } else if (key >= ' ') {
    textCursor().insertText(FromBytes(std::string(1, static_cast<char>(key))));
  }
  ensureCursorVisible();
}

void MemoWidget::keyPressEvent(QKeyEvent* event) {
  const int key = KeyCode(*event);
  const bool character = key >= ' ' || key == kKeyBackspace || key == '\r';
  const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool printable = !event->text().isEmpty() && event->text()[0].isPrint();
  if (!isReadOnly() && character) {
    Strike(key);
  } else if (!isReadOnly() && printable && !command) {
    QApplication::beep();  // a character that the code page lacks
  } else if (key == kKeyEscape) {
    box_.TypeKey(key);
  } else {
    QPlainTextEdit::keyPressEvent(event);
  }
}

void MemoWidget::inputMethodEvent(QInputMethodEvent* event) {
  // Only what has been composed reaches the box, so that nothing gets past its rules.
  for (const char byte : KnownBytes(event->commitString())) {
    Strike(static_cast<unsigned char>(byte));
  }
  event->accept();
}

void MemoWidget::insertFromMimeData(const QMimeData* source) {
  int key = kKeyPaste;
  if (!source->hasText() || !Allowed(key)) return;
  const QTextCursor cursor = textCursor();
  const qsizetype selected = cursor.selectionEnd() - cursor.selectionStart();
  const qsizetype room = std::max<qsizetype>(kLongestText - Plain().size() + selected, 0);
  QString text = Shown(KnownBytes(source->text().left(2 * kLongestText)));
  if (text.size() > room) {
    text.truncate(room);
    QApplication::beep();
  }
  textCursor().insertText(text);
  ensureCursorVisible();
}

}  // namespace corvalis::desktop
