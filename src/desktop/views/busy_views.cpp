#include "desktop/views/busy_views.h"

#include "desktop/widgets/brand_header.h"
#include "desktop/widgets/button_widget.h"
#include "desktop/widgets/label_widget.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/progress_bar_widget.h"
#include "desktop/widgets/style.h"

namespace corvalis::desktop {

WaitView::WaitView(WaitForm& form) : WindowView(form.window) {
  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(new BrandHeader(form.marks, nullptr, this));
  column->addWidget(new LabelWidget(form.WaitMessage, this));
  column->addWidget(new ProgressBarWidget(form.WaitBar, this));
}

QPoint WaitView::PlaceOver(const QRect& owner) const {
  const QPoint middle = WindowView::PlaceOver(owner);
  return {middle.x(), owner.bottom() - height() - 2 * kApart};
}

SerialCommunicationView::SerialCommunicationView(SerialCommunicationForm& form)
    : WindowView(form.window) {
  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(new ProgressBarWidget(form.ProgressBar1, this));
  column->addWidget(new ButtonWidget(form.Command1, this), 0, Qt::AlignHCenter);
}

}  // namespace corvalis::desktop
