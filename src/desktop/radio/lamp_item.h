#pragma once

#include "desktop/radio/shown_item.h"
#include "radio/face.h"

namespace corvalis::desktop {

/// A lamp of the radio: its name, and below it in words how it is.
class LampItem : public ShownItem {
 public:
  LampItem(const QString& name, QWidget* parent);

  void Show(const radio::Face::Lamp& lamp);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void Dress() override;

 private:
  bool lit_ = false;
  bool announces_ = false;
};

}  // namespace corvalis::desktop
