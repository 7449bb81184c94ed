// Message boxes as they stand on the screen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <memory>

#include "desktop/qt_dialogs.h"

namespace corvalis::desktop {
namespace {

// Shows the box and does `work` with it while it is there.
void Show(const Box& box, const std::function<void(QMessageBox&)>& work) {
  QMessageBox* shown = nullptr;
  QTimer::singleShot(0, qApp, [&] {
    shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (shown != nullptr) work(*shown);
  });
  QtDialogs().Show(box);
  EXPECT_NE(shown, nullptr);
}

TEST(DialogsTest, ABoxShowsItsTextAsItStands) {
  const Box box = {"PI:   [ TX ] <b>&serial</b>  \x80   ", "Serial \xFC", BoxStyle::kCritical, "",
                   0};
  Show(box, [](QMessageBox& shown) {
    const auto* label = shown.findChild<QLabel*>("qt_msgbox_label");
    EXPECT_EQ(label->text(), QStringLiteral(u"PI:   [ TX ] <b>&serial</b>  \u20AC   "));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(shown.windowTitle(), QStringLiteral(u"Serial \u00FC"));
    EXPECT_EQ(shown.icon(), QMessageBox::Critical);
    EXPECT_EQ(shown.buttons().size(), 1);
    shown.button(QMessageBox::Ok)->click();
  });
}

TEST(DialogsTest, ABoxGoesWithItsOwner) {
  auto owner = std::make_unique<QWidget>();
  owner->show();
  QApplication::setActiveWindow(owner.get());
  owner->setEnabled(false);  // as a screen is during a transfer
  Show({"gone", "", BoxStyle::kWarning, "", 0}, [&](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), owner.get());
    EXPECT_TRUE(box.button(QMessageBox::Ok)->isEnabled());
    owner.reset();
  });
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace corvalis::desktop
