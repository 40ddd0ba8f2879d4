// A field for a serial device: typed, or chosen from a list that is made when it is wanted.
#pragma once

#include <QComboBox>

#include "platform/event.h"

namespace zepril {

class DeviceBox final : public QComboBox {
 public:
  explicit DeviceBox(QWidget* parent = nullptr);
  void showPopup() override;

  // The list is about to open; its entries may be made now.
  Event<> ListOpens;
  // The field has got the focus.
  Event<> Entered;

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace zepril
