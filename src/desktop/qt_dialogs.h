// Message boxes. The timers stand still while one is open.
#pragma once

#include "platform/dialogs.h"
#include "platform/qt/qt_loop.h"

class QWidget;

namespace zepril {

class QtDialogs final : public Dialogs {
 public:
  explicit QtDialogs(QtLoop& loop) : loop_(loop) {}
  // The window that boxes belong to.
  void SetOwner(QWidget* owner) { owner_ = owner; }

  DialogAnswer Ask(const std::string& title, const std::string& text, DialogButtons buttons,
                   DialogAnswer default_answer) override;

 private:
  QtLoop& loop_;
  QWidget* owner_ = nullptr;
};

}  // namespace zepril
