#include "desktop/widgets/look/style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>

#include "desktop/widgets/look/signs.h"

namespace corvalis::desktop {

namespace {

constexpr double kCorner = 4;
constexpr double kRing = 2;
constexpr Length kArrowWidth{28};
constexpr Length kSquare{18};  // of a check box
constexpr int kFirstRepeatMs = 400;
constexpr int kRepeatMs = 60;

void Box(QPainter& painter, const QRect& rect, QRgb ground, QRgb border, double width) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(border), width));
  painter.setBrush(QColor(ground));
  const double inset = width / 2;
  painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);
  painter.restore();
}

FieldLook LookOf(const QStyleOption& option) {
  return {.enabled = option.state.testFlag(QStyle::State_Enabled),
          .focus = option.state.testFlag(QStyle::State_HasFocus),
          .display_only = option.state.testFlag(QStyle::State_ReadOnly)};
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const bool focus = enabled && option.state.testFlag(QStyle::State_HasFocus);
  QRgb ground = enabled ? colours::kField : colours::kWindow;
  if (enabled && option.state.testFlag(QStyle::State_MouseOver)) ground = colours::kHover;
  if (option.state & (QStyle::State_Sunken | QStyle::State_On)) ground = colours::kPressed;
  QRgb border = enabled ? colours::kBorder : colours::kFaintBorder;
  if (focus) border = colours::kAccent;
  Box(painter, option.rect, ground, border, focus ? kRing : 1);
}

void DrawTab(QPainter& painter, const QStyleOptionTab& tab) {
  const bool selected = tab.state.testFlag(QStyle::State_Selected);
  if (!selected && tab.state.testFlag(QStyle::State_MouseOver)) {
    painter.fillRect(tab.rect, QColor(colours::kHover));
  }
  if (selected) {
    QRect line = tab.rect;
    line.setTop(line.bottom() - 2);
    const bool enabled = tab.state.testFlag(QStyle::State_Enabled);
    painter.fillRect(line, QColor(enabled ? colours::kAccent : colours::kBorder));
    const bool focus = tab.state.testFlag(QStyle::State_HasFocus);
    if (focus) DrawFocusRing(painter, tab.rect.adjusted(0, 0, 0, -kTight));
  }
}

// The palette of the box says its colours: `Highlight` checked, `Dark` not.
void DrawCheckBox(QPainter& painter, const QStyleOption& option) {
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const bool checked = option.state.testFlag(QStyle::State_On);
  QRgb edge = option.palette.color(checked ? QPalette::Highlight : QPalette::Dark).rgb();
  QRgb fill = checked ? edge : colours::kField;
  if (enabled && !checked && option.state.testFlag(QStyle::State_MouseOver)) fill = colours::kHover;
  if (!enabled) {
    edge = colours::kDisabledText;
    fill = checked ? edge : colours::kWindow;
  }
  Box(painter, option.rect, fill, edge, 1);
  if (!checked) return;
  const QRectF square = option.rect;
  const auto at = [&square](double x, double y) {
    return square.topLeft() + QPointF(x * square.width(), y * square.height());
  };
  const QPointF tick[] = {at(0.25, 0.53), at(0.42, 0.70), at(0.75, 0.31)};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(colours::kField), square.width() / 9, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.drawPolyline(tick, 3);
  painter.restore();
}

void DrawRadioButton(QPainter& painter, const QStyleOption& option) {
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const QRectF circle = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(enabled ? colours::kBorder : colours::kDisabledText), 1));
  painter.setBrush(QColor(enabled ? colours::kField : colours::kWindow));
  painter.drawEllipse(circle);
  if (option.state.testFlag(QStyle::State_On)) {
    const double inset = circle.width() / 4;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(enabled ? colours::kAccent : colours::kDisabledText));
    painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
  }
  painter.restore();
}

void DrawBar(QPainter& painter, const QStyleOptionProgressBar& bar) {
  painter.fillRect(bar.rect, QColor(colours::kFaintBorder));
  QRectF full = bar.rect;
  full.setWidth(full.width() * (bar.progress - bar.minimum) / (bar.maximum - bar.minimum));
  painter.fillRect(full, QColor(colours::kAccent));
}

// The arrows of a spinner alone: its number stands in a box beside it.
void DrawSpinner(QPainter& painter, const QStyleOptionSpinBox& spinner, const QRect& up,
                 const QRect& down) {
  if (spinner.state.testFlag(QStyle::State_Sunken)) {
    const bool upper = spinner.activeSubControls.testFlag(QStyle::SC_SpinBoxUp);
    painter.fillRect(upper ? up : down, QColor(colours::kPressed));
  }
  const bool enabled = spinner.state.testFlag(QStyle::State_Enabled);
  DrawArrow(painter, QRectF(up).translated(0, 1), true, enabled);
  DrawArrow(painter, QRectF(down).translated(0, -1), false, enabled);
  // Within a field, the field shows the focus.
  if (spinner.frame && spinner.state.testFlag(QStyle::State_HasFocus)) {
    DrawFocusRing(painter, spinner.rect);
  }
}

}  // namespace

void DrawField(QPainter& painter, const QRect& rect, FieldLook look) {
  const bool focus = look.focus && look.enabled;
  QRgb ground = look.display_only ? colours::kDisplay : colours::kField;
  if (!look.enabled) ground = colours::kWindow;
  QRgb border = look.display_only || !look.enabled ? colours::kFaintBorder : colours::kBorder;
  if (focus) border = colours::kAccent;
  Box(painter, rect, ground, border, focus ? kRing : 1);
}

void DrawFocusRing(QPainter& painter, const QRect& rect) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(colours::kAccent), kRing));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect).adjusted(1, 1, -1, -1), kCorner, kCorner);
  painter.restore();
}

void DrawArrow(QPainter& painter, const QRectF& rect, bool up, bool enabled) {
  const int half_width = kTight;
  const double tip = (up ? -half_width : half_width) / 2.0;
  const QPointF middle = rect.center();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(enabled ? colours::kText : colours::kDisabledText), 1.6, Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
  const QPointF points[] = {middle + QPointF(-half_width, -tip), middle + QPointF(0, tip),
                            middle + QPointF(half_width, -tip)};
  painter.drawPolyline(points, 3);
  painter.restore();
}

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  switch (element) {
    case PE_PanelButtonCommand:
      DrawButton(*painter, *option);
      return;
    case PE_IndicatorRadioButton:
      DrawRadioButton(*painter, *option);
      return;
    case PE_IndicatorCheckBox:
      DrawCheckBox(*painter, *option);
      return;
    case PE_PanelLineEdit: {
      const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      if (frame != nullptr && frame->lineWidth > 0) {
        DrawField(*painter, option->rect, LookOf(*option));
      }
      return;
    }
    case PE_Frame:
      if (qobject_cast<const QAbstractItemView*>(widget) != nullptr ||
          qobject_cast<const QPlainTextEdit*>(widget) != nullptr) {
        FieldLook look = LookOf(*option);
        const auto* text = qobject_cast<const QPlainTextEdit*>(widget);
        look.display_only = text != nullptr && text->isReadOnly();
        look.focus = widget->hasFocus() || widget->isAncestorOf(QApplication::focusWidget());
        DrawField(*painter, option->rect, look);
        return;
      }
      break;
    case PE_FrameGroupBox:
      Box(*painter, option->rect, colours::kCard, colours::kFaintBorder, 1);
      return;
    case PE_FrameTabWidget:
    case PE_FrameTabBarBase: {
      QRect line = option->rect;
      line.setHeight(1);
      painter->fillRect(line, QColor(colours::kFaintBorder));
      return;
    }
    case PE_FrameFocusRect:
      // Buttons and lists show the focus by their own frame.
      if (qobject_cast<const QPushButton*>(widget) == nullptr &&
          qobject_cast<const QAbstractItemView*>(widget) == nullptr) {
        DrawFocusRing(*painter, option->rect);
      }
      return;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  if (element == CE_TabBarTabShape) {
    if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
      DrawTab(*painter, *tab);
      return;
    }
  }
  if (element == CE_ProgressBar) {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option)) {
      DrawBar(*painter, *bar);
      return;
    }
  }
  if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
    painter->fillRect(option->rect, QColor(colours::kWindow));
    painter->setPen(QColor(colours::kFaintBorder));
    painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option,
                            const QWidget* widget) const {
  switch (element) {
    case SE_CheckBoxClickRect:
    case SE_CheckBoxFocusRect:
      return option->rect;
    case SE_CheckBoxIndicator:
    case SE_CheckBoxContents:
      return QProxyStyle::subElementRect(element, option, widget).translated(kTight, 0);
    default:
      return QProxyStyle::subElementRect(element, option, widget);
  }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
  if (control == CC_ComboBox) {
    DrawField(*painter, option->rect, LookOf(*option));
    QRect arrow = option->rect;
    arrow.setLeft(arrow.right() - kArrowWidth);
    DrawArrow(*painter, arrow, false, option->state.testFlag(State_Enabled));
    return;
  }
  if (control == CC_SpinBox) {
    if (const auto* spinner = qstyleoption_cast<const QStyleOptionSpinBox*>(option)) {
      DrawSpinner(*painter, *spinner, subControlRect(control, spinner, SC_SpinBoxUp, widget),
                  subControlRect(control, spinner, SC_SpinBoxDown, widget));
      return;
    }
  }
  if (control == CC_GroupBox) {
    if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
      QStyleOption frame = *box;
      frame.rect = subControlRect(CC_GroupBox, box, SC_GroupBoxFrame, widget);
      drawPrimitive(PE_FrameGroupBox, &frame, painter, widget);
      painter->save();
      painter->setFont(Bold(painter->font()));
      painter->setPen(QColor(box->state.testFlag(State_Enabled) ? colours::kQuietText
                                                                : colours::kDisabledText));
      QRect title = option->rect;
      title.setBottom(frame.rect.top() - kTight);
      title.adjust(1, 0, 0, 0);
      painter->drawText(title, Qt::AlignLeft | Qt::AlignBottom | Qt::TextShowMnemonic, box->text);
      painter->restore();
      return;
    }
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const {
  if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
    // The text begins where that of a text box does.
    return option->rect.adjusted(kNear - 2, kTight / 2, -kArrowWidth, -kTight / 2);
  }
  if (control == CC_SpinBox) {
    const QRect& whole = option->rect;
    const int upper = whole.height() / 2;
    if (part == SC_SpinBoxUp) return {whole.left(), whole.top(), whole.width(), upper};
    if (part == SC_SpinBoxDown) return whole.adjusted(0, upper, 0, 0);
    return part == SC_SpinBoxFrame ? whole : QRect();
  }
  if (control == CC_GroupBox && (part == SC_GroupBoxFrame || part == SC_GroupBoxContents)) {
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    QRect frame = option->rect;
    if (box != nullptr && !box->text.isEmpty() && widget != nullptr) {
      frame.setTop(frame.top() + QFontMetrics(Bold(widget->font())).height() + kTight);
    }
    return frame;
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
  QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
  switch (type) {
    case CT_PushButton:
      return whole.expandedTo(QSize(size.width() + 2 * kApart, kControlHeight));
    case CT_ComboBox:
      return whole.expandedTo(QSize(size.width() + kArrowWidth + kApart, kControlHeight));
    case CT_LineEdit:
      return whole.expandedTo(QSize(0, kControlHeight));
    case CT_TabBarTab:
      return whole.expandedTo(QSize(size.width() + kApart, kControlHeight + kTight));
    case CT_ItemViewItem:
      return whole + QSize(0, kTight);
    case CT_CheckBox:
      return whole + QSize(2 * kTight, 2 * kTight);
    default:
      return whole;
  }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
  switch (metric) {
    case PM_DefaultFrameWidth:
      return static_cast<int>(kRing);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return kNear;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
      return kGap;
    case PM_HeaderMargin:
      return kNear;
    case PM_FocusFrameHMargin:
      return kTight;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
      return kSquare;
    case PM_CheckBoxLabelSpacing:
      return kNear;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
      return 0;
    case PM_ToolTipLabelFrameWidth:
      return kTight;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QIcon Style::standardIcon(StandardPixmap picture, const QStyleOption* option,
                          const QWidget* widget) const {
  const QIcon sign = SignOf(picture);
  return sign.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : sign;
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
  switch (hint) {
    case SH_ItemView_ActivateItemOnSingleClick:
    case SH_ComboBox_Popup:
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
      return 0;
    case SH_ToolTipLabel_Opacity:
      return 255;
    case SH_SpinBox_ClickAutoRepeatThreshold:
      return kFirstRepeatMs;
    case SH_SpinBox_ClickAutoRepeatRate:
      return kRepeatMs;
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

}  // namespace corvalis::desktop
