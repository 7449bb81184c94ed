#include "desktop/radio/face_page.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <algorithm>

#include "desktop/radio/copy_table.h"
#include "desktop/radio/group_bars.h"
#include "desktop/radio/in_words.h"
#include "desktop/radio/lamp_item.h"
#include "desktop/radio/shown_item.h"
#include "desktop/text.h"
#include "desktop/widgets/look/band_strip_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

constexpr double kNameScale = 4.4;
constexpr double kTextScale = 1.35;
constexpr int kLampsInLine = 4;
constexpr int kLineCharacters = 32;
constexpr int kTextRows = 8;
constexpr int kMethodRows = 2;
constexpr int kNetworkRows = 4;
constexpr int kDataRows = 4;
constexpr int kBytesColumn = 1;
constexpr Length kBytesWidth{110};

QString FromUtf8(const std::string& text) { return QString::fromStdString(text); }

QFont Letters(double scale) {
  QFont font = DigitsFont();
  font.setPointSizeF(scale * QFontInfo(font).pointSizeF());
  return font;
}

QVBoxLayout* Inside(QGroupBox* group) {
  auto* column = new QVBoxLayout(group);
  column->setSpacing(kNear);
  return column;
}

}  // namespace

FacePage::FacePage(QWidget* parent) : QScrollArea(parent) {
  setObjectName(QStringLiteral("FacePage"));
  setFrameShape(NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  auto* page = new QWidget(this);
  auto* both = new QHBoxLayout(page);
  both->setContentsMargins(0, kGap, kNear, kGap);
  both->setSpacing(kApart);
  auto* left = new QVBoxLayout;
  left->setSpacing(kGap);
  left->addWidget(Display(page));
  left->addWidget(Texts(page), 1);
  left->addWidget(Groups(page));
  auto* right = new QVBoxLayout;
  right->setSpacing(kGap);
  right->addWidget(Facts(page));
  right->addWidget(Frequencies(page));
  right->addWidget(Networks(page), 1);
  right->addWidget(Data(page), 1);
  both->addLayout(left, 4);
  both->addLayout(right, 5);
  setWidget(page);
}

QWidget* FacePage::Display(QWidget* parent) {
  auto* group = new QGroupBox(InWords("The radio shows"), parent);
  QVBoxLayout* column = Inside(group);
  name_ = new ShownItem(QStringLiteral("PS"), group);
  name_->setObjectName(QStringLiteral("RadioName"));
  name_->setFont(Letters(kNameScale));
  name_->setMinimumWidth(name_->fontMetrics().horizontalAdvance(QString(8, u'W')) + 2 * kNear);
  column->addWidget(name_, 0, Qt::AlignLeft);
  for (int line = 0; line < 2; ++line) {
    lines_.push_back(new ShownItem(InWords("RT, line %1", {std::to_string(line + 1)}), group));
    lines_.back()->setObjectName(QStringLiteral("RadioText%1").arg(line + 1));
    lines_.back()->setFont(Letters(kTextScale));
    lines_.back()->setMinimumWidth(
        lines_.back()->fontMetrics().horizontalAdvance(QString(kLineCharacters, u'0')) + 2 * kNear);
    column->addWidget(lines_.back());
  }
  text_state_ = QuietText(QString(), group);
  column->addWidget(text_state_);
  column->addStretch();
  lamps_layout_ = new QGridLayout;
  lamps_layout_->setSpacing(kTight);
  column->addLayout(lamps_layout_);
  return group;
}

QWidget* FacePage::Facts(QWidget* parent) {
  auto* group = new QGroupBox(InWords("Station"), parent);
  facts_layout_ = new QGridLayout(group);
  facts_layout_->setHorizontalSpacing(kGap);
  facts_layout_->setVerticalSpacing(kTight);
  facts_layout_->setColumnStretch(1, 1);
  return group;
}

QWidget* FacePage::Texts(QWidget* parent) {
  auto* group = new QGroupBox(InWords("The last texts"), parent);
  texts_ = new CopyTable(group->title(), {InWords("Heard at"), InWords("Text")}, kTextRows, group);
  texts_->setObjectName(QStringLiteral("RadioTexts"));
  Inside(group)->addWidget(texts_);
  return group;
}

QWidget* FacePage::Frequencies(QWidget* parent) {
  auto* group = new QGroupBox(InWords("Alternative frequencies"), parent);
  QVBoxLayout* column = Inside(group);
  column->addWidget(new BandStripWidget(strip_, group));
  methods_ = new CopyTable(group->title(), {InWords("Lists, by their method")}, kMethodRows, group);
  methods_->horizontalHeader()->hide();
  column->addWidget(methods_, 1);
  return group;
}

QWidget* FacePage::Networks(QWidget* parent) {
  auto* group = new QGroupBox(InWords("Other networks"), parent);
  networks_ = new CopyTable(
      group->title(),
      {QStringLiteral("PS"), QStringLiteral("PI"), QStringLiteral("PTY"), QStringLiteral("TP"),
       QStringLiteral("TA"), InWords("Frequencies"), InWords("Linkage"), QStringLiteral("PIN")},
      kNetworkRows, group);
  networks_->setObjectName(QStringLiteral("RadioNetworks"));
  Inside(group)->addWidget(networks_);
  return group;
}

QWidget* FacePage::Groups(QWidget* parent) {
  auto* group = new QGroupBox(InWords("Groups of the last minute"), parent);
  QVBoxLayout* column = Inside(group);
  bars_ = new GroupBars(group);
  column->addWidget(bars_);
  traffic_ = new ShownItem(InWords("Groups"), group);
  column->addWidget(traffic_);
  column->addStretch();
  return group;
}

QWidget* FacePage::Data(QWidget* parent) {
  auto* group = new QGroupBox(InWords("Traffic messages, channels and in-house pages"), parent);
  data_ = new CopyTable(group->title(), {InWords("What"), InWords("Bytes"), InWords("Text")},
                        kDataRows, group);
  data_->Limit(kBytesColumn, kBytesWidth);
  Inside(group)->addWidget(data_);
  return group;
}

void FacePage::Show(const radio::Face& face) {
  if (shown_ && face == face_) return;
  shown_ = true;
  face_ = face;
  const bool not_heard = face.name.hearing != air::Hearing::kHeard;
  name_->SetName(QStringLiteral("PS, ") + FromUtf8(face.name_state));
  name_->Display(FromUtf8(face.name.text), not_heard);
  const bool building = face.text.hearing != air::Hearing::kHeard;
  for (std::size_t line = 0; line < lines_.size(); ++line) {
    // What does not go into two lines stands behind the second.
    std::string text = face.text_lines[line];
    for (std::size_t more = lines_.size(); line == 1 && more < face.text_lines.size(); ++more) {
      text += face.text_lines[more];
    }
    lines_[line]->Display(FromUtf8(text), FromUtf8(face.text.text), building);
  }
  text_state_->setText(QStringLiteral("PS: ") + FromUtf8(face.name_state) +
                       QStringLiteral("; RT: ") + FromUtf8(face.text_state));
  ShowLamps(face);
  ShowFacts(face);
  ShowFrequencies(face);
  ShowTables(face);
  bars_->Show(face.groups);
  traffic_->Display(FromUtf8(face.traffic));
}

void FacePage::ShowLamps(const radio::Face& face) {
  for (std::size_t i = lamps_.size(); i < face.lamps.size(); ++i) {
    const int at = static_cast<int>(i);
    lamps_.push_back(new LampItem(FromUtf8(face.lamps[i].name), lamps_layout_->parentWidget()));
    lamps_.back()->setObjectName(QStringLiteral("RadioLamp%1").arg(at + 1));
    lamps_layout_->addWidget(lamps_.back(), at / kLampsInLine, at % kLampsInLine);
  }
  for (std::size_t i = 0; i < lamps_.size(); ++i) lamps_[i]->Show(face.lamps[i]);
}

void FacePage::ShowFacts(const radio::Face& face) {
  for (std::size_t i = facts_.size(); i < face.facts.size(); ++i) {
    QWidget* const group = facts_layout_->parentWidget();
    const QString name = FromUtf8(face.facts[i].name);
    const int row = static_cast<int>(i);
    facts_layout_->addWidget(QuietText(name, group), row, 0);
    facts_.push_back(new ShownItem(name, group));
    facts_layout_->addWidget(facts_.back(), row, 1);
  }
  for (std::size_t i = 0; i < facts_.size(); ++i) {
    facts_[i]->Display(FromUtf8(face.facts[i].text), face.facts[i].hearing != air::Hearing::kHeard);
  }
}

void FacePage::ShowFrequencies(const radio::Face& face) {
  std::vector<BandMark> marks;
  for (const auto& mark : face.marks) {
    marks.push_back({.mhz = mark.mhz, .text = mark.text, .main = mark.tuned});
  }
  strip_.SetMarks(marks);
  strip_.SetBeside(face.marks_beside);
  std::vector<QStringList> methods;
  for (const auto& method : face.methods) methods.push_back({FromUtf8(method)});
  methods_->Show(methods);
}

void FacePage::ShowTables(const radio::Face& face) {
  std::vector<QStringList> rows;
  for (const auto& text : face.texts) rows.push_back({FromUtf8(text.time), FromUtf8(text.text)});
  texts_->Show(rows);
  rows.clear();
  std::vector<bool> loud;
  for (const auto& network : face.networks) {
    QStringList cells;
    for (const std::string& cell : network.cells) cells << FromUtf8(cell);
    rows.push_back(cells);
    loud.push_back(network.announces);
  }
  networks_->Show(rows, loud);
  rows.clear();
  for (const auto& data : face.data) {
    rows.push_back({FromUtf8(data.what), FromUtf8(data.bytes), FromUtf8(data.text)});
  }
  data_->Show(rows);
}

}  // namespace corvalis::desktop
