#pragma once

#include <QScrollArea>
#include <vector>

#include "radio/face.h"
#include "screen/band_strip.h"
#include "screen/window.h"

class QGridLayout;
class QLabel;

namespace corvalis::desktop {

class CopyTable;
class GroupBars;
class LampItem;
class ShownItem;

/// What the listener sees, and what stands behind it. It scrolls where it has no room.
class FacePage : public QScrollArea {
 public:
  explicit FacePage(QWidget* parent);

  void Show(const radio::Face& face);

 private:
  QWidget* Display(QWidget* parent);
  QWidget* Facts(QWidget* parent);
  QWidget* Texts(QWidget* parent);
  QWidget* Frequencies(QWidget* parent);
  QWidget* Networks(QWidget* parent);
  QWidget* Groups(QWidget* parent);
  QWidget* Data(QWidget* parent);
  void ShowLamps(const radio::Face& face);
  void ShowFacts(const radio::Face& face);
  void ShowFrequencies(const radio::Face& face);
  void ShowTables(const radio::Face& face);

  radio::Face face_;
  bool shown_ = false;

  // The strip is the picture of a control, which wants a window.
  Window window_{this, "FacePage"};
  BandStrip strip_{window_, "RadioBandStrip"};

  ShownItem* name_;
  std::vector<ShownItem*> lines_;
  QLabel* text_state_;
  QGridLayout* lamps_layout_;
  std::vector<LampItem*> lamps_;
  QGridLayout* facts_layout_;
  std::vector<ShownItem*> facts_;
  CopyTable* texts_;
  CopyTable* methods_;
  CopyTable* networks_;
  CopyTable* data_;
  GroupBars* bars_;
  ShownItem* traffic_;
};

}  // namespace corvalis::desktop
