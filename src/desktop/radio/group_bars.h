#pragma once

#include <QWidget>
#include <array>

#include "radio/face.h"

namespace corvalis::desktop {

/// How often each of the 32 groups comes, as bars beside each other: its share of the last minute,
/// and before it, as a frame, that of the group sequence. The arrows go from bar to bar, and the
/// words of the one that is chosen stand below; a press, or Ctrl+C, copies them.
class GroupBars : public QWidget {
 public:
  explicit GroupBars(QWidget* parent);

  void Show(const std::array<radio::Face::Group, air::kGroupKinds>& groups);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  static constexpr int kInLine = air::kGroupKinds / 2;

  [[nodiscard]] QRectF PlaceOf(int group) const;
  [[nodiscard]] int GroupAt(const QPointF& point) const;  // -1: none
  [[nodiscard]] QString WordsOf(int group) const;
  void Choose(int group);
  void Call();
  void PaintBar(QPainter& painter, int group) const;

  std::array<radio::Face::Group, air::kGroupKinds> groups_;
  int chosen_ = 0;
  double whole_ = 0.25;  // the share that fills a bar
};

}  // namespace corvalis::desktop
