#include "desktop/radio/comparison_page.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/radio/copy.h"
#include "desktop/radio/copy_table.h"
#include "desktop/radio/in_words.h"
#include "desktop/radio/marks_delegate.h"
#include "desktop/text.h"
#include "desktop/widgets/look/style.h"
#include "radio/report.h"

namespace corvalis::desktop {

namespace {

constexpr int kRows = 10;
constexpr int kFindings = 5;
enum Column { kItem, kVerdict, kPrepared, kHeard, kRemark };

QString FromUtf8(const std::string& text) { return QString::fromStdString(text); }

// A text shows its blanks between quotes.
QString Shown(const radio::Row& row, const std::string& text) {
  const QString shown = FromUtf8(text);
  return radio::IsText(row.item) && !text.empty() ? u'"' + shown + u'"' : shown;
}

}  // namespace

ComparisonPage::ComparisonPage(radio::RadioForm& form, QWidget* parent)
    : QWidget(parent), form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, kGap, 0, 0);
  column->setSpacing(kNear);
  summary_ = new QLabel(this);
  summary_->setTextFormat(Qt::PlainText);
  summary_->setWordWrap(true);
  column->addWidget(summary_);
  table_ = new CopyTable(InWords("Comparison"),
                         {InWords("Item"), InWords("Verdict"), InWords("Prepared"),
                          InWords("Heard"), InWords("Remark")},
                         kRows, this);
  table_->setObjectName(QStringLiteral("RadioComparison"));
  table_->setItemDelegateForColumn(kPrepared, new MarksDelegate(table_));
  table_->setItemDelegateForColumn(kHeard, new MarksDelegate(table_));
  column->addWidget(table_, 1);
  column->addWidget(Buttons());
  findings_ = new QListWidget(this);
  findings_->setObjectName(QStringLiteral("RadioFindings"));
  findings_->setAccessibleName(InWords("What radios will not make of it"));
  findings_->setWordWrap(true);
  findings_->setFixedHeight(kFindings * kControlHeight);
  findings_->hide();
  connect(findings_, &QListWidget::itemClicked, this,
          [this](const QListWidgetItem* item) { Copy(*this, item->text()); });
  connect(new QShortcut(QKeySequence::Copy, findings_, nullptr, nullptr, Qt::WidgetShortcut),
          &QShortcut::activated, this, [this] {
            if (const auto* item = findings_->currentItem()) Copy(*this, item->text());
          });
  column->addWidget(findings_);
  ShowStation();
}

QWidget* ComparisonPage::Buttons() {
  auto* line = new QWidget(this);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kNear);
  const auto add = [&](const QString& word) {
    auto* button = new QPushButton(word, line);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
  };
  QPushButton* open = add(InWords("&Station file..."));
  again_ = add(InWords("&Read it again"));
  from_now_ = add(InWords("Compare from &now"));
  from_now_->setToolTip(InWords("Forget what was heard before: for after a SEND"));
  save_ = add(InWords("Save &as..."));
  row->addStretch();
  judge_ = add(InWords("What radios will not &make of it"));
  judge_->setCheckable(true);
  connect(open, &QPushButton::clicked, this, [this] { OpenAsked(); });
  connect(again_, &QPushButton::clicked, this, [this] { AgainAsked(); });
  connect(from_now_, &QPushButton::clicked, this, [this] { form_.CompareFromNow(); });
  connect(save_, &QPushButton::clicked, this, [this] { SaveAsked(); });
  connect(judge_, &QPushButton::toggled, this, [this](bool on) { ShowFindings(on); });
  return line;
}

void ComparisonPage::ShowStation() {
  const bool there = form_.Station() != nullptr;
  for (QPushButton* button : {again_, from_now_, save_, judge_}) button->setEnabled(there);
  ShowFindings(judge_->isChecked());
  shown_ = false;
  Show();
}

void ComparisonPage::ShowFindings(bool show) {
  findings_->setVisible(show && form_.Station() != nullptr);
  if (!show) return;
  findings_->clear();
  for (const std::string& finding : form_.Findings()) findings_->addItem(FromUtf8(finding));
  if (findings_->count() == 0) findings_->addItem(InWords("nothing to say against it"));
}

void ComparisonPage::Show() {
  if (shown_ && rows_ == form_.Rows()) return;
  shown_ = true;
  rows_ = form_.Rows();
  if (form_.Station() == nullptr) {
    summary_->setText(
        InWords("Open a station file, or drop it on the window, to hold it against what is heard. "
                "It is only read."));
  } else {
    summary_->setText(FromUtf8(form_.Station()->path) + QStringLiteral(": ") +
                      FromUtf8(radio::Summary(rows_)));
  }
  std::vector<QStringList> cells;
  for (const radio::Row& row : rows_) {
    const bool silent = row.verdict == radio::Verdict::kSilent;
    cells.push_back({FromUtf8(row.name), FromUtf8(radio::InWords(row)), Shown(row, row.prepared),
                     Shown(row, row.heard), silent ? QString() : FromUtf8(row.remark)});
  }
  table_->Show(cells);
  for (int i = 0; i < table_->rowCount(); ++i) {
    const radio::Row& row = rows_[static_cast<std::size_t>(i)];
    const int shift = radio::IsText(row.item) ? 1 : 0;
    table_->item(i, kPrepared)
        ->setData(MarksDelegate::kMarksRole, MarksDelegate::MarksOf(row.prepared_marks, shift));
    table_->item(i, kHeard)->setData(MarksDelegate::kMarksRole,
                                     MarksDelegate::MarksOf(row.heard_marks, shift));
    table_->item(i, kVerdict)
        ->setFont(row.verdict == radio::Verdict::kDiffers ||
                          row.verdict == radio::Verdict::kNotPrepared
                      ? Bold(table_->font())
                      : table_->font());
  }
}

std::string ComparisonPage::Save(const QString& path) const {
  return radio::SaveReport(form_.Rows(), ToFileName(path));
}

}  // namespace corvalis::desktop
