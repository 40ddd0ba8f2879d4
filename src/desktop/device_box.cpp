// Tells when the list opens or the field is entered, and gives the list its width.
#include "desktop/device_box.h"

#include <QAbstractItemView>
#include <QFocusEvent>

#include <algorithm>

namespace zepril {

DeviceBox::DeviceBox(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
}

void DeviceBox::showPopup() {
  if (ListOpens) ListOpens();
  // Names of devices are longer than the field.
  constexpr int kEdge = 24;
  constexpr int kWidest = 640;
  view()->setMinimumWidth(std::min(view()->sizeHintForColumn(0) + kEdge, kWidest));
  QComboBox::showPopup();
}

void DeviceBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  // When its own list closes the field gets the focus back: nothing is new then.
  if (event->reason() != Qt::PopupFocusReason && Entered) Entered();
}

}  // namespace zepril
